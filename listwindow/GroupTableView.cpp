#include "listwindow/GroupTableView.h"

#include "listwindow/GroupTableModel.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>

namespace tomely {

GroupTableView::GroupTableView(QWidget* parent) : QTableView(parent)
{
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    horizontalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(0);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

void GroupTableView::endEditing()
{
    if (state() != EditingState)
        return;
    // Not by moving the focus away, which does nothing in a window that is not the active one.
    if (auto* const editor = viewport()->findChild<QLineEdit*>()) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

bool GroupTableView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool isByKey = trigger == QAbstractItemView::EditKeyPressed;
    return QTableView::edit(
        isByKey ? index.siblingAtColumn(GroupTableModel::NameColumn) : index, trigger, event);
}

void GroupTableView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    // A new name sorts the groups anew, which has put its editor away by then.
    if (editor->isHidden())
        return;
    // Tab would go on to the next group; it only means that the name is complete.
    const bool movesOn = hint == QAbstractItemDelegate::EditNextItem
        || hint == QAbstractItemDelegate::EditPreviousItem;
    QTableView::closeEditor(editor, movesOn ? QAbstractItemDelegate::NoHint : hint);
}

void GroupTableView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton)
        QTableView::mouseMoveEvent(event);
}

void GroupTableView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    const int iconWidth = verticalHeader()->defaultSectionSize() + 4;
    setColumnWidth(GroupTableModel::IconColumn, iconWidth);
    setColumnWidth(GroupTableModel::NameColumn, viewport()->width() - iconWidth);
}

} // namespace tomely
