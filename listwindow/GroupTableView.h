// The group table as a widget: groups that books are dropped on, and a context menu that somebody
// else fills.

#pragma once

#include "document/widgets/GroupNameTable.h"

#include <QPersistentModelIndex>
#include <QPointer>

namespace tomely {

class GroupTableView : public GroupNameTable {
    Q_OBJECT

public:
    explicit GroupTableView(QWidget* parent = nullptr);

    /// Takes books that are dragged out of this table, and no others.
    void setDropSource(const QWidget& bookTable) { m_dropSource = &bookTable; }

    /// The row that lights up because dragged books may be dropped on it; -1 for none.
    int litRow() const { return m_litRow.isValid() ? m_litRow.row() : -1; }

Q_SIGNALS:
    /// The books that are being dragged were dropped on the group.
    void booksDropped(const QString& groupKey);

    /// A menu is asked for, and the row that it is about is selected; without a group for the
    /// library and for the room below the rows.
    void contextMenuRequested(QPoint globalPosition, bool isOnGroup);

protected:
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// The row that the drag may be dropped on; an invalid index for none.
    QModelIndex dropTarget(const QDropEvent& event) const;
    void light(const QModelIndex& row);

    QPointer<const QWidget> m_dropSource;
    QPersistentModelIndex m_litRow;
};

} // namespace tomely
