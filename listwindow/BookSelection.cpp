#include "listwindow/BookSelection.h"

#include "listwindow/BookTableView.h"
#include "model/BookEntry.h"

#include <QScrollBar>

#include <algorithm>

namespace tomely {

int selectedRow(const BookTableView& table)
{
    const QItemSelectionModel& selection = *table.selectionModel();
    const int current = table.currentIndex().row();
    if (current >= 0 && selection.isRowSelected(current, {}))
        return current;
    int first = -1;
    for (const QItemSelectionRange& range : selection.selection())
        first = first < 0 ? range.top() : std::min(first, range.top());
    return first;
}

QStringList selectedKeys(const BookTableView& table, const std::vector<BookEntry*>& displayedBooks)
{
    const auto keyOf = [&displayedBooks](int row) {
        return displayedBooks.at(static_cast<std::size_t>(row))->getKey();
    };
    QStringList keys;
    const int first = selectedRow(table);
    if (first >= 0)
        keys.append(keyOf(first));
    for (const int row : table.selectedRows()) {
        if (row != first)
            keys.append(keyOf(row));
    }
    return keys;
}

KeptSelection::KeptSelection(BookTableView& table)
    : m_table(table)
    , m_row(selectedRow(table))
    , m_scrolledTo(table.verticalScrollBar()->value())
    , m_scrolledRight(table.horizontalScrollBar()->value())
{
    for (const QItemSelectionRange& range : table.selectionModel()->selection())
        m_ranges.emplace_back(range.top(), range.bottom());
}

void KeptSelection::restore(int firstColumn)
{
    const QAbstractItemModel& model = *m_table.model();
    const int lastRow = model.rowCount() - 1;
    if (lastRow < 0)
        return;
    QItemSelection kept;
    const int lastColumn = model.columnCount() - 1;
    const auto add = [&](int top, int bottom) {
        kept.select(model.index(top, 0), model.index(bottom, lastColumn));
    };
    const int row = std::clamp(m_row, 0, lastRow);
    if (row != m_row) {
        add(row, row);
    } else {
        for (const auto& [top, bottom] : m_ranges) {
            if (top <= lastRow)
                add(top, std::min(bottom, lastRow));
        }
    }
    QItemSelectionModel& selection = *m_table.selectionModel();
    selection.setCurrentIndex(model.index(row, 0), QItemSelectionModel::NoUpdate);
    selection.select(kept, QItemSelectionModel::ClearAndSelect);
    m_table.verticalScrollBar()->setValue(m_scrolledTo);
    // A row that is selected in another one's place must be seen.
    if (row != m_row)
        m_table.scrollTo(model.index(row, firstColumn));
    m_table.horizontalScrollBar()->setValue(m_scrolledRight);
}

} // namespace tomely
