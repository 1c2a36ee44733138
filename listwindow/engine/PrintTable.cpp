#include "listwindow/engine/PrintTable.h"

#include "listwindow/engine/CellText.h"

namespace tomely {

namespace {

constexpr qsizetype ruleLength = 249; // hyphens

} // namespace

QString printCellText(const std::vector<BookEntry*>& displayedBooks, qint32 columnKey,
    const QString& heading, qsizetype row)
{
    if (row == 0)
        return heading;
    if (row == ruleRow)
        return QString(ruleLength, u'-');
    const qsizetype bookRow = row - printHeadingRows;
    return displayCellText(
        *displayedBooks.at(static_cast<std::size_t>(bookRow)), columnKey, bookRow);
}

} // namespace tomely
