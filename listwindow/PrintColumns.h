// The columns of the printed table: the numbers of the books, and then what the screen shows, in
// its order and as wide.

#pragma once

#include <QString>
#include <Qt>

#include <vector>

class QTableView;

namespace tomely {

struct PrintColumn {
    qint32 key; // what the column shows
    QString heading;
    Qt::Alignment alignment; // of the heading and of the cells
    double width; // points
};

/// The columns to print a book table with: one of row numbers and then those that are shown, from
/// the left. A pixel of the screen is a point on paper.
std::vector<PrintColumn> printColumns(const QTableView& bookTable);

} // namespace tomely
