#include "listwindow/BookTableView.h"

#include "listwindow/BookClipboard.h"
#include "platform/widgets/ListFocus.h"

#include <QApplication>
#include <QClipboard>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace tomely {

BookTableView::BookTableView(QWidget* parent) : QTableView(parent)
{
    // With this, a press on one of several selected rows leaves the others selected until the mouse
    // is released without a drag.
    setDragEnabled(true);
}

std::vector<int> BookTableView::selectedRows() const
{
    // Ranges, since the single indexes of a whole library take long to make.
    QItemSelection selection = selectionModel()->selection();
    std::ranges::sort(selection, {}, [](const QItemSelectionRange& range) { return range.top(); });
    std::vector<int> rows;
    for (const QItemSelectionRange& range : std::as_const(selection)) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    return rows;
}

void BookTableView::copy() const
{
    if (selectionModel()->hasSelection())
        QGuiApplication::clipboard()->setText(tabSeparatedLines(*this));
}

void BookTableView::initViewItemOption(QStyleOptionViewItem* option) const
{
    QTableView::initViewItemOption(option);
    paleWithoutFocus(*option, *this);
}

void BookTableView::mousePressEvent(QMouseEvent* event)
{
    m_pressedPlace = event->position().toPoint();
    const QModelIndex index = indexAt(m_pressedPlace);
    m_isPressedBesideRows = !index.isValid();
    m_pressedCell = event->button() == Qt::LeftButton ? index : QModelIndex();
    QTableView::mousePressEvent(event);
}

void BookTableView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton || m_isPressedBesideRows)
        return QTableView::mouseMoveEvent(event);
    const QPoint way = event->position().toPoint() - m_pressedPlace;
    if (!m_pressedCell.isValid() || way.manhattanLength() < QApplication::startDragDistance())
        return;
    const int row = m_pressedCell.row();
    m_pressedCell = QModelIndex(); // one press starts one drag
    const bool isSelected = selectionModel()->isRowSelected(row, {});
    Q_EMIT rowsPulled(isSelected ? selectedRows() : std::vector<int>{row});
}

void BookTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    m_pressedCell = QModelIndex();
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
