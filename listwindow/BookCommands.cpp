#include "listwindow/BookCommands.h"

#include "document/BookEditorWindow.h"
#include "document/BookListDocument.h"
#include "platform/Alerts.h"
#include "platform/widgets/WaitPanel.h"

#include <QWidget>

namespace tomely {

BookCommands::BookCommands(BookListDocument& document, ListWindowServices services, QWidget& window,
    std::function<QStringList()> selectedKeys)
    : m_document(document)
    , m_services(std::move(services))
    , m_window(window)
    , m_selectedKeys(std::move(selectedKeys))
{
}

void BookCommands::endEditing()
{
    m_document.getWindowController()->endGroupNameEditting();
}

// Editors

void BookCommands::clickedAdd()
{
    endEditing();
    addNewBook({});
}

void BookCommands::addNewBook(QRect frame)
{
    open(m_services.makeNewEditor(m_document, frame));
}

void BookCommands::clickedEdit()
{
    endEditing();
    const QStringList keys = m_selectedKeys();
    BookEntry* const book = keys.isEmpty() ? nullptr : m_document.getBookEntry(keys.front());
    if (!book)
        return;
    if (auto* const open = dynamic_cast<DocumentWindow*>(lookupExistingController(keys.front())))
        return open->bringToFront();
    open(m_services.makeEditor(m_document, *book));
}

void BookCommands::open(std::unique_ptr<DocumentWindow> editor)
{
    DocumentWindow& opened = *editor;
    m_document.addWindowController(std::move(editor));
    opened.bringToFront();
}

BookEditorWindow* BookCommands::lookupExistingController(const QString& key) const
{
    for (const auto& window : m_document.windowControllers()) {
        auto* const editor = dynamic_cast<BookEditorWindow*>(window.get());
        if (editor && !editor->getBookKey().isNull() && editor->getBookKey() == key)
            return editor;
    }
    return nullptr;
}

// Deleting

void BookCommands::clickedDelete()
{
    endEditing();
    const QStringList booksToDelete = m_selectedKeys();
    if (booksToDelete.isEmpty())
        return;
    const BookEntry* const book = m_document.getBookEntry(booksToDelete.front());
    const QString question = booksToDelete.size() == 1 && book
        ? tr("Are you sure you want to delete '%1'?").arg(book->getTitle())
        : tr("Are you sure you want to delete %1 books?").arg(booksToDelete.size());
    m_services.alerts.beginSheet(&m_window, confirmationAlert(question),
        [this, booksToDelete](int button) { confirmedDelete(button, booksToDelete); });
}

void BookCommands::confirmedDelete(int button, const QStringList& booksToDelete)
{
    if (button != 0)
        return;
    for (const QString& key : booksToDelete) {
        if (BookEditorWindow* const editor = lookupExistingController(key))
            editor->closeEditor();
    }
    m_document.deleteBooks(booksToDelete);
    Q_EMIT booksDeleted();
}

// Pictures of the whole collection

void BookCommands::clickedRemoveAllImages()
{
    endEditing();
    m_services.alerts.beginSheet(&m_window, confirmationAlert(tr("Remove images from all books?")),
        [this](int button) { confirmedRemoveAllImages(button); });
}

void BookCommands::confirmedRemoveAllImages(int button)
{
    if (button == 0) {
        workOnEachBook(tr("Removing pictures…"), [](BookEntry& book) {
            for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
                if (!book.getImageData(slot).isNull())
                    book.setImageData(slot, {});
            }
        });
    }
    m_document.setBooksChanged();
    m_document.refresh();
}

void BookCommands::clickedScaleAllImages()
{
    endEditing();
    m_services.alerts.beginSheet(&m_window,
        confirmationAlert(tr("Scale all images to the book entry display size?")),
        [this](int button) { confirmedScaleAllImages(button); });
}

void BookCommands::confirmedScaleAllImages(int button)
{
    if (button == 0) {
        workOnEachBook(tr("Scaling pictures…"),
            [this](BookEntry& book) { book.scaleEachImage(m_services.defaults); });
    }
    m_document.setBooksChanged();
    m_document.refresh();
}

void BookCommands::workOnEachBook(
    const QString& text, const std::function<void(BookEntry& book)>& work)
{
    // Left by Cancel, the books that were worked on stay so; the file has the others until it is
    // saved, and Revert has them all.
    WaitPanel panel(&m_window, text, WaitPanel::Cancel::Possible);
    try {
        qint64 done = 0;
        for (const auto& [key, book] : m_document.books()) {
            panel.report(done++, m_document.getBookListSize());
            work(*book);
        }
    } catch (const OperationCancelled&) {
        return;
    }
}

} // namespace tomely
