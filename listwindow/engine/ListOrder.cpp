#include "listwindow/engine/ListOrder.h"

#include "listwindow/engine/BookOrder.h"
#include "listwindow/engine/ColumnKind.h"

#include <algorithm>

namespace tomely {

namespace {

using Record = ListOrder::Record;

/// True when equal keys do not mean equal texts. Titles do without: their classes say it all.
bool needsTexts(qint32 columnKey)
{
    return columnKey != ColumnKey::Title && columnKind(columnKey) == ColumnKind::Text;
}

/// Compares records as standsBefore() compares their books.
struct RecordOrder {
    const FoldedColumn* texts; // nullptr when the keys say it all
    bool descending;

    bool operator()(const Record& left, const Record& right) const
    {
        if (left.key != right.key)
            return (left.key < right.key) != descending;
        if (texts) {
            const int compared = texts->text(left.row).compare(texts->text(right.row));
            if (compared != 0)
                return (compared < 0) != descending;
        }
        return left.rank < right.rank;
    }
};

RecordOrder recordOrder(BookIndex& index, qint32 sortField)
{
    const SortField sort = SortField::of(sortField);
    return {needsTexts(sort.columnKey) ? &index.folded(sort.columnKey) : nullptr, sort.descending};
}

} // namespace

ListOrder::Record ListOrder::makeRecord(BookIndex& index, Row row) const
{
    const qint32 columnKey = SortField::of(*m_sortField).columnKey;
    const quint32 rank = index.titleRanks()[row];
    if (columnKey == ColumnKey::Title)
        return {index.titleClasses()[row], rank, row};
    if (needsTexts(columnKey))
        return {index.folded(columnKey).prefix(row), rank, row};
    return {sortKey(*index.books()[row], columnKey), rank, row};
}

bool ListOrder::update(BookIndex& index, const BookIndex::Changes& changes, qint32 sortField)
{
    if (m_sortField != sortField || changes.everything) {
        m_sortField = sortField;
        sortAll(index);
        return true;
    }
    if (changes.rows.empty())
        return false;
    moveRows(index, changes.rows);
    return true;
}

void ListOrder::sortAll(BookIndex& index)
{
    m_records.clear();
    m_records.reserve(index.rowCount());
    for (Row row = 0; row < index.rowCount(); ++row)
        m_records.push_back(makeRecord(index, row));
    std::ranges::sort(m_records, recordOrder(index, *m_sortField));
}

void ListOrder::moveRows(BookIndex& index, const std::vector<Row>& rows)
{
    std::vector<bool> isMoved(index.rowCount(), false);
    for (const Row row : rows)
        isMoved[row] = true;
    std::erase_if(m_records, [&isMoved](const Record& record) { return isMoved[record.row]; });
    // A changed title shifts the places of the others, which keep their order among themselves.
    for (Record& record : m_records)
        record = makeRecord(index, record.row);
    const auto middle = static_cast<std::ptrdiff_t>(m_records.size());
    for (const Row row : rows)
        m_records.push_back(makeRecord(index, row));
    const RecordOrder before = recordOrder(index, *m_sortField);
    std::sort(m_records.begin() + middle, m_records.end(), before);
    std::inplace_merge(m_records.begin(), m_records.begin() + middle, m_records.end(), before);
}

} // namespace tomely
