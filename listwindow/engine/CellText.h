// What a cell of the book list says, for the window, printing and the command line alike. The texts
// are English in every language; a window translates them where it shows them.

#pragma once

#include "model/BookEntry.h"

#include <QString>

namespace tomely {

/// The text of the cell of a book in column `columnKey`; empty for a key that no column has. `row`
/// is the book's place in the list from 0 and matters to the row-number column alone.
QString cellText(const BookEntry& book, qint32 columnKey, qsizetype row);

/// "June, 2001", "June", "2001" or nothing. A month below 1 is none; one above 12 has no name.
QString monthYearText(qint32 month, const QString& year);

/// "January" to "December" for 1 to 12, else empty.
QString monthName(qint32 month);

} // namespace tomely
