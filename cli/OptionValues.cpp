#include "cli/OptionValues.h"

#include "listwindow/engine/ColumnKind.h"

using namespace Qt::StringLiterals;

namespace tomely {

UsageError cannotTake(QLatin1StringView option, const QString& value)
{
    return {u"%1 cannot be \"%2\""_s.arg(option, value)};
}

std::optional<qint32> integerOption(const Arguments& arguments, QLatin1StringView option)
{
    const std::optional<QString> value = arguments.value(option);
    return value ? std::optional(integerValue(option, *value)) : std::nullopt;
}

qint32 integerValue(QLatin1StringView option, const QString& value)
{
    bool isNumber = false;
    const qint32 number = value.toInt(&isNumber);
    if (!isNumber)
        throw cannotTake(option, value);
    return number;
}

bool isCatalogueKey(qint32 key)
{
    return columnKind(key) != ColumnKind::None;
}

} // namespace tomely
