// A document: a file, what was read from it, whether it was changed since, and the windows that
// show it. It reads and writes whole files and knows nothing of panels, menus or other documents.

#pragma once

#include "platform/DocumentWindow.h"
#include "platform/Progress.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace tomely {

/// Why a document could not be read or written.
struct DocumentFailure {
    QString reason; // in words, for example "No space left on device"
    bool standsAlone = false; // the reason is the whole message and needs no file name
    bool cancelled = false; // the person left it; nothing needs to be said
};

class Document : public QObject {
    Q_OBJECT

public:
    explicit Document(QObject* parent = nullptr) : QObject(parent) { }

    ~Document() override { destroyWindowControllers(); }

    /// The absolute path of the document's file; empty for a document that was never saved.
    QString filePath() const { return m_filePath; }

    /// The name in window titles and questions: the file's name without its extension, or the name
    /// given to an untitled document.
    QString displayName() const;

    void setUntitledName(const QString& name);

    virtual bool isDocumentEdited() const { return m_edited; }

    /// True when closing would lose something: a change that is not saved, or what a window holds.
    bool hasUnsavedWork() const;

    /// Notes a change that is not saved yet.
    void changeDone() { setEdited(true); }

    /// Notes that there is nothing to save.
    void clearChangeCount() { setEdited(false); }

    /// Fills a fresh document from a file. On failure the document is as it was. The work can be
    /// left by `progress`, which is told bytes.
    std::optional<DocumentFailure> readFromFile(const QString& path, const Progress& progress = {});

    /// Writes the document to `path`, which becomes its file, and clears the change count. On
    /// failure neither changes and a file at the path is as it was.
    virtual std::optional<DocumentFailure> writeToFile(
        const QString& path, const Progress& progress = {});

    /// True when the document's file is not the one that was read or written last: another program
    /// has changed or replaced it. False while there is none, since then nothing can be
    /// overwritten.
    bool isFileChangedOutside() const;

    /// Makes the document's windows; called once, after it is filled.
    virtual void makeWindowControllers() { }

    /// The document owns its windows from then on. The first one is the main window. Does not show
    /// it.
    void addWindowController(std::unique_ptr<DocumentWindow> window);

    /// Destroys a window that is not the main one, when control is back in the event loop.
    void removeWindowController(DocumentWindow* window);

    const std::vector<std::unique_ptr<DocumentWindow>>& windowControllers() const
    {
        return m_windows;
    }

    /// nullptr for a document that has no window.
    DocumentWindow* mainWindow() const;

    /// Shows every window of the document.
    void showWindows();

Q_SIGNALS:
    void editedChanged(bool edited);
    void nameChanged();
    void windowAdded(DocumentWindow* window);

protected:
    /// The bytes of the file. May throw ArchiveError when the document cannot be expressed.
    virtual QByteArray dataRepresentation(const Progress& progress) = 0;

    /// Takes over what the bytes of a file say. A failure leaves the document as it was.
    virtual std::optional<DocumentFailure> loadDataRepresentation(
        QByteArrayView bytes, const Progress& progress) = 0;

    /// Windows may look at the document until the end; a derived class whose parts they use
    /// destroys them first.
    void destroyWindowControllers();

private:
    /// What tells one state of a file from another.
    struct FileState {
        QDateTime modified;
        qint64 size = 0;

        bool operator==(const FileState&) const = default;
    };

    static FileState fileState(const QString& path);
    void setEdited(bool edited);

    QString m_filePath;
    FileState m_fileState; // when it was last read or written
    QString m_untitledName;
    bool m_edited = false;
    std::vector<std::unique_ptr<DocumentWindow>> m_windows;
    std::vector<QPointer<QObject>>
        m_lateOwners; // of windows that are removed and not destroyed yet
};

} // namespace tomely
