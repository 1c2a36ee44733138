#include "listwindow/GroupTableView.h"

#include "listwindow/BookDrag.h"
#include "listwindow/GroupDrop.h"
#include "listwindow/GroupTableModel.h"
#include "platform/widgets/ListFocus.h"
#include "platform/widgets/Sheets.h"
#include "platform/widgets/Waiting.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace tomely {

namespace {

constexpr int betweenRows = 2; // in points: that near to its edge the mouse is not on a row
constexpr qreal litCorner = 4;

/// Icons as high as the names beside them and, on a selection that is pale, in their colour.
class IconDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const int textHeight = option->fontMetrics.ascent();
        option->decorationSize = option->decorationSize.expandedTo({textHeight, textHeight});
        if (option->state.testFlag(QStyle::State_Selected) && !option->widget->hasFocus()) {
            option->state.setFlag(QStyle::State_Selected, false);
            option->backgroundBrush = option->palette.highlight();
        }
    }
};

} // namespace

GroupTableView::GroupTableView(QWidget* parent) : GroupNameTable(parent)
{
    setAcceptDrops(true);
    setItemDelegateForColumn(GroupTableModel::IconColumn, new IconDelegate(this));
}

void GroupTableView::initViewItemOption(QStyleOptionViewItem* option) const
{
    GroupNameTable::initViewItemOption(option);
    paleWithoutFocus(*option, *this);
}

void GroupTableView::resizeEvent(QResizeEvent* event)
{
    GroupNameTable::resizeEvent(event);
    const int iconWidth = verticalHeader()->defaultSectionSize() + 4;
    setColumnWidth(GroupTableModel::IconColumn, iconWidth);
    setColumnWidth(GroupTableModel::NameColumn, viewport()->width() - iconWidth);
}

void GroupTableView::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex index = byMouse ? indexAt(event->pos()) : currentIndex();
    if (index.isValid())
        setCurrentIndex(index.siblingAtColumn(NameColumn));
    // By a key the menu comes up where the row is, not where the mouse happens to be.
    const QPoint place =
        byMouse ? event->globalPos() : viewport()->mapToGlobal(visualRect(index).center());
    Q_EMIT contextMenuRequested(place, index.row() > GroupTableModel::libraryRow);
}

// Dropping

QModelIndex GroupTableView::dropTarget(const QDropEvent& event) const
{
    const QPoint place = event.position().toPoint();
    const QModelIndex index = indexAt(place);
    const QRect row = visualRect(index).adjusted(0, betweenRows, 0, -betweenRows);
    const GroupDropContext context{
        .holdsBooks = event.mimeData()->hasFormat(bookDragType),
        .isFromThisWindow = m_dropSource && event.source() == m_dropSource,
        .row = index.row(),
        .isOnRow = index.isValid() && place.y() >= row.top() && place.y() <= row.bottom(),
        .isBusy = Waiting::isWaiting() || hasOpenSheet(*window()),
    };
    return validateDrop(context) ? index.siblingAtColumn(NameColumn) : QModelIndex();
}

void GroupTableView::light(const QModelIndex& row)
{
    if (m_litRow == row)
        return;
    m_litRow = row;
    viewport()->update();
}

void GroupTableView::dragEnterEvent(QDragEnterEvent* event)
{
    // What the type says is known from the start; where it may go is asked at every move.
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(event->mimeData()->hasFormat(bookDragType));
}

void GroupTableView::dragMoveEvent(QDragMoveEvent* event)
{
    GroupNameTable::dragMoveEvent(event); // scrolls near the edges
    light(dropTarget(*event));
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(m_litRow.isValid());
}

void GroupTableView::dragLeaveEvent(QDragLeaveEvent* event)
{
    GroupNameTable::dragLeaveEvent(event);
    light({});
}

void GroupTableView::dropEvent(QDropEvent* event)
{
    const QString groupKey = dropTarget(*event).data(GroupTableModel::KeyRole).toString();
    QDragLeaveEvent end;
    dragLeaveEvent(&end);
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(!groupKey.isEmpty());
    if (!groupKey.isEmpty())
        Q_EMIT booksDropped(groupKey);
}

void GroupTableView::paintEvent(QPaintEvent* event)
{
    GroupNameTable::paintEvent(event);
    if (!m_litRow.isValid())
        return;
    const QRect icon = visualRect(m_litRow.sibling(m_litRow.row(), GroupTableModel::IconColumn));
    const QRectF row = QRectF(icon.united(visualRect(m_litRow))).adjusted(1, 1, -1, -1);
    // A window that a drag comes to may be an inactive one, yet must answer in full colour.
    const QColor strong = palette().color(QPalette::Active, QPalette::Highlight);
    QColor faint = strong;
    faint.setAlphaF(0.25F);
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(strong, 2));
    painter.setBrush(faint);
    painter.drawRoundedRect(row, litCorner, litCorner);
}

} // namespace tomely
