// A text field with a list of the texts that were used before. While a person types at the end of
// the text, it shows the rest of the first entry that begins so. What the list is about is not its
// business.

#pragma once

#include <QComboBox>
#include <QStringList>

class QStringListModel;

namespace tomely {

class CompletingComboBox : public QComboBox {
    Q_OBJECT

public:
    explicit CompletingComboBox(QWidget* parent = nullptr);

    /// Replaces the list, which keeps this order. The field is left alone with its text, cursor,
    /// selection and what can be undone.
    void setValues(const QStringList& values);

    QStringList values() const;

    /// The first entry that begins with `typed` in any letter case, in its own letter case. Null
    /// when there is none or nothing was typed.
    QString completion(const QString& typed) const;

    /// Three rows for a list of fewer than four entries, otherwise one for each up to fifteen.
    void updateVisibleItems();

    void showPopup() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Only the field that has the focus turns with the wheel: a form that scrolls under the mouse
    /// must not change its values.
    void wheelEvent(QWheelEvent* event) override;

private:
    void selectEntryOfText();

    QStringListModel* m_model;
};

} // namespace tomely
