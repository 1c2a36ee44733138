#include "listwindow/engine/BookIndex.h"

#include "document/BookListDocument.h"
#include "listwindow/engine/BookOrder.h"
#include "listwindow/engine/ColumnKind.h"

#include <algorithm>
#include <numeric>

namespace tomely {

BookIndex::Changes BookIndex::sync(const BookListDocument& document)
{
    Changes changes;
    if (m_hasLooked && m_seenChange == BookEntry::lastChange())
        return changes;
    m_found.clear();
    m_found.reserve(static_cast<std::size_t>(document.getBookListSize()));
    for (const auto& [key, book] : document.books())
        m_found.push_back(book.get());
    const bool onlyGrew = m_hasLooked && m_found.size() >= m_books.size()
        && std::equal(m_books.begin(), m_books.end(), m_found.begin());
    const Row firstNew = rowCount();
    m_books.swap(m_found);
    if (!onlyGrew) {
        changes.everything = true;
        rebuild();
    } else {
        for (Row row = 0; row < rowCount(); ++row) {
            // A book in the place of one that was destroyed is newer than our last look, too.
            if (row >= firstNew || m_books[row]->changeStamp() > m_seenChange)
                changes.rows.push_back(row);
        }
        update(changes.rows, firstNew);
    }
    m_seenChange = BookEntry::lastChange();
    m_hasLooked = true;
    return changes;
}

void BookIndex::rebuild()
{
    m_folded.clear();
    m_sortKeys.clear();
    m_titleOrder.clear();
    m_titleRanks.clear();
    m_titleClasses.clear();
}

const FoldedColumn& BookIndex::folded(qint32 columnKey)
{
    const auto [place, isNew] = m_folded.try_emplace(columnKey);
    FoldedColumn& column = place->second;
    if (isNew) {
        const BookField* const field = fieldOfColumn(columnKey);
        column.clear(m_books.size());
        for (const BookEntry* const book : m_books)
            column.append(field->text(*book));
    }
    return column;
}

bool BookIndex::updateColumn(
    qint32 columnKey, FoldedColumn& column, const std::vector<Row>& rows, Row firstNew) const
{
    const BookField* const field = fieldOfColumn(columnKey);
    bool changed = false;
    for (const Row row : rows) {
        if (row >= firstNew) {
            column.append(field->text(*m_books[row]));
            changed = true;
        } else if (column.replace(row, field->text(*m_books[row]))) {
            changed = true;
        }
    }
    return changed;
}

void BookIndex::update(const std::vector<Row>& rows, Row firstNew)
{
    for (auto& [columnKey, keys] : m_sortKeys) {
        keys.resize(m_books.size());
        for (const Row row : rows)
            keys[row] = sortKey(*m_books[row], columnKey);
    }
    for (auto& [columnKey, column] : m_folded) {
        const bool changed = updateColumn(columnKey, column, rows, firstNew);
        if (changed && columnKey == ColumnKey::Title && !m_titleOrder.empty())
            moveTitles(column, rows);
    }
}

void BookIndex::moveTitles(const FoldedColumn& titles, const std::vector<Row>& rows)
{
    std::vector<bool> isMoved(m_books.size(), false);
    for (const Row row : rows)
        isMoved[row] = true;
    std::erase_if(m_titleOrder, [&isMoved](Row row) { return isMoved[row]; });
    const auto middle = static_cast<std::ptrdiff_t>(m_titleOrder.size());
    m_titleOrder.insert(m_titleOrder.end(), rows.begin(), rows.end());
    const auto before = [&titles](Row left, Row right) {
        const int compared = titles.text(left).compare(titles.text(right));
        return compared != 0 ? compared < 0 : left < right;
    };
    std::sort(m_titleOrder.begin() + middle, m_titleOrder.end(), before);
    std::inplace_merge(
        m_titleOrder.begin(), m_titleOrder.begin() + middle, m_titleOrder.end(), before);
    numberTitles();
}

const std::vector<quint64>& BookIndex::sortKeys(qint32 columnKey)
{
    const auto [place, isNew] = m_sortKeys.try_emplace(columnKey);
    std::vector<quint64>& keys = place->second;
    if (isNew) {
        keys.resize(m_books.size());
        std::ranges::transform(m_books, keys.begin(),
            [columnKey](const BookEntry* book) { return sortKey(*book, columnKey); });
    }
    return keys;
}

void BookIndex::buildTitleOrder()
{
    const FoldedColumn& titles = folded(ColumnKey::Title);

    struct Record {
        quint64 prefix;
        Row row;
    };

    std::vector<Record> records;
    records.reserve(m_books.size());
    for (Row row = 0; row < rowCount(); ++row)
        records.push_back({titles.prefix(row), row});
    std::ranges::sort(records, [&titles](const Record& left, const Record& right) {
        if (left.prefix != right.prefix)
            return left.prefix < right.prefix;
        const int compared = titles.text(left.row).compare(titles.text(right.row));
        return compared != 0 ? compared < 0 : left.row < right.row;
    });
    m_titleOrder.resize(records.size());
    std::ranges::transform(records, m_titleOrder.begin(), &Record::row);
    numberTitles();
}

void BookIndex::numberTitles()
{
    const FoldedColumn& titles = folded(ColumnKey::Title);
    m_titleRanks.resize(m_titleOrder.size());
    m_titleClasses.resize(m_titleOrder.size());
    quint32 titleClass = 0;
    for (std::size_t rank = 0; rank < m_titleOrder.size(); ++rank) {
        const Row row = m_titleOrder[rank];
        if (rank > 0 && titles.text(row) != titles.text(m_titleOrder[rank - 1]))
            ++titleClass;
        m_titleRanks[row] = static_cast<quint32>(rank);
        m_titleClasses[row] = titleClass;
    }
}

const std::vector<BookIndex::Row>& BookIndex::titleOrder()
{
    if (m_titleOrder.size() != m_books.size())
        buildTitleOrder();
    return m_titleOrder;
}

const std::vector<quint32>& BookIndex::titleRanks()
{
    titleOrder();
    return m_titleRanks;
}

const std::vector<quint32>& BookIndex::titleClasses()
{
    titleOrder();
    return m_titleClasses;
}

} // namespace tomely
