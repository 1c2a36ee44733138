#include "editor/EditingEnd.h"

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>

#include <utility>

namespace tomely {

namespace {

bool comesBack(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason
        || reason == Qt::MenuBarFocusReason;
}

bool isHandBusy()
{
    return QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget();
}

} // namespace

EditingEnd::EditingEnd(QLineEdit& field) : QObject(&field), m_field(field)
{
    field.installEventFilter(this);
    connect(&field, &QLineEdit::returnPressed, this, [this] { end(Way::Return); });
}

bool EditingEnd::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_field && event->type() == QEvent::FocusOut
        && !comesBack(static_cast<const QFocusEvent*>(event)->reason()))
        end(Way::FocusOut);
    // What the hand is busy with ends with one of these, of whatever window.
    if (m_isPending
        && (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::Hide
            || event->type() == QEvent::Drop || event->type() == QEvent::DragLeave))
        tellLater();
    return QObject::eventFilter(watched, event);
}

void EditingEnd::end(Way way)
{
    m_way = way;
    if (!std::exchange(m_isPending, true))
        QCoreApplication::instance()->installEventFilter(this);
    tellLater();
}

void EditingEnd::tellLater()
{
    QMetaObject::invokeMethod(this, &EditingEnd::tell, Qt::QueuedConnection);
}

void EditingEnd::tell()
{
    if (!m_isPending || (m_way == Way::FocusOut && isHandBusy()))
        return;
    m_isPending = false;
    QCoreApplication::instance()->removeEventFilter(this);
    // Who is back already has not finished.
    if (m_way == Way::Return || !m_field.hasFocus())
        Q_EMIT editingEnded();
}

} // namespace tomely
