#include "cli/ExportCsvCommand.h"

#include "cli/Commands.h"
#include "cli/Failures.h"
#include "cli/OpenedCollection.h"
#include "cli/OptionValues.h"
#include "cli/ViewOptions.h"
#include "listwindow/engine/CsvExport.h"

#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr std::array options = std::to_array<Option>({
    {"--columns"_L1, "COLUMNS"_L1, "all (the default), or visible: those that the window shows"_L1},
    {"--dates"_L1, "DATES"_L1,
        "split (the default: a column for the month and one for the year), year, month (2001-03)"
        " or day (2001-03-01)"_L1},
    {"--groups"_L1, "GROUPS"_L1,
        "none (the default), flags (a column for each group) or names (one column)"_L1},
    {"--group-delimiter"_L1, "TEXT"_L1, "what stands between names of groups; the default is ;"_L1},
    {"--switches"_L1, "SWITCHES"_L1, "10 (the default: 1 and 0), truefalse or yn"_L1},
    {"--isbn"_L1, "ISBN"_L1,
        "one (the default), two (a column for ten characters, one for others) or none"_L1},
    {"--line-breaks"_L1, "BREAKS"_L1,
        "keep (the default), space or escape (\\n) for line breaks in texts"_L1},
});

using Columns = CsvOptions::ColumnSelection;
using Dates = CsvOptions::DateSelection;
using Groups = CsvOptions::GroupSelection;
using Switches = CsvOptions::CheckboxSelection;
using ISBNs = CsvOptions::ISBNSelection;
using LineBreaks = CsvOptions::CarriageReturnSelection;

constexpr std::array columnWords = std::to_array<Choice<Columns>>({
    {"all"_L1, Columns::All},
    {"visible"_L1, Columns::Visible},
});

constexpr std::array dateWords = std::to_array<Choice<Dates>>({
    {"split"_L1, Dates::MonthAndYear},
    {"year"_L1, Dates::Year},
    {"month"_L1, Dates::YearMonth},
    {"day"_L1, Dates::YearMonthDay},
});

constexpr std::array groupWords = std::to_array<Choice<Groups>>({
    {"none"_L1, Groups::None},
    {"flags"_L1, Groups::Flags},
    {"names"_L1, Groups::Names},
});

constexpr std::array switchWords = std::to_array<Choice<Switches>>({
    {"10"_L1, Switches::OneZero},
    {"truefalse"_L1, Switches::TrueFalse},
    {"yn"_L1, Switches::YesNo},
});

constexpr std::array isbnWords = std::to_array<Choice<ISBNs>>({
    {"one"_L1, ISBNs::One},
    {"two"_L1, ISBNs::Two},
    {"none"_L1, ISBNs::None},
});

constexpr std::array lineBreakWords = std::to_array<Choice<LineBreaks>>({
    {"keep"_L1, LineBreaks::Keep},
    {"space"_L1, LineBreaks::Space},
    {"escape"_L1, LineBreaks::Escape},
});

/// The choice of an option that is given; otherwise `selection` stays.
template <class Selection, std::size_t size>
void take(const Arguments& arguments, QLatin1StringView option,
    const std::array<Choice<Selection>, size>& words, Selection& selection)
{
    selection = choiceOption<Selection>(arguments, option, words).value_or(selection);
}

CsvOptions csvOptionsOf(const Arguments& arguments)
{
    CsvOptions csv;
    take(arguments, "--columns"_L1, columnWords, csv.columnSelection);
    take(arguments, "--dates"_L1, dateWords, csv.dateSelection);
    take(arguments, "--groups"_L1, groupWords, csv.groupSelection);
    csv.groupDelimeter = arguments.value("--group-delimiter"_L1).value_or(csv.groupDelimeter);
    take(arguments, "--switches"_L1, switchWords, csv.checkboxSelection);
    take(arguments, "--isbn"_L1, isbnWords, csv.isbnSelection);
    take(arguments, "--line-breaks"_L1, lineBreakWords, csv.carriageReturnSelection);
    return csv;
}

} // namespace

OptionGroup csvOptions()
{
    return {"CSV: how the file is written"_L1, options};
}

void runExportCsv(const Arguments& arguments, Output&)
{
    const ViewOptions view = ViewOptions::of(arguments);
    const CsvOptions csv = csvOptionsOf(arguments);
    const auto document = openCollection(arguments.operands[0]);
    // Without a view these are all books, in the file's own order.
    const std::vector<BookEntry*> books = displayedBooks(*document, view);
    const QString& out = arguments.operands[1];
    if (const FileResult result = CsvExport(*document, books, csv).write(out); !result.isOk())
        throw CommandFailure{out, result.error};
}

} // namespace tomely
