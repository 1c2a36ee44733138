#include "listwindow/engine/BookOrder.h"

#include "listwindow/engine/ColumnKind.h"
#include "model/CaseFolding.h"
#include "model/KeyText.h"

#include <bit>
#include <cmath>
#include <limits>

namespace tomely {

namespace {

/// Unsigned, with the order of the signed numbers.
quint64 ordered(qint32 value)
{
    return static_cast<quint32>(value) ^ 0x8000'0000U;
}

/// The bits of a double, rearranged so that they compare as the numbers do.
quint64 ordered(double value)
{
    if (std::isnan(value))
        return std::numeric_limits<quint64>::max();
    if (value == 0)
        value = 0; // minus zero equals zero
    const auto bits = std::bit_cast<quint64>(value);
    constexpr quint64 sign = quint64(1) << 63;
    return (bits & sign) ? ~bits : bits | sign;
}

/// The type texts in ascending order, as numbers; equal texts get equal ones.
quint64 orderedType(qint32 type)
{
    switch (type) {
    case 0:
        return 3; // Hardcover
    case 1:
        return 4; // Paperback
    case 2:
        return 1; // Audio Book
    case 3:
        return 2; // eBook
    default:
        return 0; // no text
    }
}

int compareByColumn(const BookEntry& left, const BookEntry& right, qint32 columnKey)
{
    if (columnKind(columnKey) == ColumnKind::Text) {
        const BookField* const field = fieldOfColumn(columnKey);
        return compareIgnoringCase(field->text(left), field->text(right));
    }
    const quint64 leftKey = sortKey(left, columnKey);
    const quint64 rightKey = sortKey(right, columnKey);
    return leftKey < rightKey ? -1 : (leftKey > rightKey ? 1 : 0);
}

} // namespace

quint64 sortKey(const BookEntry& book, qint32 columnKey)
{
    const BookField* const field = fieldOfColumn(columnKey);
    switch (columnKind(columnKey)) {
    case ColumnKind::None:
    case ColumnKind::Text:
        return 0;
    case ColumnKind::Date: {
        const MonthYear date = dateOfColumn(columnKey, book);
        return (ordered(date.year) << 32) | ordered(date.month);
    }
    case ColumnKind::Integer:
        return ordered(field->integer(book));
    case ColumnKind::Real:
        return ordered(field->real(book));
    case ColumnKind::Rating:
        return ~ordered(field->integer(book));
    case ColumnKind::Flag:
        return field->flag(book) ? 0 : 1;
    case ColumnKind::Type:
        return orderedType(field->integer(book));
    }
    return 0;
}

bool standsBefore(const BookEntry& left, const BookEntry& right, qint32 sortField)
{
    const SortField sort = SortField::of(sortField);
    const int byColumn = compareByColumn(left, right, sort.columnKey);
    if (byColumn != 0)
        return (byColumn < 0) != sort.descending;
    const int byTitle = compareIgnoringCase(left.getTitle(), right.getTitle());
    if (byTitle != 0)
        return byTitle < 0;
    return KeyOrder()(left.getKey(), right.getKey());
}

} // namespace tomely
