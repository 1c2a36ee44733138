// A label that a person can rename in place: a double click turns it into a text field, Return or
// leaving it makes it a label again. It does not know what it names.

#pragma once

#include <QLineEdit>
#include <QPointer>

namespace tomely {

class EditableLabel : public QLineEdit {
    Q_OBJECT

public:
    explicit EditableLabel(QWidget* parent = nullptr);

    /// What the label says. While a person is typing another text, that stays, and this is what
    /// Escape brings back.
    void setText(const QString& text);

    bool isEditing() const { return m_isEditing; }

    /// What it names, which gets the focus after renaming when nothing else had it before.
    void setBuddy(QWidget* buddy) { m_buddy = buddy; }

    /// Turns the label into a text field with the focus and all of its text selected.
    void startEditing();

    /// Takes over what was typed; nothing happens when nothing is being edited.
    void endEditing();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A person changed the text, and is done.
    void edited(const QString& text);

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void setEditing(bool isEditing);
    void becomeLabel();
    void describe();
    void followText();
    QSize sizeFor(int textWidth) const;

    QString m_labelText; // what it says while nobody edits it
    QPointer<QWidget> m_previousFocus;
    QPointer<QWidget> m_buddy;
    int m_shownWidth = 0; // of the text
    bool m_isEditing = false;
};

} // namespace tomely
