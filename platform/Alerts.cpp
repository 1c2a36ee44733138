#include "platform/Alerts.h"

#include <QCoreApplication>

namespace tomely {

Alert messageAlert(const QString& informativeText)
{
    return {informativeText, {QCoreApplication::translate("Alerts", "OK")}};
}

Alert confirmationAlert(const QString& informativeText)
{
    return {informativeText,
        {QCoreApplication::translate("Alerts", "Yes"), QCoreApplication::translate("Alerts", "No")},
        1, 1};
}

} // namespace tomely
