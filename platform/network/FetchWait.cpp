#include "platform/network/FetchWait.h"

#include <QTimer>

#include <algorithm>

namespace tomely {

FetchWait::FetchWait(std::chrono::milliseconds mostTime)
    : m_deadline(mostTime, Qt::PreciseTimer) { }

bool FetchWait::until(
    const std::function<bool()>& isDone, std::optional<std::chrono::milliseconds> atMost)
{
    const auto mostTime = std::min(timeLeft(), atMost.value_or(timeLeft()));
    const QDeadlineTimer deadline(mostTime, Qt::PreciseTimer);
    // A millisecond more, so that the time is up when it wakes the loop.
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &timer, [this] { wake(); });
    timer.start(mostTime + std::chrono::milliseconds(1));
    while (!isOver()) {
        if (isDone())
            return true;
        if (deadline.hasExpired())
            return false;
        m_isAwake = false;
        m_loop.exec();
        // Nobody here woke it: the program quits, and its loops do not wait any more.
        if (!m_isAwake)
            end();
    }
    return false;
}

void FetchWait::wake()
{
    m_isAwake = true;
    m_loop.quit();
}

void FetchWait::end()
{
    m_isEnded = true;
    wake();
}

std::chrono::milliseconds FetchWait::timeLeft() const
{
    return std::max(std::chrono::milliseconds(0),
        std::chrono::ceil<std::chrono::milliseconds>(m_deadline.remainingTimeAsDuration()));
}

} // namespace tomely
