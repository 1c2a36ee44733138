#include "platform/widgets/ScreenFrames.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// A window is within reach when this much of the top of it can be seen and dragged.
constexpr int reachableWidth = 80;
constexpr int reachableHeight = 24;

// By then a window manager has put its borders around a window or never will.
constexpr int settledAfterMilliseconds = 1000;

// Beyond what any screen has; a damaged file must not make a window the toolkit cannot make.
constexpr double largestCoordinate = 30000;

bool platformTellsPositions()
{
    return !QGuiApplication::platformName().startsWith("wayland"_L1);
}

} // namespace

int wholePoint(double value)
{
    // A value that is no number comes out as 0.
    return std::isnan(value)
        ? 0
        : static_cast<int>(std::lround(std::clamp(value, -largestCoordinate, largestCoordinate)));
}

QRectF frameForFile(const QRect& frame, const QRect& primaryScreen)
{
    const int screenBottom = primaryScreen.y() + primaryScreen.height();
    return QRectF(frame.x() - primaryScreen.x(), screenBottom - (frame.y() + frame.height()),
        frame.width(), frame.height());
}

QRect frameFromFile(const QRectF& frame, const QRect& primaryScreen)
{
    const int height = wholePoint(frame.height());
    const int screenBottom = primaryScreen.y() + primaryScreen.height();
    return {wholePoint(frame.x()) + primaryScreen.x(),
        screenBottom - (wholePoint(frame.y()) + height), wholePoint(frame.width()), height};
}

QRect frameWithinReach(const QRect& frame, const QList<QRect>& screens)
{
    const auto isReachable = [&frame](const QRect& screen) {
        const QRect seen = QRect(frame.topLeft(), QSize(frame.width(), reachableHeight)) & screen;
        return seen.width() >= std::min(reachableWidth, frame.width())
            && seen.height() >= reachableHeight;
    };
    if (screens.isEmpty() || std::ranges::any_of(screens, isReachable))
        return frame;
    const QRect& screen = screens.first();
    QRect moved = frame;
    moved.moveLeft(std::clamp(
        frame.left(), screen.left(), std::max(screen.left(), screen.right() + 1 - frame.width())));
    moved.moveTop(std::clamp(
        frame.top(), screen.top(), std::max(screen.top(), screen.bottom() + 1 - frame.height())));
    return moved;
}

QRectF currentFrameForFile(const QWidget& window, const QRectF& stored)
{
    QRectF frame =
        frameForFile(window.frameGeometry(), QGuiApplication::primaryScreen()->geometry());
    if (!platformTellsPositions())
        frame.moveTopLeft(stored.topLeft());
    return frame;
}

FrameRestorer::FrameRestorer(QWidget& window, const QRect& frame)
    : QObject(&window)
    , m_window(window)
    , m_frame(frame)
{
    window.installEventFilter(this);
    QTimer::singleShot(settledAfterMilliseconds, this, &QObject::deleteLater);
}

void FrameRestorer::restore(QWidget& window, const QRectF& frame)
{
    QList<QRect> screens;
    for (const QScreen* const screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    QRect stored = frameFromFile(frame, QGuiApplication::primaryScreen()->geometry());
    // A damaged file must not make a window that takes all memory.
    stored.setSize(
        stored.size().boundedTo(QGuiApplication::primaryScreen()->availableVirtualSize()));
    const QRect wanted = frameWithinReach(stored, screens);
    window.resize(wanted.size());
    if (platformTellsPositions())
        window.move(wanted.topLeft());
    new FrameRestorer(window, wanted); // owned by the window
}

bool FrameRestorer::eventFilter(QObject* watched, QEvent* event)
{
    const QSize borders = m_window.frameGeometry().size() - m_window.geometry().size();
    if (m_window.isVisible() && !borders.isNull()) {
        m_window.removeEventFilter(this);
        m_window.resize(m_frame.size() - borders);
        if (platformTellsPositions())
            m_window.move(m_frame.topLeft());
        deleteLater();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tomely
