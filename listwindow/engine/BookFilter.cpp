#include "listwindow/engine/BookFilter.h"

#include "model/CaseFolding.h"

namespace tomely {

namespace {

bool compareBy(DateTest test, qint32 value, qint32 wanted)
{
    switch (test) {
    case DateTest::Equal:
        return value == wanted;
    case DateTest::NotEqual:
        return value != wanted;
    case DateTest::Before:
        return value < wanted;
    case DateTest::After:
        return value > wanted;
    case DateTest::OnOrBefore:
        return value <= wanted;
    case DateTest::OnOrAfter:
        return value >= wanted;
    }
    return false;
}

/// The month that a book without one is taken to have when month and year are both asked for.
qint32 substituteMonth(DateTest test, qint32 wantedMonth)
{
    switch (test) {
    case DateTest::Before:
        return 1;
    case DateTest::After:
        return 12;
    case DateTest::Equal:
        return 0;
    default:
        return wantedMonth;
    }
}

} // namespace

bool BookFilter::isTextFilter() const
{
    return m_nSelectedFilter == ColumnKey::AuthorAndTitle
        || columnKind(m_nSelectedFilter) == ColumnKind::Text;
}

bool BookFilter::passesFilter(const BookEntry& book) const
{
    switch (m_nSelectedFilter) {
    case ColumnKey::AuthorAndTitle:
        return containsIgnoringCase(book.getAuthor(), m_strFilter)
            || containsIgnoringCase(book.getTitle(), m_strFilter);
    case ColumnKey::Images:
        return checkTriState(m_nFilterSelectionForImages, book.hasImages());
    case ColumnKey::Groups:
        return checkTriState(m_nFilterSelectionForGroup, book.inAnyGroup());
    case ColumnKey::EstValueDate:
        return false;
    default:
        break;
    }
    const BookField* const field = fieldOfColumn(m_nSelectedFilter);
    switch (columnKind(m_nSelectedFilter)) {
    case ColumnKind::None:
        return false;
    case ColumnKind::Text:
        return containsIgnoringCase(field->text(book), m_strFilter);
    case ColumnKind::Date: {
        const MonthYear date = dateOfColumn(m_nSelectedFilter, book);
        return checkDateWithYear(date.year, date.month);
    }
    case ColumnKind::Integer:
        return checkNumeric(field->integer(book));
    case ColumnKind::Real:
        return checkNumeric(field->real(book));
    case ColumnKind::Rating:
        return field->integer(book) == m_nFilterSelectionForBookRating;
    case ColumnKind::Flag:
        return checkTriState(m_nFilterSelectionForChecks, field->flag(book));
    case ColumnKind::Type:
        return field->integer(book) == m_nFilterSelectionForBookType;
    }
    return false;
}

bool BookFilter::checkTriState(TriState selection, bool isSet)
{
    switch (selection) {
    case TriState::All:
        return true;
    case TriState::OnlySet:
        return isSet;
    case TriState::OnlyUnset:
        return !isSet;
    }
    return false;
}

bool BookFilter::checkNumeric(double value) const
{
    if (!m_bFilter_NumericHasValue)
        return true;
    switch (m_nFilterSelectionForNumeric) {
    case NumberTest::Equal:
        return value == m_dblFilter_Numeric;
    case NumberTest::NotEqual:
        return value != m_dblFilter_Numeric;
    case NumberTest::Less:
        return value != 0 && value < m_dblFilter_Numeric;
    case NumberTest::Greater:
        return value > m_dblFilter_Numeric;
    }
    return false;
}

bool BookFilter::checkDateWithYear(qint32 year, qint32 month) const
{
    const DateTest test = m_nFilterSelectionForDate;
    const bool isNotEqual = test == DateTest::NotEqual;
    const qint32 wantedMonth = m_nFilter_DateMonth;
    const qint32 wantedYear = m_nFilter_DateYear;
    if (wantedMonth == 0 && wantedYear == 0)
        return true;
    if (wantedMonth == 0)
        return year == 0 ? isNotEqual : compareBy(test, year, wantedYear);
    if (month == 0 && year == 0)
        return isNotEqual;
    if (wantedYear == 0)
        return month == 0 ? isNotEqual : compareBy(test, month, wantedMonth);
    if (year == 0)
        return isNotEqual;
    if (year != wantedYear) // which settles it, whatever the months
        return compareBy(test, year, wantedYear);
    const qint32 comparedMonth = month != 0 ? month : substituteMonth(test, wantedMonth);
    return compareBy(test, comparedMonth, wantedMonth);
}

} // namespace tomely
