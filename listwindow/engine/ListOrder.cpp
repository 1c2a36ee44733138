#include "listwindow/engine/ListOrder.h"

#include "listwindow/engine/BookOrder.h"
#include "listwindow/engine/ColumnKind.h"

#include <algorithm>
#include <array>
#include <numeric>

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

/// Sorts by the keys alone and leaves equal ones in the order in which they stood: byte by byte
/// from the lowest, which costs a pass for each byte that is not the same in all keys.
void sortByKey(std::vector<Record>& records, bool descending)
{
    constexpr int byteValues = 256;
    std::vector<Record> sorted(records.size());
    for (int shift = 0; shift < 64; shift += 8) {
        const auto digit = [shift, descending](const Record& record) {
            const auto byte = static_cast<std::size_t>((record.key >> shift) & 0xFF);
            return descending ? byteValues - 1 - byte : byte;
        };
        std::array<std::size_t, byteValues> places{};
        for (const Record& record : records)
            ++places[digit(record)];
        if (std::ranges::find(places, records.size()) != places.end())
            continue;
        std::exclusive_scan(places.begin(), places.end(), places.begin(), std::size_t(0));
        for (const Record& record : records)
            sorted[places[digit(record)]++] = record;
        records.swap(sorted);
    }
}

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
    return {index.sortKeys(columnKey)[row], rank, row};
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
    // From the order by title, so that a stable sort by the key leaves equal ones as they must
    // stand.
    m_records.clear();
    m_records.reserve(index.rowCount());
    for (const Row row : index.titleOrder())
        m_records.push_back(makeRecord(index, row));
    const RecordOrder before = recordOrder(index, *m_sortField);
    sortByKey(m_records, before.descending);
    if (!before.texts)
        return;
    for (auto run = m_records.begin(); run != m_records.end();) {
        const auto runEnd = std::find_if(
            run, m_records.end(), [key = run->key](const Record& next) { return next.key != key; });
        // Books of one author or place are many and stand as they must already.
        if (!std::is_sorted(run, runEnd, before))
            std::sort(run, runEnd, before);
        run = runEnd;
    }
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
