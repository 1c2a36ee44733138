#include "cli/Commands.h"
#include "cli/ExportCsvCommand.h"
#include "cli/LookOptions.h"
#include "cli/LookupCommand.h"
#include "cli/ViewOptions.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

std::vector<Command> makeCommands()
{
    return {
        {"new"_L1, "FILE"_L1, "makes an empty collection"_L1,
            "The collection has the groups and columns of every new one. A file that is there\n"
            "already is never replaced.\n"_L1,
            1, 1, {}, runNew},
        {"info"_L1, "FILE"_L1, "prints what a collection is made of"_L1,
            "Prints a line each for the file's version, the numbers of books and pictures, every\n"
            "group, the last book number, the last group key, the sort field, the visible columns\n"
            "and every label of a custom field.\n"_L1,
            1, 1, {}, runInfo},
        {"list"_L1, "FILE [VIEW] [LOOK]"_L1, "prints what the list window would show"_L1,
            "Prints the books of a group that pass a filter, in the order of a sort field.\n"_L1, 1,
            1, {ViewOptions::group(), LookOptions::group()}, runList},
        {"dump"_L1, "FILE"_L1, "prints everything in a collection as JSON"_L1,
            "Pictures are represented by their sizes and SHA-1 digests.\n"_L1, 1, 1, {}, runDump},
        {"export-csv"_L1, "FILE OUT [VIEW] [CSV]"_L1, "writes books as comma-separated values"_L1,
            "Writes the books of a group that pass a filter, in the order of a sort field,\n"
            "for spreadsheets. OUT is UTF-16 and is replaced in one step.\n"_L1,
            2, 2, {ViewOptions::group(), csvOptions()}, runExportCsv},
        {"export-xml"_L1, "FILE OUT [VIEW]"_L1, "writes books as an XML file"_L1,
            "Writes the books of a group that pass a filter, in the order of a sort field,\n"
            "without their pictures and groups. OUT is replaced in one step.\n"_L1,
            2, 2, {ViewOptions::group()}, runExportXml},
        {"import-xml"_L1, "FILE IN"_L1, "adds the books of an XML file"_L1,
            "Every book of IN is added to the collection, whether or not it is there\n"
            "already, and FILE is saved. When IN cannot be read, FILE is not touched.\n"_L1,
            2, 2, {}, runImportXml},
        {"rewrite"_L1, "FILE OUT"_L1, "writes a collection in the current version"_L1,
            "Reads a collection of any supported version and writes it to OUT, which may be FILE\n"
            "and is replaced in one step.\n"_L1,
            2, 2, {}, runRewrite},
        {"check"_L1, "FILE"_L1, "reads a whole collection and says whether it is sound"_L1,
            "Prints how many books, groups and pictures the file holds, and its version. Of a\n"
            "damaged file it tells the first thing that is wrong, and where, and the exit status\n"
            "is 1.\n"_L1,
            1, 1, {}, runCheck},
        {"lookup"_L1, "ISBN [--json]"_L1, "asks web services for a book"_L1,
            "Prints a line each for the book's title, author, ISBN, publisher, pages, date\n"
            "of publication and the address of its cover. The ISBN may be written with\n"
            "hyphens. The preferences of the window count here, too. When no service knows\n"
            "the book, the exit status is 1.\n"_L1,
            1, 1, {lookupOptions()}, runLookup},
        {"help"_L1, "[COMMAND]"_L1, "explains a command"_L1, ""_L1, 0, 1, {}, runHelp},
    };
}

} // namespace

const std::vector<Command>& commands()
{
    static const std::vector<Command> table = makeCommands();
    return table;
}

const Command* findCommand(const QString& name)
{
    const auto found = std::ranges::find(commands(), name, &Command::name);
    return found == commands().end() ? nullptr : &*found;
}

} // namespace tomely
