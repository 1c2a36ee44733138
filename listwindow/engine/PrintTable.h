// The list as it is printed: a heading row, a rule, and then the displayed books, numbered. Which
// columns there are, and how they are painted, is the print layout's affair.

#pragma once

#include "model/BookEntry.h"

#include <QString>

#include <vector>

namespace tomely {

/// The heading and the rule above the books.
inline constexpr qsizetype printHeadingRows = 2;

/// The rule's row.
inline constexpr qsizetype ruleRow = 1;

/// How many rows the printed table of so many displayed books has.
inline qsizetype printRowCount(qsizetype displayedBooks)
{
    return displayedBooks + printHeadingRows;
}

/// The cell in `row` of the printed table, in the column `columnKey` with that heading. The rule is
/// a line of hyphens longer than any column; the column cuts it off.
QString printCellText(const std::vector<BookEntry*>& displayedBooks, qint32 columnKey,
    const QString& heading, qsizetype row);

} // namespace tomely
