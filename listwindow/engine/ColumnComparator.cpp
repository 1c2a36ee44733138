#include "listwindow/engine/ColumnComparator.h"

#include "document/DisplayNames.h"
#include "model/CaseFolding.h"
#include "platform/LenientNumbers.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr qint32 firstCustomKey = 42;
constexpr qint32 firstKeyAfterCustom = 78;

// Any of them marks a default name, whatever kind of field bears it.
constexpr std::array defaultNamePrefixes = {
    "Custom: Custom Field "_L1, "Custom: Custom Date "_L1, "Custom: Custom Switch "_L1};

enum class ColumnClass { BuiltIn, NamedCustom, UnnamedCustom };

ColumnClass columnClass(const ColumnEntry& column)
{
    const qint32 key = leadingInt(column.getKey());
    if (key < firstCustomKey || key >= firstKeyAfterCustom)
        return ColumnClass::BuiltIn;
    const QString name = column.getSelectionName();
    const bool hasDefaultName = std::ranges::any_of(
        defaultNamePrefixes, [&name](QLatin1StringView prefix) { return name.startsWith(prefix); });
    return hasDefaultName ? ColumnClass::UnnamedCustom : ColumnClass::NamedCustom;
}

} // namespace

bool precedes(const ColumnEntry& left, const ColumnEntry& right)
{
    const ColumnClass leftClass = columnClass(left);
    const ColumnClass rightClass = columnClass(right);
    if (leftClass != rightClass)
        return leftClass < rightClass;
    return lessIgnoringCase(displaySelectionName(left), displaySelectionName(right));
}

std::vector<const ColumnEntry*> sortedColumns(const ColumnDictionary& columns)
{
    std::vector<const ColumnEntry*> sorted;
    sorted.reserve(columns.size());
    for (const auto& [key, column] : columns)
        sorted.push_back(&column);
    std::ranges::stable_sort(sorted,
        [](const ColumnEntry* left, const ColumnEntry* right) { return precedes(*left, *right); });
    return sorted;
}

} // namespace tomely
