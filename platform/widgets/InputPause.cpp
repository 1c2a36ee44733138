#include "platform/widgets/InputPause.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QWindow>

namespace tomely {

namespace {

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Close: // of a window, by its button
        return true;
    default:
        return false;
    }
}

} // namespace

InputPause::InputPause(std::function<void()> escaped) : m_escaped(std::move(escaped))
{
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    QCoreApplication::instance()->installEventFilter(this);
}

InputPause::~InputPause()
{
    QCoreApplication::instance()->removeEventFilter(this);
    QGuiApplication::restoreOverrideCursor();
}

bool InputPause::eventFilter(QObject* watched, QEvent* event)
{
    if (!isInput(event->type()))
        return QObject::eventFilter(watched, event);
    // Accepted, a shortcut comes as a plain key; everything else has found nobody.
    event->setAccepted(event->type() == QEvent::ShortcutOverride);
    if (event->type() == QEvent::KeyPress
        && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape)
        m_escaped();
    return true;
}

} // namespace tomely
