#include "document/widgets/GroupNameTable.h"

#include <QHeaderView>
#include <QMouseEvent>

namespace tomely {

GroupNameTable::GroupNameTable(QWidget* parent) : QTableView(parent)
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

int GroupNameTable::selectedRow() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void GroupNameTable::startEditing(int row)
{
    const QModelIndex name = model()->index(row, NameColumn);
    setCurrentIndex(name);
    edit(name);
}

QWidget* GroupNameTable::nameEditor() const
{
    return state() == EditingState ? indexWidget(currentIndex().siblingAtColumn(NameColumn))
                                   : nullptr;
}

void GroupNameTable::endEditing()
{
    // Not by moving the focus away, which does nothing in a window that is not the active one.
    if (QWidget* const editor = nameEditor()) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

void GroupNameTable::dropEditing()
{
    if (QWidget* const editor = nameEditor())
        closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
}

bool GroupNameTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    if (trigger == QAbstractItemView::EditKeyPressed)
        return QTableView::edit(index.siblingAtColumn(NameColumn), trigger, event);
    if (trigger == QAbstractItemView::AnyKeyPressed)
        return QTableView::edit(index.siblingAtColumn(FirstColumn), trigger, event);
    return QTableView::edit(index, trigger, event);
}

void GroupNameTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    // Closing it takes the focus from it, which is one more reason to close it.
    if (editor->isHidden())
        return;
    const int row = currentIndex().row();
    // Tab would go on to the next group; it only means that the name is complete.
    const bool movesOn = hint == QAbstractItemDelegate::EditNextItem
        || hint == QAbstractItemDelegate::EditPreviousItem;
    QTableView::closeEditor(editor, movesOn ? QAbstractItemDelegate::NoHint : hint);
    Q_EMIT editingEnded(row);
}

void GroupNameTable::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton)
        QTableView::mouseMoveEvent(event);
}

} // namespace tomely
