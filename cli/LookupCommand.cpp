#include "cli/LookupCommand.h"

#include "cli/Commands.h"
#include "cli/Failures.h"
#include "cli/JsonWriter.h"
#include "cli/Output.h"
#include "cli/PlainText.h"
#include "editor/lookup/BookLookup.h"
#include "editor/lookup/LookupSettings.h"
#include "model/NormalizedISBN.h"
#include "platform/network/UrlFetch.h"
#include "platform/UserDefaults.h"

#include <QCoreApplication>

#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr QLatin1StringView jsonOption = "--json"_L1;

constexpr std::array options = std::to_array<Option>({
    {jsonOption, {}, "prints one JSON object, with null for what is not known"_L1},
});

struct Line {
    QLatin1StringView name;
    QString value; // null when not known
};

auto linesOf(const BookLookup& lookup)
{
    return std::to_array<Line>({
        {"title"_L1, lookup.getTitle()},
        {"author"_L1, lookup.getAuthor()},
        {"isbn"_L1, lookup.getISBN()},
        {"publisher"_L1, lookup.getPublisher()},
        {"pages"_L1, lookup.getNumberOfPages()},
        {"published"_L1, lookup.getPublicationDate()},
        {"cover"_L1, lookup.getBestImageURL(/*ignoreLarge=*/false)},
    });
}

void printLines(const BookLookup& lookup, Output& output)
{
    for (const Line& line : linesOf(lookup)) {
        output.write(onOneLine(line.name + ": "_L1 + line.value));
        output.write("\n");
    }
}

void printJson(const BookLookup& lookup, Output& output)
{
    JsonWriter json(output);
    json.beginObject(JsonWriter::Layout::Lines);
    for (const Line& line : linesOf(lookup)) {
        json.name(line.name);
        json.text(line.value);
    }
    json.endObject();
}

} // namespace

OptionGroup lookupOptions()
{
    return {"Options:"_L1, options};
}

void printLookup(const QString& typedISBN, BookFormat format, const UserDefaults& defaults,
    UrlFetch& fetch, Output& output)
{
    const QString isbn = normalizedISBN(typedISBN);
    if (isbn.isEmpty())
        throw UsageError{"there is no ISBN in \""_L1 + typedISBN + u'"'};
    const BookLookup lookup = BookLookup::initWithISBN(isbn, LookupSettings::of(defaults), fetch);
    if (lookup.hasLoadError())
        throw CommandFailure{typedISBN, u"Book lookup did not find the requested book."_s};
    if (format == BookFormat::Json)
        printJson(lookup, output);
    else
        printLines(lookup, output);
}

void runLookup(const Arguments& arguments, Output& output)
{
    // The network needs an event loop, and some versions of the toolkit warn on standard error when
    // its application object meets a locale that is not UTF-8. Nothing printed depends on it.
    qputenv("LC_ALL", "C.UTF-8");
    char name[] = "tomely-cli";
    std::array<char*, 2> programArguments{name, nullptr};
    int argumentCount = 1;
    const QCoreApplication application(argumentCount, programArguments.data());
    const UserDefaults defaults;
    UrlFetch fetch;
    const BookFormat format = arguments.value(jsonOption) ? BookFormat::Json : BookFormat::Lines;
    printLookup(arguments.operands.front(), format, defaults, fetch, output);
}

} // namespace tomely
