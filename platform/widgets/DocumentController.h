// All open documents of the program: makes, opens, saves, reverts and closes them, asks what must
// be asked, and sees to it that one file is one document. It knows no particular kind of document.

#pragma once

#include "platform/widgets/FilePanels.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace tomely {

class Alerts;
class Document;
class DocumentWindow;
struct DocumentFailure;
class UserDefaults;
class WindowController;

class DocumentController : public QObject {
    Q_OBJECT

public:
    /// What the controller works with; everything must outlive it.
    struct Environment {
        Alerts& alerts;
        FilePanels& panels;
        UserDefaults& defaults;
        FileType fileType;
        std::function<std::unique_ptr<Document>()> makeDocument;
    };

    /// How many recent documents are remembered.
    static constexpr qsizetype recentLimit = 10;

    explicit DocumentController(Environment environment, QObject* parent = nullptr);
    ~DocumentController() override;

    const std::vector<std::unique_ptr<Document>>& documents() const { return m_documents; }

    /// The document whose window was active last; nullptr when none is open.
    Document* currentDocument() const;

    /// The open document of that file, however the file is named; nullptr when there is none.
    Document* documentForFile(const QString& path) const;

    /// Makes an untitled document and shows it.
    Document* newDocument();

    /// Opens a file and shows it, or brings its document forward when it is open already. Shows an
    /// alert and gives nullptr when the file cannot be read, or when another file is being read or
    /// written at this moment; it is then opened after that.
    Document* openDocument(const QString& path);

    /// Lets the person pick files and opens them.
    void openWithPanel(QWidget* window);

    /// The following answer when it is done: true when it happened, false when the person cancelled
    /// or it failed, which an alert has said by then.
    using Done = std::function<void(bool happened)>;

    /// Saves under the document's own file, or asks for one when it has none. Asks before it
    /// replaces a file that another program has changed since.
    void save(Document& document, Done done = {});
    void saveAs(Document& document, Done done = {});

    /// Opens the file again in place of the document; asks first when there are changes to lose.
    void revert(Document& document, const Done& done = {});

    /// Closes the document; asks first when there are unsaved changes or one of its windows holds
    /// work that the document does not have yet.
    void close(Document& document, const Done& done = {});

    /// Closes all documents one after another, until the person cancels.
    void closeAll(Done done = {});

    /// True from a call of closeAll() until it is done.
    bool isClosingAll() const { return m_isClosingAll; }

    /// Paths, the latest first.
    QStringList recentDocuments() const;
    void clearRecentDocuments();

Q_SIGNALS:
    void documentOpened(Document* document);

    /// A document is gone. Nothing of it may be used any more.
    void documentClosed();

    void recentDocumentsChanged();

private:
    Document* adopt(std::unique_ptr<Document> document);
    void watchWindow(Document& document, WindowController& window);
    std::unique_ptr<Document> readDocument(const QString& path, QWidget* window);
    bool write(Document& document, const QString& path);
    void writeAs(const QPointer<Document>& document, const QString& path, const Done& done);
    bool beginAsking(const Document& document, DocumentWindow* window);
    void watchFurtherWindows(Document& document);
    void settleWindows(Document& document, Done done);
    void askToReplace(Document& document, Done done);
    void askToSave(Document& document, Done done);
    void askToRevert(Document& document, Done done);
    void reopen(Document& document, const Done& done);
    void remove(Document& document);
    void noteRecent(const QString& path);
    QString nextUntitledName();
    void sayCannotOpen(const QString& path, const DocumentFailure& failure);

    Environment m_environment;
    std::vector<std::unique_ptr<Document>> m_documents;
    Document* m_current = nullptr;
    /// The window on which a question about a document's unsaved work is on screen. When the window
    /// goes, the question goes with it.
    std::map<const Document*, QPointer<QObject>> m_asked;
    int m_untitledCount = 0;
    bool m_isClosingAll = false;
};

} // namespace tomely
