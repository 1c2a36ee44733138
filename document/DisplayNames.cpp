#include "document/DisplayNames.h"

#include "document/ColumnCatalogue.h"
#include "model/BookEntry.h"
#include "model/MonthNames.h"
#include "platform/LenientNumbers.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

QString translated(const char* context, const QString& text)
{
    return QCoreApplication::translate(context, text.toUtf8().constData());
}

/// The custom fields as new collections name them.
const LabelDictionary& defaultLabels()
{
    static const LabelDictionary labels = defaultCustomFieldLabels();
    return labels;
}

bool isCustom(qint32 columnKey)
{
    return defaultLabels().contains(columnKey);
}

} // namespace

QString displayName(const ColumnEntry& column)
{
    const qint32 key = leadingInt(column.getKey());
    return isCustom(key) ? displayLabel(key, column.getColumnName())
                         : translated("Columns", column.getColumnName());
}

QString displaySelectionName(const ColumnEntry& column)
{
    const qint32 key = leadingInt(column.getKey());
    if (!isCustom(key))
        return translated("Columns", column.getSelectionName());
    const QString prefix = customSelectionName({});
    if (!column.getSelectionName().startsWith(prefix))
        return column.getSelectionName();
    return QCoreApplication::translate("Columns", "Custom: %1")
        .arg(displayLabel(key, column.getSelectionName().sliced(prefix.size())));
}

QString displayLabel(qint32 columnKey, const QString& label)
{
    const auto place = defaultLabels().find(columnKey);
    if (place == defaultLabels().end() || place->second != label)
        return label;
    const qsizetype number = label.lastIndexOf(u' ') + 1;
    return translated("Columns", label.first(number) + "%1"_L1).arg(label.sliced(number));
}

QString displayType(qint32 type)
{
    return translated("BookType", BookEntry::typeText(type));
}

QString displayMonth(qint32 month)
{
    return translated("Months", monthName(month));
}

QString displayDate(qint32 month, const QString& year)
{
    if (month < 1)
        return year;
    const QString name = displayMonth(month);
    //: A month and a year, as in "June, 2001"
    return year.isEmpty() ? name : QCoreApplication::translate("Months", "%1, %2").arg(name, year);
}

} // namespace tomely
