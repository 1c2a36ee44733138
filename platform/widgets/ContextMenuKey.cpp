#include "platform/widgets/ContextMenuKey.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QWidget>

namespace tomely {

bool ContextMenuKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || watched != QApplication::focusWidget())
        return false;
    const QKeyCombination key = static_cast<QKeyEvent*>(event)->keyCombination();
    if (key != QKeyCombination(Qt::SHIFT, Qt::Key_F10))
        return false;
    auto& widget = *static_cast<QWidget*>(watched);
    const QPoint place = widget.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent menuEvent(
        QContextMenuEvent::Keyboard, place, widget.mapToGlobal(place), Qt::NoModifier);
    QApplication::sendEvent(&widget, &menuEvent);
    return true;
}

} // namespace tomely
