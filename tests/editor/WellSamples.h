// An image well by itself and the hands that work on it.

#pragma once

#include "editor/DraggableImageView.h"

#include <QApplication>
#include <QBuffer>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

namespace tomely {

inline constexpr QSize wellSize(218, 313);

inline QImage plain(QSize size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

inline Picture plainPicture(QSize size, const QColor& color = Qt::red)
{
    return Picture::fromImage(plain(size, color));
}

inline QByteArray png(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return bytes;
}

inline QByteArray png(QSize size)
{
    return png(plain(size, Qt::green));
}

/// A well that notes the drags which it would start.
class Well : public DraggableImageView {
public:
    explicit Well(QWidget* parent = nullptr) : DraggableImageView(parent)
    {
        resize(wellSize);
        // Colours that a test can tell apart, whatever the machine's are.
        QPalette colors;
        colors.setColor(QPalette::Base, Qt::white);
        colors.setColor(QPalette::Text, Qt::black);
        colors.setColor(QPalette::Highlight, Qt::blue);
        setPalette(colors);
    }

    QList<QPoint> drags;

protected:
    void startDrag(const QMouseEvent& down) override { drags.append(down.position().toPoint()); }
};

struct Signals {
    explicit Signals(const Well& well)
        : changed(&well, &Well::pictureChanged)
        , clear(&well, &Well::clearRequested)
        , pick(&well, &Well::pickRequested)
    {
    }

    QSignalSpy changed;
    QSignalSpy clear;
    QSignalSpy pick;

    /// How often each was sent, in that order.
    QList<qsizetype> counts() const { return {changed.count(), clear.count(), pick.count()}; }
};

using Counts = QList<qsizetype>;

/// A drag by hand: it comes in, moves, and is dropped when the well takes it.
struct HandDrag {
    Well& well;
    QMimeData& data;
    Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;

    bool enter() const
    {
        QDragEnterEvent event(QPoint(20, 20), actions, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&well, &event);
        return event.isAccepted();
    }

    bool move() const
    {
        QDragMoveEvent event(QPoint(30, 30), actions, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&well, &event);
        return event.isAccepted();
    }

    void leave() const
    {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(&well, &event);
    }

    /// What the source of the drag is told.
    Qt::DropAction drop() const
    {
        QDropEvent event(QPointF(30, 30), actions, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&well, &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }
};

inline void move(Well& well, QPoint to, Qt::MouseButtons buttons)
{
    QMouseEvent event(
        QEvent::MouseMove, to, well.mapToGlobal(to), Qt::NoButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&well, &event);
}

inline QColor colorAt(Well& well, QPoint point)
{
    return well.grab().toImage().pixelColor(point);
}

inline QColor frameColor(Well& well)
{
    return colorAt(well, {well.width() / 2, 0});
}

/// Whether anything is drawn on the empty ground within that part of the well.
inline bool hasInk(Well& well, const QRect& part)
{
    const QImage shot = well.grab().toImage();
    const QColor ground = shot.pixelColor(8, 8);
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (shot.pixelColor(x, y) != ground)
                return true;
        }
    }
    return false;
}

} // namespace tomely
