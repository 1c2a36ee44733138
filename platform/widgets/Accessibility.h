// What the toolkit does not tell by itself to those who do not see a window.

#pragma once

#include <QAccessible>

class QComboBox;
class QLineEdit;
class QWidget;

namespace tomely {

/// Screen readers are told that a widget of our own is such a thing and not just a place that holds
/// others.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// Says what a combo box is for that has no label beside it. The toolkit takes what is chosen for
/// its name, so that the name alone would not be heard.
void setAccessiblePurpose(QComboBox& comboBox, const QString& purpose);

/// Names the button within the line that clears it, if it has one.
void nameClearButton(QLineEdit& line);

} // namespace tomely
