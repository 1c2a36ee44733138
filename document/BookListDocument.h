// One collection in memory: its books, groups, columns, labels, sort field and saved layout.
// Whoever changes something calls one of the notification operations, which mark the document
// edited and make its window follow. It includes no window; it speaks to one through
// BookListWindow.

#pragma once

#include "document/BookListWindow.h"
#include "document/CollectionContents.h"
#include "platform/Document.h"

#include <QStringList>

#include <functional>
#include <span>

namespace tomely {

struct Alert;
class Alerts;
class BookListDocument;
class UserDefaults;

/// What a document with a window needs from the program; all may be missing without one.
struct BookListServices {
    Alerts* alerts = nullptr;
    UserDefaults* defaults = nullptr;
    /// Makes the main window, adds it to the document's window controllers and gives its other
    /// face.
    std::function<BookListWindow*(BookListDocument& document)> makeWindow;
};

class BookListDocument : public Document {
    Q_OBJECT

public:
    /// A new collection: two default groups, default labels and columns, no books.
    explicit BookListDocument(BookListServices services = {}, QObject* parent = nullptr);
    ~BookListDocument() override;

    void makeWindowControllers() override;

    std::optional<DocumentFailure> writeToFile(
        const QString& path, const Progress& progress = {}) override;

    /// nullptr for a document without a window.
    BookListWindow* getWindowController() const { return m_bookListController; }

    bool isLoadeFromFile() const { return m_bLoadedFromFile; }

    /// The version of the file that was read; the current one for a new collection.
    qint32 fileVersion() const { return m_contents.fileVersion; }

    // Books. Pointers to books are good until the document says that books changed.

    /// Stores the book under the next book number, which becomes its key. False, and the book is
    /// gone, when a book with the record's current key exists or no number is left. Neither marks
    /// the document edited nor refreshes: the caller does.
    bool addBook(std::unique_ptr<BookEntry> book);

    /// Opens an editor for a new book (see BookListWindow).
    void addNewBook(QRect frame);

    /// Removes the book under `key`; an unknown key removes nothing. Always true.
    bool deleteBook(const QString& key);

    /// Removes all of them with one refresh at the end.
    void deleteBooks(const QStringList& keys);

    /// nullptr when there is no such book.
    BookEntry* getBookEntry(QStringView key) const;

    qsizetype getBookListSize() const { return static_cast<qsizetype>(m_contents.books.size()); }

    QStringList allKeys() const;
    std::vector<BookEntry*> allValues() const;

    /// The books in ascending order of their numbers.
    const BookDictionary& books() const { return m_contents.books; }

    qint32 lastBookNumber() const { return m_contents.lastBookIdn; }

    // Groups.

    /// The dictionary itself: callers add and remove in it and then call groupsChanged().
    GroupDictionary& getGroups() { return m_contents.groups; }

    const GroupDictionary& getGroups() const { return m_contents.groups; }

    /// A key that no group ever had; one that no group has when all were handed out.
    qint32 getNextGroupKey();

    qint32 lastGroupKey() const { return m_contents.lastGroupKey; }

    /// Takes the groups out of every book's membership. Does not mark the document edited.
    void removeBookGroupReferences(const QStringList& groupKeys);

    /// Takes memberships of groups that do not exist out of every book.
    void removeNonExistentGroup() { m_contents.removeNonExistentGroup(); }

    // Columns and labels.

    ColumnDictionary& getListColumns() { return m_contents.columns; }

    const ColumnDictionary& getListColumns() const { return m_contents.columns; }

    /// The label of a custom field, or a null text when there is none for that column key.
    QString getCustomFieldLabel(qint32 columnKey) const;

    /// Names a custom field. The label is stored trimmed; the column takes it as typed until the
    /// file is opened again.
    void setCustomFieldLabel(const QString& label, qint32 columnKey);

    const LabelDictionary& customFieldLabels() const { return m_contents.labels; }

    // The values that the editor's combo boxes offer, sorted ignoring case; filled by the list
    // after each change of the books and empty before the first.

    QStringList getAuthors() const { return m_aAuthors; }

    void setAuthors(QStringList values);

    QStringList getLocations() const { return m_aLocations; }

    void setLocations(QStringList values);

    QStringList getPublishers() const { return m_aPublishers; }

    void setPublishers(QStringList values);

    QStringList getPricePaidLocations() const { return m_aPricePaidLocations; }

    void setPricePaidLocations(QStringList values);

    // Sort field and layout; the setters do not mark the document edited.

    /// A column key, plus 1 for descending.
    qint32 getSortField() const { return m_contents.sortField; }

    void setSortField(qint32 sortField) { m_contents.sortField = sortField; }

    QRectF getSavedWindowPosition() const { return m_contents.windowFrame; }

    QRectF getSavedImageSplitterView1Size() const { return m_contents.imageSplitter[0]; }

    QRectF getSavedImageSplitterView2Size() const { return m_contents.imageSplitter[1]; }

    QRectF getSavedListSplitterView1Size() const { return m_contents.listSplitter[0]; }

    QRectF getSavedListSplitterView2Size() const { return m_contents.listSplitter[1]; }

    QRectF getCustomizeListControllerWindowPosition() const
    {
        return m_contents.customizeListFrame;
    }

    void setCustomizeListControllerWindowPosition(QRectF frame)
    {
        m_contents.customizeListFrame = frame;
    }

    QRectF getGroupListControllerWindowPosition() const { return m_contents.groupManagerFrame; }

    void setGroupListControllerWindowPosition(QRectF frame)
    {
        m_contents.groupManagerFrame = frame;
    }

    // Notifications. All but refresh() mark the document edited; no other operation does, besides
    // deleting a book and naming a custom field.

    void refresh();
    void setBooksChanged();
    void groupsChanged();
    void columnsSelectionChanged();
    void windowLayoutChanged();

    /// Lets the person print the displayed books.
    void printDocument();

    // The default collection.

    /// Opening the default file by hand completes settings that know only its path.
    void checkToUpdateDefaultBookMark();

    /// The answer to "Open this file when Tomely starts?": button 0 makes this file the default.
    void confirmedSetDefaultFile(int button);

protected:
    QByteArray dataRepresentation(const Progress& progress) override;
    std::optional<DocumentFailure> loadDataRepresentation(
        QByteArrayView bytes, const Progress& progress) override;

private:
    bool isDefaultFileConfigured() const;
    void storeAsDefaultFile();

    /// Asks whether to open this file at the start. Comes after the save from the event loop, when
    /// it is known whether the document stays.
    void offerAsDefaultFile();

    BookListServices m_services;
    CollectionContents m_contents = CollectionContents::makeNew();
    BookListWindow* m_bookListController = nullptr; // one of the window controllers
    QStringList m_aAuthors;
    QStringList m_aLocations;
    QStringList m_aPublishers;
    QStringList m_aPricePaidLocations;
    bool m_bLoadedFromFile = false;
};

} // namespace tomely
