#include "listwindow/GroupTableView.h"

#include "listwindow/GroupTableModel.h"

#include <QHeaderView>
#include <QLineEdit>

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
    // Not by moving the focus away, which does nothing in a window that is not the active one.
    if (auto* const editor = viewport()->findChild<QLineEdit*>()) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

void GroupTableView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    // Tab would go on to the next group; it only means that the name is complete.
    const bool movesOn = hint == QAbstractItemDelegate::EditNextItem
        || hint == QAbstractItemDelegate::EditPreviousItem;
    QTableView::closeEditor(editor, movesOn ? QAbstractItemDelegate::NoHint : hint);
}

void GroupTableView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    const int iconWidth = verticalHeader()->defaultSectionSize() + 4;
    setColumnWidth(GroupTableModel::IconColumn, iconWidth);
    setColumnWidth(GroupTableModel::NameColumn, viewport()->width() - iconWidth);
}

} // namespace tomely
