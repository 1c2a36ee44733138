// What the commands about books do: open their editors, delete them, and work on the pictures of
// the whole collection, each with its question.

#pragma once

#include <QObject>
#include <QRect>
#include <QStringList>

#include <functional>
#include <memory>

class QWidget;

namespace tomely {

class Alerts;
class BookEditorWindow;
class BookEntry;
class BookListDocument;
class DocumentWindow;
class FilePanels;
class ToolbarConfiguration;
class UserDefaults;

/// What the main window needs from the program; everything must outlive it.
struct ListWindowServices {
    Alerts& alerts;
    UserDefaults& defaults;
    FilePanels& panels;
    ToolbarConfiguration& toolbar;
    /// Makes an editor for a new book, at the frame in screen coordinates unless that is empty.
    std::function<std::unique_ptr<DocumentWindow>(BookListDocument& document, QRect frame)>
        makeNewEditor;
    /// Makes an editor for a book of the document.
    std::function<std::unique_ptr<DocumentWindow>(BookListDocument& document, BookEntry& book)>
        makeEditor;
};

class BookCommands : public QObject {
    Q_OBJECT

public:
    /// `selectedKeys` answers the keys of the selected books, the one that commands about one book
    /// mean first. Everything must outlive the commands.
    BookCommands(BookListDocument& document, ListWindowServices services, QWidget& window,
        std::function<QStringList()> selectedKeys);

    void clickedAdd();
    void addNewBook(QRect frame);

    /// Edits the selected book, in the editor that is open for it if there is one.
    void clickedEdit();

    /// Asks, and deletes the selected books and closes their editors.
    void clickedDelete();

    /// Asks, and takes all pictures out of all books. The document counts as changed whatever the
    /// answer was.
    void clickedRemoveAllImages();

    /// Asks, and scales all pictures of all books to what an editor shows. The same holds.
    void clickedScaleAllImages();

    /// The open editor of a book; nullptr when there is none.
    BookEditorWindow* lookupExistingController(const QString& key) const;

Q_SIGNALS:
    void booksDeleted();

private:
    void open(std::unique_ptr<DocumentWindow> editor);
    void confirmedDelete(int button, const QStringList& booksToDelete);
    void confirmedRemoveAllImages(int button);
    void confirmedScaleAllImages(int button);
    void workOnEachBook(const QString& text, const std::function<void(BookEntry& book)>& work);
    void endEditing();

    BookListDocument& m_document;
    ListWindowServices m_services;
    QWidget& m_window;
    std::function<QStringList()> m_selectedKeys;
};

} // namespace tomely
