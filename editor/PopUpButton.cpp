#include "editor/PopUpButton.h"

#include <QWheelEvent>

namespace tomely {

PopUpButton::PopUpButton(QWidget* parent) : QComboBox(parent)
{
    // The wheel is not to bring the focus along either.
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
}

void PopUpButton::addTaggedItem(const QString& text, qint32 tag)
{
    addItem(text, tag);
}

qint32 PopUpButton::selectedTag() const
{
    return currentData().toInt();
}

void PopUpButton::selectTag(qint32 tag)
{
    if (findData(tag) < 0)
        addTaggedItem(QString::number(tag), tag);
    setCurrentIndex(findData(tag));
}

void PopUpButton::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

} // namespace tomely
