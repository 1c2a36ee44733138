// Window frames as collection files hold them: in points, with the title bar, from the lower left
// of the primary screen with y upwards. Here is the one place that turns them into the toolkit's
// frames and back.

#pragma once

#include <QObject>
#include <QRect>
#include <QRectF>

class QWidget;

namespace tomely {

/// A coordinate from a file as a whole number of points that a screen can have; 0 for "not a
/// number".
int wholePoint(double value);

/// A frame of the toolkit (y downwards) as a file holds it.
QRectF frameForFile(const QRect& frame, const QRect& primaryScreen);

/// The toolkit's frame for one from a file, rounded to whole points.
QRect frameFromFile(const QRectF& frame, const QRect& primaryScreen);

/// `frame` moved, if need be, so that its title bar can be reached on one of the screens.
QRect frameWithinReach(const QRect& frame, const QList<QRect>& screens);

/// The window's present frame for the file. Where the platform tells no position (Wayland), the
/// origin of `stored` is kept.
QRectF currentFrameForFile(const QWidget& window, const QRectF& stored);

/// Gives a window the frame from a file. How thick its title bar and borders are shows only when it
/// is on screen, so the size is corrected once then.
class FrameRestorer : public QObject {
public:
    /// Lives until the frame is right or `window` is gone.
    static void restore(QWidget& window, const QRectF& frame);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    FrameRestorer(QWidget& window, const QRect& frame);

    QWidget& m_window;
    QRect m_frame;
};

} // namespace tomely
