#include "platform/widgets/Accessibility.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr auto roleProperty = "tomelyAccessibleRole";

QAccessibleInterface* interfaceWithRole(const QString& /*className*/, QObject* object)
{
    const QVariant role = object->property(roleProperty);
    auto* const widget = qobject_cast<QWidget*>(object);
    if (!widget || !role.isValid())
        return nullptr;
    return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    widget.setProperty(roleProperty, static_cast<int>(role));
    QAccessible::installFactory(interfaceWithRole); // once, however often it is called
    // What it was taken for until now, if anybody asked.
    if (QAccessibleInterface* const old = QAccessible::queryAccessibleInterface(&widget))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(old));
}

void setAccessiblePurpose(QComboBox& comboBox, const QString& purpose)
{
    comboBox.setAccessibleName(purpose);
    comboBox.setAccessibleDescription(purpose);
}

void nameClearButton(QLineEdit& line)
{
    // It has a name of the toolkit's own and no other way to it.
    if (auto* const clear = line.findChild<QAction*>("_q_qlineeditclearaction"_L1))
        clear->setText(QCoreApplication::translate("Accessibility", "Clear"));
}

} // namespace tomely
