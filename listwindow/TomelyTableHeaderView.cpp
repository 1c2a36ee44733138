#include "listwindow/TomelyTableHeaderView.h"

namespace tomely {

TomelyTableHeaderView::TomelyTableHeaderView(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    connect(this, &QHeaderView::sectionMoved, this, &TomelyTableHeaderView::noteChange);
    connect(this, &QHeaderView::sectionResized, this, &TomelyTableHeaderView::noteChange);
}

void TomelyTableHeaderView::noteChange()
{
    m_changed = m_changed || m_isDragging;
}

void TomelyTableHeaderView::mousePressEvent(QMouseEvent* event)
{
    m_isDragging = true;
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
