#include "listwindow/engine/CellText.h"

#include "document/DisplayNames.h"
#include "listwindow/engine/ColumnKind.h"
#include "model/MonthNames.h"

#include <array>
#include <charconv>
#include <limits>
#include <system_error>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

QString integerText(qint32 value)
{
    return value == 0 ? QString() : QString::number(value);
}

/// Two decimals and a point whatever the locale: a list of prices lines up and exports unchanged.
/// Qt rounds a tie up (0.125 to 0.13), printf's "%.2f" and this to the even neighbour (0.12).
QString priceText(double value)
{
    if (value == 0)
        return {};
    std::array<char, std::numeric_limits<double>::max_exponent10 + 8> text{}; // "-1...0.00"
    const auto [end, problem] =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 2);
    Q_ASSERT(problem == std::errc());
    return QString::fromLatin1(text.data(), end - text.data());
}

} // namespace

QString monthYearText(qint32 month, const QString& year)
{
    if (month < 1)
        return year;
    const QString name = monthName(month);
    return year.isEmpty() ? name : name + ", "_L1 + year;
}

QString cellText(const BookEntry& book, qint32 columnKey, qsizetype row)
{
    if (columnKey == ColumnKey::RowNumber)
        return QString::number(row + 1);
    const BookField* const field = fieldOfColumn(columnKey);
    switch (columnKind(columnKey)) {
    case ColumnKind::None:
        return {};
    case ColumnKind::Text:
        return field->text(book);
    case ColumnKind::Date:
        return monthYearText(monthField(columnKey)->integer(book), field->text(book));
    case ColumnKind::Integer:
    case ColumnKind::Rating:
        return integerText(field->integer(book));
    case ColumnKind::Real:
        return priceText(field->real(book));
    case ColumnKind::Flag:
        return field->flag(book) ? u"X"_s : u" "_s;
    case ColumnKind::Type:
        return book.getTypeText();
    }
    return {};
}

QString displayCellText(const BookEntry& book, qint32 columnKey, qsizetype row)
{
    switch (columnKind(columnKey)) {
    case ColumnKind::Date:
        return displayDate(
            monthField(columnKey)->integer(book), fieldOfColumn(columnKey)->text(book));
    case ColumnKind::Type:
        return displayType(book.getType());
    default:
        return cellText(book, columnKey, row);
    }
}

} // namespace tomely
