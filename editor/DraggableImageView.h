// A picture well of the editor: shows one picture of a book, takes another one by drop, paste or
// choice, and lets it be dragged out. It knows nothing of books: its owner decides what clearing
// and choosing do, and what a change means.

#pragma once

#include "model/Picture.h"
#include "platform/widgets/ImageView.h"

#include <QDeadlineTimer>

#include <memory>

class QMenu;
class QMimeData;

namespace tomely {

class DraggableImageView : public ImageView {
    Q_OBJECT

public:
    explicit DraggableImageView(QWidget* parent = nullptr);
    ~DraggableImageView() override;

    /// The program's own doing: nothing is signalled.
    void setPicture(const Picture& picture);

    const Picture& picture() const { return m_picture; }

    /// Shows no picture; nothing is signalled.
    void clear() { setPicture({}); }

    /// The largest picture that is kept as it is, in pixels, which an empty well tells; empty for
    /// none.
    void setBound(QSize bound);

    QSize bound() const { return m_bound; }

    /// Takes a picture that the person has given and says so. When it is not valid, the well keeps
    /// what it has, the person is told, and the answer is false.
    bool offer(const Picture& picture);

    /// The press of the mouse that may become a drag; none when no drag can start.
    const QMouseEvent* downEvent() const { return m_downEvent.get(); }

    void setDownEvent(std::unique_ptr<QMouseEvent> event);

    /// What a drag offers to its target: the picture as TIFF and nothing else.
    std::unique_ptr<QMimeData> dragData() const;

    /// What follows the mouse: the whole picture, half transparent, in its own size as far as it
    /// does not hide the place where it shall go; null without a picture.
    QPixmap dragPicture() const;

    /// The point of `dragPicture` under the mouse that went down at `position` in the well.
    QPoint dragHotSpot(QPointF position) const;

    /// What a target may do with what is dragged.
    Qt::DropActions dragActions() const { return Qt::CopyAction; }

    QSize sizeHint() const override;

public Q_SLOTS:
    /// False when there is no picture to copy, and the clipboard keeps what it has.
    bool copy();

    /// Copies and asks for the well to be cleared.
    void cut();

    void paste();

Q_SIGNALS:
    /// The person has put another picture into the well.
    void pictureChanged();

    /// The person wants the well empty.
    void clearRequested();

    /// The person wants to choose a picture for the well; the answer is an `offer`.
    void pickRequested();

protected:
    /// Drags the picture until it is dropped; `down` is where the mouse was pressed.
    virtual void startDrag(const QMouseEvent& down);

    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QMenu* makeMenu();
    bool handleEditKey(const QKeyEvent& event);
    bool handlePlainKey(const QKeyEvent& event);
    void setLit(bool lit);
    void tellRefusal();
    void showRefusal();
    void decodeForScreen();
    void paintEmpty(QPainter& painter) const;
    void paintFrame(QPainter& painter) const;
    QSize dragSize() const;

    Picture m_picture;
    QSize m_decodedFor; // in device pixels; what the image on show is large enough for
    QSize m_bound;
    std::unique_ptr<QMouseEvent> m_downEvent;
    bool m_lit = false; // something that can be dropped here is over the well
    QDeadlineTimer m_refusalTold{0};
};

} // namespace tomely
