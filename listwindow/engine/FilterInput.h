// What is typed into the filter's fields for a number and a year, read so that it never fails: what
// does not belong is dropped. The filter bar and the command line read alike.

#pragma once

#include <QStringView>

class QLocale;

namespace tomely {

struct BookFilter;

/// Takes over the number that the digits, points and commas of the text make, read as the locale
/// writes numbers; a point is a decimal mark too where it cannot be read as anything else. Without
/// any of them there is no number, and the list is not filtered. When they make no number, as a
/// lone point does, the filter keeps the one it had.
void setFilterNumber(BookFilter& filter, QStringView text, const QLocale& locale);

/// Takes over the year that the digits of the text make: 0, for no year, without any, and the
/// largest integer when they make more than that.
void setFilterYear(BookFilter& filter, QStringView text);

} // namespace tomely
