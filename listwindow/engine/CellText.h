// What a cell of the book list says: in English, as the command line writes it in every language,
// and in the person's language, as the window and printing show it.

#pragma once

#include "model/BookEntry.h"

#include <QString>

namespace tomely {

/// The text of the cell of a book in column `columnKey`; empty for a key that no column has. `row`
/// is the book's place in the list from 0 and matters to the row-number column alone.
QString cellText(const BookEntry& book, qint32 columnKey, qsizetype row);

/// The same in the person's language.
QString displayCellText(const BookEntry& book, qint32 columnKey, qsizetype row);

/// "June, 2001", "June", "2001" or nothing. A month below 1 is none; one above 12 has no name.
QString monthYearText(qint32 month, const QString& year);

} // namespace tomely
