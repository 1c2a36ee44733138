// The header of the book table: opaque, and there even when no column is. It can tell a column that
// the person moved or resized from one that the program did, which the toolkit's own signals
// cannot.

#pragma once

#include <QHeaderView>

namespace tomely {

class TomelyTableHeaderView : public QHeaderView {
    Q_OBJECT

public:
    explicit TomelyTableHeaderView(QWidget* parent = nullptr);

    /// As high as a heading, whether or not a column is shown.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The person dragged a column, or its edge, to another place.
    void layoutChangedByUser();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void noteChange();

    bool m_isDragging = false;
    bool m_changed = false;
};

} // namespace tomely
