#include "cli/LookOptions.h"

#include "cli/OpenedCollection.h"
#include "cli/OptionValues.h"
#include "listwindow/engine/ColumnKind.h"

#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr std::array options = std::to_array<Option>({
    {"--columns"_L1, "COLUMNS"_L1,
        "visible (the default: what the window shows), all, or column keys with commas between"
        " them, where 4 is the row number"_L1},
    {"--format"_L1, "FORMAT"_L1, "table (the default, fitted to the terminal), tsv or json"_L1},
});

constexpr std::array formats = std::to_array<Choice<ListFormat>>({
    {"table"_L1, ListFormat::Table},
    {"tsv"_L1, ListFormat::Tsv},
    {"json"_L1, ListFormat::Json},
});

constexpr qint32 noKey = -1; // a key that no cell has

std::vector<qint32> allCatalogueKeys()
{
    std::vector<qint32> keys;
    for (qint32 key = 0; key <= ColumnKey::Last; ++key) {
        if (isCatalogueKey(key))
            keys.push_back(key);
    }
    return keys;
}

std::vector<qint32> parseKeys(const QString& text)
{
    std::vector<qint32> keys;
    for (const QString& part : text.split(u',')) {
        const qint32 key = integerValue("--columns"_L1, part);
        const bool isKnown = key == ColumnKey::RowNumber || isCatalogueKey(key);
        // Twice the same name in one JSON object is nothing that a reader could rely on.
        if (!isKnown || std::ranges::find(keys, key) != keys.end())
            throw cannotTake("--columns"_L1, text);
        keys.push_back(key);
    }
    return keys;
}

// Numbers line up at the right; the window centres what the catalogue centres.
Alignment alignmentOf(const ColumnEntry& column, qint32 key)
{
    if (column.getCentered())
        return Alignment::Centre;
    const ColumnKind kind = columnKind(key);
    const bool isNumber =
        key == ColumnKey::RowNumber || kind == ColumnKind::Integer || kind == ColumnKind::Real;
    return isNumber ? Alignment::Right : Alignment::Left;
}

PrintedColumn printedColumn(const ColumnEntry& column)
{
    const qint32 key = keyNumber(column.getKey()).value_or(noKey);
    return {column.getKey(), key, {column.getColumnName(), alignmentOf(column, key)}};
}

/// The column of `key` in the collection, or as a new collection has it: a file need not hold a
/// label for every custom field. The row number has no record unless a file brings one.
ColumnEntry columnOf(const BookListDocument& document, qint32 key)
{
    const ColumnDictionary& columns = document.getListColumns();
    if (const auto place = columns.find(keyText(key)); place != columns.end())
        return place->second;
    static const ColumnDictionary defaults = CollectionContents::makeNew().columns;
    if (const auto place = defaults.find(keyText(key)); place != defaults.end())
        return place->second;
    ColumnEntry rowNumber;
    rowNumber.setKey(key);
    rowNumber.setColumnName(u"#"_s);
    return rowNumber;
}

} // namespace

OptionGroup LookOptions::group()
{
    return {"LOOK: how they are printed"_L1, options};
}

LookOptions LookOptions::of(const Arguments& arguments)
{
    LookOptions look;
    const QString columns = arguments.value("--columns"_L1).value_or(u"visible"_s);
    if (columns == "all"_L1) {
        look.columns = Columns::All;
    } else if (columns != "visible"_L1) {
        look.columns = Columns::Keys;
        look.columnKeys = parseKeys(columns);
    }
    look.format =
        choiceOption<ListFormat>(arguments, "--format"_L1, formats).value_or(ListFormat::Table);
    return look;
}

std::vector<PrintedColumn> printedColumns(const BookListDocument& document, const LookOptions& look)
{
    std::vector<PrintedColumn> printed;
    if (look.columns == LookOptions::Columns::Visible) {
        for (const ColumnEntry* column : shownColumns(document.getListColumns()))
            printed.push_back(printedColumn(*column));
        return printed;
    }
    const bool isAll = look.columns == LookOptions::Columns::All;
    for (const qint32 key : isAll ? allCatalogueKeys() : look.columnKeys)
        printed.push_back(printedColumn(columnOf(document, key)));
    return printed;
}

} // namespace tomely
