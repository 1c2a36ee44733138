#include "document/ColumnCatalogue.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <string_view>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

struct CatalogueRow {
    qint32 key;
    const char* columnName;
    const char* selectionName;
    qint32 position;
    qint32 width; // 0: not set
    FilterType filterType;
    bool centered;
};

// Widths differ by row for no reason but history; files of new collections carry them.
constexpr qint32 notShown = ColumnEntry::notShown;
constexpr std::array catalogue = std::to_array<CatalogueRow>({
    {0, QT_TRANSLATE_NOOP("Columns", "Title"), QT_TRANSLATE_NOOP("Columns", "Title"), 0, 258,
        FilterType::Text, false},
    {2, QT_TRANSLATE_NOOP("Columns", "Author"), QT_TRANSLATE_NOOP("Columns", "Author"), 1, 100,
        FilterType::Text, false},
    {26, QT_TRANSLATE_NOOP("Columns", "Publisher"), QT_TRANSLATE_NOOP("Columns", "Publisher"),
        notShown, 0, FilterType::Text, false},
    {6, QT_TRANSLATE_NOOP("Columns", "Rating"), QT_TRANSLATE_NOOP("Columns", "Rating"), notShown, 0,
        FilterType::Rating, true},
    {8, QT_TRANSLATE_NOOP("Columns", "Last Read"), QT_TRANSLATE_NOOP("Columns", "Last Read Date"),
        notShown, 0, FilterType::Date, false},
    {10, QT_TRANSLATE_NOOP("Columns", "Published"), QT_TRANSLATE_NOOP("Columns", "Published Date"),
        notShown, 0, FilterType::Date, false},
    {12, QT_TRANSLATE_NOOP("Columns", "Purchased"), QT_TRANSLATE_NOOP("Columns", "Purchased Date"),
        notShown, 0, FilterType::Date, false},
    {14, QT_TRANSLATE_NOOP("Columns", "First Read"),
        QT_TRANSLATE_NOOP("Columns", "First Read Date"), notShown, 0, FilterType::Date, false},
    {16, QT_TRANSLATE_NOOP("Columns", "Copyright"), QT_TRANSLATE_NOOP("Columns", "Copyright Date"),
        notShown, 0, FilterType::Date, false},
    {18, QT_TRANSLATE_NOOP("Columns", "Own"), QT_TRANSLATE_NOOP("Columns", "Own"), notShown, 0,
        FilterType::CheckBox, true},
    {20, QT_TRANSLATE_NOOP("Columns", "Signed"), QT_TRANSLATE_NOOP("Columns", "Signed"), notShown,
        0, FilterType::CheckBox, true},
    {22, QT_TRANSLATE_NOOP("Columns", "First Edition"),
        QT_TRANSLATE_NOOP("Columns", "First Edition"), notShown, 0, FilterType::CheckBox, true},
    {24, QT_TRANSLATE_NOOP("Columns", "Read"), QT_TRANSLATE_NOOP("Columns", "Read / Listened To"),
        notShown, 0, FilterType::CheckBox, true},
    {28, QT_TRANSLATE_NOOP("Columns", "Pages"), QT_TRANSLATE_NOOP("Columns", "Pages"), notShown, 0,
        FilterType::Number, false},
    {30, QT_TRANSLATE_NOOP("Columns", "Price Paid"), QT_TRANSLATE_NOOP("Columns", "Price Paid"),
        notShown, 0, FilterType::Number, false},
    {32, QT_TRANSLATE_NOOP("Columns", "Est Value"), QT_TRANSLATE_NOOP("Columns", "Est Value"),
        notShown, 0, FilterType::Number, false},
    {34, QT_TRANSLATE_NOOP("Columns", "ISBN"), QT_TRANSLATE_NOOP("Columns", "ISBN"), notShown, 100,
        FilterType::Text, false},
    {36, QT_TRANSLATE_NOOP("Columns", "Location"), QT_TRANSLATE_NOOP("Columns", "Location"),
        notShown, 100, FilterType::Text, false},
    {38, QT_TRANSLATE_NOOP("Columns", "Lent To"), QT_TRANSLATE_NOOP("Columns", "Lent To"), notShown,
        100, FilterType::Text, false},
    {40, QT_TRANSLATE_NOOP("Columns", "Notes"), QT_TRANSLATE_NOOP("Columns", "Notes"), notShown,
        100, FilterType::Text, false},
    {78, QT_TRANSLATE_NOOP("Columns", "Est Value Date"),
        QT_TRANSLATE_NOOP("Columns", "Est Value Date"), notShown, 100, FilterType::Date, false},
    {80, QT_TRANSLATE_NOOP("Columns", "Lent Date"), QT_TRANSLATE_NOOP("Columns", "Lent Date"),
        notShown, 100, FilterType::Date, false},
    {82, QT_TRANSLATE_NOOP("Columns", "Price Paid From"),
        QT_TRANSLATE_NOOP("Columns", "Price Paid From"), notShown, 100, FilterType::Text, false},
    {84, QT_TRANSLATE_NOOP("Columns", "Type"), QT_TRANSLATE_NOOP("Columns", "Type"), notShown, 100,
        FilterType::BookType, false},
});

// The custom fields: runs of even keys.
struct CustomKeys {
    qint32 first;
    qint32 last;
    const char* defaultLabel; // with the number from 1 on
    FilterType filterType;
};

constexpr std::array customFields = std::to_array<CustomKeys>({
    {42, 54, QT_TRANSLATE_NOOP("Columns", "Custom Field %1"), FilterType::Text},
    {56, 60, QT_TRANSLATE_NOOP("Columns", "Custom Date %1"), FilterType::Date},
    {62, 76, QT_TRANSLATE_NOOP("Columns", "Custom Switch %1"), FilterType::CheckBox},
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
            labels[key] = QString::fromLatin1(run.defaultLabel).arg((key - run.first) / 2 + 1);
    }
    return labels;
}

void initListColumns(ColumnDictionary& columns, const LabelDictionary& labels)
{
    for (const CatalogueRow& row : catalogue) {
        ColumnEntry& column = columnAt(columns, row.key, row.position, row.width);
        column.setColumnName(QString::fromLatin1(row.columnName));
        column.setSelectionName(QString::fromLatin1(row.selectionName));
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
