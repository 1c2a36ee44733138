// A pop-up menu of choices that stand for numbers. A number that is none of the choices is shown as
// itself, so that opening and saving a book does not change it.

#pragma once

#include <QComboBox>

namespace tomely {

class PopUpButton : public QComboBox {
    Q_OBJECT

public:
    explicit PopUpButton(QWidget* parent = nullptr);

    void addTaggedItem(const QString& text, qint32 tag);

    /// The tag of the selected item; 0 when none is selected.
    qint32 selectedTag() const;

    /// Selects the first item with the tag. When no item has it, an item with the number as its
    /// text is added to this button and selected.
    void selectTag(qint32 tag);

protected:
    /// Only the button that has the focus turns with the wheel: a form that scrolls under the mouse
    /// must not change its values.
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace tomely
