#include "listwindow/engine/ListEngine.h"

#include "document/BookListDocument.h"
#include "model/CaseFolding.h"

#include <algorithm>

namespace tomely {

void ListEngine::loadBookKeys()
{
    const BookIndex::Changes changes = m_index.sync(m_document);
    sortBooks(changes);
    if (m_bBooksChanged)
        m_valueLists.update(m_document, m_index, changes);
    else if (!changes.isEmpty())
        m_valueLists.invalidate();
    m_bBooksChanged = false;

    markGroup(changes);
    markFilter();
    m_aDisplayedBooks.clear();
    m_aDisplayedBooks.reserve(m_aSortedBooks.size());
    const std::vector<BookEntry*>& books = m_index.books();
    for (const ListOrder::Record& record : m_order.records()) {
        if (m_passes[record.row] & m_isInGroup[record.row])
            m_aDisplayedBooks.push_back(books[record.row]);
    }
}

void ListEngine::sortBooks(const BookIndex::Changes& changes)
{
    if (!m_order.update(m_index, changes, m_document.getSortField()))
        return;
    m_aSortedBooks.clear();
    m_aSortedBooks.reserve(m_index.rowCount());
    for (const ListOrder::Record& record : m_order.records())
        m_aSortedBooks.push_back(m_index.books()[record.row]);
}

void ListEngine::markGroup(const BookIndex::Changes& changes)
{
    const qint32 group = m_filter.m_nSelectedGroupKey;
    if (group == m_markedGroup && changes.isEmpty() && m_isInGroup.size() == m_index.rowCount())
        return;
    m_markedGroup = group;
    m_isInGroup.resize(m_index.rowCount());
    std::ranges::transform(m_index.books(), m_isInGroup.begin(),
        [group](const BookEntry* book) { return quint8(book->inGroup(group)); });
}

void ListEngine::markFilter()
{
    m_passes.assign(m_index.rowCount(), 0);
    if (!m_filter.isTextFilter()) {
        std::ranges::transform(m_index.books(), m_passes.begin(),
            [this](const BookEntry* book) { return quint8(m_filter.passesFilter(*book)); });
        return;
    }
    m_needle.clear();
    appendFolded(m_filter.m_strFilter, m_needle);
    const std::string_view needle(m_needle.data(), m_needle.size());
    if (needle.empty()) {
        std::ranges::fill(m_passes, quint8(1));
    } else if (m_filter.m_nSelectedFilter == ColumnKey::AuthorAndTitle) {
        m_index.folded(ColumnKey::Author).markMatches(needle, m_passes);
        m_index.folded(ColumnKey::Title).markMatches(needle, m_passes);
    } else {
        m_index.folded(m_filter.m_nSelectedFilter).markMatches(needle, m_passes);
    }
}

} // namespace tomely
