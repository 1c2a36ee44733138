#include "listwindow/engine/CsvChoices.h"

#include "platform/UserDefaults.h"

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// The section [ExportCSV] of the preferences file: integers, and a text.
constexpr auto filterKey = "ExportCSV/FilterSelection"_L1;
constexpr auto columnKey = "ExportCSV/ColumnSelection"_L1;
constexpr auto dateKey = "ExportCSV/DateSelection"_L1;
constexpr auto groupKey = "ExportCSV/GroupSelection"_L1;
constexpr auto delimeterKey = "ExportCSV/GroupDelimeter"_L1;
constexpr auto checkboxKey = "ExportCSV/CheckboxSelection"_L1;
constexpr auto isbnKey = "ExportCSV/ISBNSelection"_L1;
constexpr auto carriageReturnKey = "ExportCSV/CarriageReturnSelection"_L1;

/// Choices count from 0, the default, to `last`.
template <class Selection>
Selection read(const UserDefaults& defaults, QLatin1StringView key, Selection last)
{
    const qint64 number = defaults.integerForKey(key);
    const bool isOffered = number >= 0 && number <= static_cast<qint64>(last);
    return isOffered ? static_cast<Selection>(number) : Selection{};
}

template <class Selection>
void write(UserDefaults& defaults, QLatin1StringView key, Selection selection)
{
    defaults.setInteger(key, static_cast<qint64>(selection));
}

} // namespace

CsvChoices CsvChoices::of(const UserDefaults& defaults)
{
    CsvChoices choices;
    CsvOptions& options = choices.options;
    choices.filterSelection = read(defaults, filterKey, ExportFilter::DisplayedBooks);
    options.columnSelection = read(defaults, columnKey, CsvOptions::ColumnSelection::Visible);
    options.dateSelection = read(defaults, dateKey, CsvOptions::DateSelection::YearMonthDay);
    options.groupSelection = read(defaults, groupKey, CsvOptions::GroupSelection::Names);
    if (defaults.contains(delimeterKey))
        options.groupDelimeter = defaults.stringForKey(delimeterKey);
    options.checkboxSelection = read(defaults, checkboxKey, CsvOptions::CheckboxSelection::YesNo);
    options.isbnSelection = read(defaults, isbnKey, CsvOptions::ISBNSelection::None);
    options.carriageReturnSelection =
        read(defaults, carriageReturnKey, CsvOptions::CarriageReturnSelection::Escape);
    return choices;
}

void CsvChoices::remember(UserDefaults& defaults) const
{
    write(defaults, filterKey, filterSelection);
    write(defaults, columnKey, options.columnSelection);
    write(defaults, dateKey, options.dateSelection);
    write(defaults, groupKey, options.groupSelection);
    defaults.setString(delimeterKey, options.groupDelimeter);
    write(defaults, checkboxKey, options.checkboxSelection);
    write(defaults, isbnKey, options.isbnSelection);
    write(defaults, carriageReturnKey, options.carriageReturnSelection);
}

} // namespace tomely
