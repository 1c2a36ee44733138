#include "listwindow/BookTableView.h"

#include <QMouseEvent>

namespace tomely {

void BookTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !index.isValid())
        return QTableView::mouseDoubleClickEvent(event);
    // The first click of two may have taken the row out of the selection.
    if (!selectionModel()->isRowSelected(index.row(), {}) || currentIndex().row() != index.row())
        selectionModel()->setCurrentIndex(
            index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    event->accept();
    Q_EMIT rowDoubleClicked();
}

QModelIndex BookTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    // Whole rows are selected, so the first and the last are rows and not columns.
    if (action == MoveHome || action == MoveEnd)
        modifiers |= Qt::ControlModifier;
    return QTableView::moveCursor(action, modifiers);
}

} // namespace tomely
