#include "document/ColumnCatalogue.h"

#include <algorithm>
#include <array>
#include <string_view>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

struct CatalogueRow {
    qint32 key;
    QLatin1StringView columnName;
    QLatin1StringView selectionName;
    qint32 position;
    qint32 width; // 0: not set
    FilterType filterType;
    bool centered;
};

// Widths differ by row for no reason but history; files of new collections carry them.
constexpr qint32 notShown = ColumnEntry::notShown;
constexpr std::array catalogue = std::to_array<CatalogueRow>({
    {0, "Title"_L1, "Title"_L1, 0, 258, FilterType::Text, false},
    {2, "Author"_L1, "Author"_L1, 1, 100, FilterType::Text, false},
    {26, "Publisher"_L1, "Publisher"_L1, notShown, 0, FilterType::Text, false},
    {6, "Rating"_L1, "Rating"_L1, notShown, 0, FilterType::Rating, true},
    {8, "Last Read"_L1, "Last Read Date"_L1, notShown, 0, FilterType::Date, false},
    {10, "Published"_L1, "Published Date"_L1, notShown, 0, FilterType::Date, false},
    {12, "Purchased"_L1, "Purchased Date"_L1, notShown, 0, FilterType::Date, false},
    {14, "First Read"_L1, "First Read Date"_L1, notShown, 0, FilterType::Date, false},
    {16, "Copyright"_L1, "Copyright Date"_L1, notShown, 0, FilterType::Date, false},
    {18, "Own"_L1, "Own"_L1, notShown, 0, FilterType::CheckBox, true},
    {20, "Signed"_L1, "Signed"_L1, notShown, 0, FilterType::CheckBox, true},
    {22, "First Edition"_L1, "First Edition"_L1, notShown, 0, FilterType::CheckBox, true},
    {24, "Read"_L1, "Read / Listened To"_L1, notShown, 0, FilterType::CheckBox, true},
    {28, "Pages"_L1, "Pages"_L1, notShown, 0, FilterType::Number, false},
    {30, "Price Paid"_L1, "Price Paid"_L1, notShown, 0, FilterType::Number, false},
    {32, "Est Value"_L1, "Est Value"_L1, notShown, 0, FilterType::Number, false},
    {34, "ISBN"_L1, "ISBN"_L1, notShown, 100, FilterType::Text, false},
    {36, "Location"_L1, "Location"_L1, notShown, 100, FilterType::Text, false},
    {38, "Lent To"_L1, "Lent To"_L1, notShown, 100, FilterType::Text, false},
    {40, "Notes"_L1, "Notes"_L1, notShown, 100, FilterType::Text, false},
    {78, "Est Value Date"_L1, "Est Value Date"_L1, notShown, 100, FilterType::Date, false},
    {80, "Lent Date"_L1, "Lent Date"_L1, notShown, 100, FilterType::Date, false},
    {82, "Price Paid From"_L1, "Price Paid From"_L1, notShown, 100, FilterType::Text, false},
    {84, "Type"_L1, "Type"_L1, notShown, 100, FilterType::BookType, false},
});

// The custom fields: runs of even keys.
struct CustomKeys {
    qint32 first;
    qint32 last;
    QLatin1StringView defaultLabel; // with a number from 1 on behind it
    FilterType filterType;
};

constexpr std::array customFields = std::to_array<CustomKeys>({
    {42, 54, "Custom Field "_L1, FilterType::Text},
    {56, 60, "Custom Date "_L1, FilterType::Date},
    {62, 76, "Custom Switch "_L1, FilterType::CheckBox},
});

/// The column under `key`, made at the given place when it is missing.
ColumnEntry& columnAt(ColumnDictionary& columns, qint32 key, qint32 position, qint32 width)
{
    const auto [place, isNew] = columns.try_emplace(keyText(key));
    ColumnEntry& column = place->second;
    if (isNew) {
        column.setKey(key);
        column.setPosition(position);
        column.setWidth(width);
    }
    return column;
}

} // namespace

LabelDictionary defaultCustomFieldLabels()
{
    LabelDictionary labels;
    for (const CustomKeys& run : customFields) {
        for (qint32 key = run.first; key <= run.last; key += 2)
            labels[key] = run.defaultLabel + QString::number((key - run.first) / 2 + 1);
    }
    return labels;
}

void initListColumns(ColumnDictionary& columns, const LabelDictionary& labels)
{
    for (const CatalogueRow& row : catalogue) {
        ColumnEntry& column = columnAt(columns, row.key, row.position, row.width);
        column.setColumnName(row.columnName);
        column.setSelectionName(row.selectionName);
        if (row.centered)
            column.setCentered(true);
        column.setFilterType(row.filterType);
    }
    initListColumns_CustomFields(columns, labels);
}

void initListColumns_CustomFields(ColumnDictionary& columns, const LabelDictionary& labels)
{
    for (const auto& [key, label] : labels) {
        ColumnEntry& column = columnAt(columns, key, ColumnEntry::notShown, 0);
        column.setColumnName(label);
        column.setSelectionName(customSelectionName(label));
        for (const CustomKeys& run : customFields) {
            if (key >= run.first && key <= run.last)
                column.setFilterType(run.filterType);
        }
    }
}

std::vector<const ColumnEntry*> shownColumns(const ColumnDictionary& columns)
{
    std::vector<const ColumnEntry*> shown;
    for (const auto& [key, column] : columns) {
        if (column.isShown())
            shown.push_back(&column);
    }
    std::ranges::stable_sort(shown, {}, &ColumnEntry::getPosition);
    qint32 lastPosition = -1;
    const auto gap = std::ranges::find_if(shown, [&lastPosition](const ColumnEntry* column) {
        const bool isGap = column->getPosition() > lastPosition + 1;
        lastPosition = column->getPosition();
        return isGap;
    });
    shown.erase(gap, shown.end());
    return shown;
}

QString customSelectionName(const QString& label)
{
    return "Custom: "_L1 + label;
}

} // namespace tomely
