// How a fetch waits: events are handled until something has come about, but no longer than until
// its time is up or somebody ends it.

#pragma once

#include <QDeadlineTimer>
#include <QEventLoop>

#include <chrono>
#include <functional>
#include <optional>

namespace tomely {

class FetchWait {
public:
    explicit FetchWait(std::chrono::milliseconds mostTime);
    Q_DISABLE_COPY_MOVE(FetchWait)

    /// Handles events until `isDone`, which is asked again after each wake(). False when it did not
    /// come about: the wait is over, or `atMost` has passed.
    bool until(const std::function<bool()>& isDone,
        std::optional<std::chrono::milliseconds> atMost = std::nullopt);

    /// Has the running until() look at what it waits for.
    void wake();

    /// Nothing is waited for from now on.
    void end();

    /// The time is up, or the wait was ended.
    bool isOver() const { return m_isEnded || m_deadline.hasExpired(); }

    /// It was ended before its time was up.
    bool isEnded() const { return m_isEnded; }

    std::chrono::milliseconds timeLeft() const;

private:
    QDeadlineTimer m_deadline;
    QEventLoop m_loop;
    bool m_isAwake = false;
    bool m_isEnded = false;
};

} // namespace tomely
