// The mouse and keys of the display itself, for what synthetic events cannot show: drags between
// windows and programs. And stories that go on while a drag keeps the program in a loop of its own.

#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPoint>
#include <QProcess>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <utility>
#include <vector>

namespace tomely::samples {

/// One step of the display's own input. False when it could not be sent.
inline bool sendInput(const QStringList& arguments)
{
    return QProcess::execute(QStringLiteral("xdotool"), arguments) == 0;
}

/// To a point of the screen in device pixels.
inline bool moveMouse(QPoint point)
{
    return sendInput(
        {QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())});
}

inline bool pressMouse()
{
    return sendInput({QStringLiteral("mousedown"), QStringLiteral("1")});
}

inline bool releaseMouse()
{
    return sendInput({QStringLiteral("mouseup"), QStringLiteral("1")});
}

inline bool typeKey(const QString& key)
{
    return sendInput({QStringLiteral("key"), key});
}

/// Where a point of a widget is on the screen, in device pixels.
inline QPoint onScreen(const QWidget& widget, QPoint point)
{
    return (QPointF(widget.mapToGlobal(point)) * widget.devicePixelRatioF()).toPoint();
}

/// Steps of which each begins once the one before has come about. A timer drives them, so they go
/// on within a nested event loop. A story that gets stuck lets go of the mouse, leaves any drag and
/// tells where it got stuck.
class InputStory {
public:
    /// Does `act` once and waits for `done`.
    void once(const char* name, std::function<void()> act, std::function<bool()> done)
    {
        m_steps.push_back({name, std::move(act), std::move(done), false});
    }

    /// Does `act` again and again until `done`: a display forgets a move that nobody waited for.
    void repeat(const char* name, std::function<void()> act, std::function<bool()> done)
    {
        m_steps.push_back({name, std::move(act), std::move(done), true});
    }

    /// Runs all steps; the name of the one that did not come about, or nothing.
    QByteArray run(int millisecondsPerStep = 10000)
    {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer,
            [this, millisecondsPerStep] { goOn(millisecondsPerStep); });
        m_sinceStep.start();
        timer.start(20);
        while (m_current < m_steps.size() && m_stuck.isEmpty())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return m_stuck;
    }

private:
    struct Step {
        QByteArray name;
        std::function<void()> act;
        std::function<bool()> done;
        bool again = false;
    };

    void goOn(int millisecondsPerStep)
    {
        if (m_current >= m_steps.size() || !m_stuck.isEmpty())
            return;
        const Step& step = m_steps[m_current];
        if (!m_acted || step.again)
            step.act();
        m_acted = true;
        if (step.done()) {
            ++m_current;
            m_acted = false;
            m_sinceStep.start();
        } else if (m_sinceStep.hasExpired(millisecondsPerStep)) {
            giveUp(step.name);
        }
    }

    void giveUp(const QByteArray& name)
    {
        m_stuck = name;
        typeKey(QStringLiteral("Escape"));
        releaseMouse();
    }

    std::vector<Step> m_steps;
    std::size_t m_current = 0;
    bool m_acted = false;
    QElapsedTimer m_sinceStep;
    QByteArray m_stuck;
};

} // namespace tomely::samples
