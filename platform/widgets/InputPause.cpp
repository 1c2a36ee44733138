#include "platform/widgets/InputPause.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>

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

/// Takes Escape, which was meant for a wait, away from windows for as long as it is held or pressed
/// again and again, and destroys itself then.
class EscapeAftermath : public QObject {
public:
    EscapeAftermath()
    {
        m_end.setSingleShot(true);
        m_end.setInterval(QApplication::doubleClickInterval());
        connect(&m_end, &QTimer::timeout, this, &QObject::deleteLater);
        setObjectName(QLatin1StringView("escapeAftermath"));
        setParent(QCoreApplication::instance());
    }

    void begin()
    {
        m_end.start();
        parent()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isKey = event->type() == QEvent::KeyPress
            || event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyRelease;
        if (!isKey || static_cast<const QKeyEvent*>(event)->key() != Qt::Key_Escape)
            return QObject::eventFilter(watched, event);
        if (event->type() == QEvent::KeyPress)
            m_end.start();
        event->accept(); // comes as a plain key then and not as a shortcut
        return true;
    }

private:
    QTimer m_end;
};

InputPause::InputPause(std::function<void()> escaped)
    : m_escaped(std::move(escaped))
    , m_aftermath(new EscapeAftermath)
{
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    QCoreApplication::instance()->installEventFilter(this);
}

InputPause::~InputPause()
{
    QCoreApplication::instance()->removeEventFilter(this);
    QGuiApplication::restoreOverrideCursor();
    m_aftermath->begin();
}

/// A question that blocks the program came up meanwhile, and no wait ends before it is answered.
bool InputPause::isAnswering() const
{
    const QWidget* const modal = QApplication::activeModalWidget();
    return modal && modal->windowModality() == Qt::ApplicationModal;
}

bool InputPause::eventFilter(QObject* watched, QEvent* event)
{
    if (!isInput(event->type()) || isAnswering())
        return QObject::eventFilter(watched, event);
    // Accepted, a shortcut comes as a plain key; everything else has found nobody.
    event->setAccepted(event->type() == QEvent::ShortcutOverride);
    const bool isEscape = event->type() == QEvent::KeyPress
        && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (isEscape || event->type() == QEvent::Close)
        m_escaped();
    return true;
}

} // namespace tomely
