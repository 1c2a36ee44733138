// The selected books as text for other programs.

#pragma once

#include <QString>

class QTableView;

namespace tomely {

/// The selected rows from the top, a line each that ends in "\n": the texts of the visible columns
/// in the order in which they are seen, with a tab between. Tabs and line breaks within a text
/// become spaces. Empty when nothing is selected.
QString tabSeparatedLines(const QTableView& table);

} // namespace tomely
