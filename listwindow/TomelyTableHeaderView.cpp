#include "listwindow/TomelyTableHeaderView.h"

#include <QMouseEvent>
#include <QPainter>

namespace tomely {

TomelyTableHeaderView::TomelyTableHeaderView(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setTextElideMode(Qt::ElideRight);
    connect(this, &QHeaderView::sectionMoved, this, &TomelyTableHeaderView::noteChange);
    connect(this, &QHeaderView::sectionResized, this, &TomelyTableHeaderView::noteChange);
}

QSize TomelyTableHeaderView::sizeHint() const
{
    // The toolkit's header vanishes with its last column, and what can be done with it vanishes,
    // too.
    const int height = count() > 0 ? sectionSizeFromContents(0).height() : 0;
    return QHeaderView::sizeHint().expandedTo({0, height});
}

void TomelyTableHeaderView::paintEvent(QPaintEvent* event)
{
    // A style may leave parts of a header unpainted.
    QPainter(viewport()).fillRect(event->rect(), palette().window());
    QHeaderView::paintEvent(event);
}

void TomelyTableHeaderView::noteChange()
{
    m_changed = m_changed || m_isDragging;
}

void TomelyTableHeaderView::mousePressEvent(QMouseEvent* event)
{
    // No other button drags, and the release of one that opens a menu never comes here.
    m_isDragging = event->button() == Qt::LeftButton;
    m_changed = false;
    QHeaderView::mousePressEvent(event);
}

void TomelyTableHeaderView::mouseReleaseEvent(QMouseEvent* event)
{
    // The release is what moves a dragged column; a click's own effects come with it, too, but move
    // and resize nothing.
    QHeaderView::mouseReleaseEvent(event);
    m_isDragging = false;
    if (m_changed)
        Q_EMIT layoutChangedByUser();
    m_changed = false;
}

void TomelyTableHeaderView::mouseDoubleClickEvent(QMouseEvent* event)
{
    // A double click on an edge fits the column to its texts.
    m_isDragging = true;
    m_changed = false;
    QHeaderView::mouseDoubleClickEvent(event);
    m_isDragging = false;
    if (m_changed)
        Q_EMIT layoutChangedByUser();
    m_changed = false;
}

} // namespace tomely
