// Which books are selected in the list: what commands about one book and about several mean by it,
// and how the selection is kept while the list is made anew. Rows are those of the table; row i is
// element i of the displayed books.

#pragma once

#include <QStringList>

#include <utility>
#include <vector>

namespace tomely {

class BookEntry;
class BookTableView;

/// The row that commands about one book are about: the current one of the selected rows; -1 when
/// none is.
int selectedRow(const BookTableView& table);

/// The key of the book in selectedRow(), then those of the other selected rows from the top.
QStringList selectedKeys(const BookTableView& table, const std::vector<BookEntry*>& displayedBooks);

/// Selected rows stay selected by their place in the list, and the list stays where it is scrolled
/// to.
class KeptSelection {
public:
    /// Remembers what is selected.
    explicit KeptSelection(BookTableView& table);

    /// Selects it again as far as there are rows; without any left, the last row, and without any
    /// before, the first one. `firstColumn` is the leftmost one that is shown.
    void restore(int firstColumn);

private:
    BookTableView& m_table;
    std::vector<std::pair<int, int>> m_ranges; // first and last row
    int m_row;
    int m_scrolledTo;
    int m_scrolledRight;
};

} // namespace tomely
