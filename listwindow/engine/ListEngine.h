// The list behind the book table and the command line: all books in the order of the sort field,
// and those of them that the filter shows. It knows no widget.

#pragma once

#include "listwindow/engine/BookFilter.h"
#include "listwindow/engine/BookIndex.h"
#include "listwindow/engine/ListOrder.h"
#include "listwindow/engine/ValueLists.h"

#include <vector>

namespace tomely {

class ListEngine {
public:
    /// The document must outlive the engine.
    explicit ListEngine(BookListDocument& document) : m_document(document) { }

    /// Which books are shown; a change takes effect with the next loadBookKeys().
    BookFilter& filter() { return m_filter; }

    const BookFilter& filter() const { return m_filter; }

    /// Books were added, edited or removed: the next load collects the document's lists of authors,
    /// locations, publishers and places again.
    void setBooksChanged() { m_bBooksChanged = true; }

    /// Computes the displayed books from the document's books and sort field.
    void loadBookKeys();

    /// The books that are shown, in display order: row i of the list is element i.
    const std::vector<BookEntry*>& getDisplayedBooks() const { return m_aDisplayedBooks; }

    /// All books of the document in the order of the sort field.
    const std::vector<BookEntry*>& getAllBooks() const { return m_aSortedBooks; }

private:
    void sortBooks(const BookIndex::Changes& changes);
    void markGroup(const BookIndex::Changes& changes);
    void markFilter();

    BookListDocument& m_document;
    BookFilter m_filter;
    BookIndex m_index;
    ListOrder m_order;
    std::vector<BookEntry*> m_aSortedBooks;
    std::vector<BookEntry*> m_aDisplayedBooks;
    ValueLists m_valueLists;
    bool m_bBooksChanged = true;
    std::vector<quint8> m_isInGroup; // by row; good for m_markedGroup
    qint32 m_markedGroup = -1;
    std::vector<quint8> m_passes; // by row
    std::vector<char> m_needle;
};

} // namespace tomely
