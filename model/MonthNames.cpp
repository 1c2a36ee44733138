#include "model/MonthNames.h"

#include <QCoreApplication>

#include <array>

namespace tomely {

namespace {

constexpr std::array monthNames = {QT_TRANSLATE_NOOP("Months", "January"),
    QT_TRANSLATE_NOOP("Months", "February"), QT_TRANSLATE_NOOP("Months", "March"),
    QT_TRANSLATE_NOOP("Months", "April"), QT_TRANSLATE_NOOP("Months", "May"),
    QT_TRANSLATE_NOOP("Months", "June"), QT_TRANSLATE_NOOP("Months", "July"),
    QT_TRANSLATE_NOOP("Months", "August"), QT_TRANSLATE_NOOP("Months", "September"),
    QT_TRANSLATE_NOOP("Months", "October"), QT_TRANSLATE_NOOP("Months", "November"),
    QT_TRANSLATE_NOOP("Months", "December")};

} // namespace

QString monthName(qint32 month)
{
    if (month < 1 || month > static_cast<qint32>(monthNames.size()))
        return {};
    return QString::fromLatin1(monthNames.at(static_cast<std::size_t>(month - 1)));
}

} // namespace tomely
