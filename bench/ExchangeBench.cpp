// Writing the files that other programs read and reading them back, beside what writing their bytes
// costs and what the parser alone costs.

#include "bench/ByteFloors.h"
#include "bench/Libraries.h"
#include "listwindow/engine/CsvExport.h"
#include "listwindow/engine/XmlExport.h"
#include "listwindow/engine/XmlImport.h"

#include <benchmark/benchmark.h>
#include <expat.h>

#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

const BookListDocument& libraryFor(const benchmark::State& state)
{
    return libraryOf(static_cast<int>(state.range(0)));
}

using Export = std::function<FileResult(const QString& path, const BookListDocument& document)>;

FileResult exportAsXml(const QString& path, const BookListDocument& document)
{
    return exportXml(path, document.allValues());
}

FileResult exportAsCsv(const QString& path, const BookListDocument& document)
{
    CsvOptions options;
    options.groupSelection = CsvOptions::GroupSelection::Flags;
    const std::vector<BookEntry*> books = document.allValues();
    return CsvExport(document, books, options).write(path);
}

void measureExport(benchmark::State& state, const Export& exportLibrary)
{
    const BookListDocument& document = libraryFor(state);
    const QTemporaryDir folder;
    for ([[maybe_unused]] const auto step : state) {
        if (!exportLibrary(folder.filePath(u"out"_s), document).isOk())
            state.SkipWithError("the file could not be written");
    }
}

/// Writes as many bytes as the export does.
void measureExportFloor(benchmark::State& state, const Export& exportLibrary)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"out"_s);
    if (!exportLibrary(path, libraryFor(state)).isOk())
        state.SkipWithError("the file could not be written");
    const QByteArray bytes = readBytes(path);
    for ([[maybe_unused]] const auto step : state) {
        if (!writeSynced(path, bytes))
            state.SkipWithError("the file could not be written");
    }
}

void xmlExport(benchmark::State& state)
{
    measureExport(state, exportAsXml);
}

void xmlExport_floor(benchmark::State& state)
{
    measureExportFloor(state, exportAsXml);
}

void csvExport(benchmark::State& state)
{
    measureExport(state, exportAsCsv);
}

void csvExport_floor(benchmark::State& state)
{
    measureExportFloor(state, exportAsCsv);
}

void xmlImport(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"in.xml"_s);
    if (!exportAsXml(path, libraryFor(state)).isOk())
        state.SkipWithError("the file could not be written");
    for ([[maybe_unused]] const auto step : state) {
        BookListDocument document;
        if (importXml(document, path))
            state.SkipWithError("the file could not be read");
        benchmark::DoNotOptimize(document.getBookListSize());
    }
}

bool parse(const QByteArray& bytes)
{
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), &XML_ParserFree);
    return XML_Parse(parser.get(), bytes.constData(), static_cast<int>(bytes.size()), XML_TRUE)
        == XML_STATUS_OK;
}

void xmlImport_floor(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"in.xml"_s);
    if (!exportAsXml(path, libraryFor(state)).isOk())
        state.SkipWithError("the file could not be written");
    for ([[maybe_unused]] const auto step : state) {
        if (!parse(readBytes(path)))
            state.SkipWithError("the file could not be read");
    }
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(xmlExport)->Apply(sizes);
BENCHMARK(xmlExport_floor)->Apply(sizes);
BENCHMARK(xmlImport)->Apply(sizes);
BENCHMARK(xmlImport_floor)->Apply(sizes);
BENCHMARK(csvExport)->Apply(sizes);
BENCHMARK(csvExport_floor)->Apply(sizes);

} // namespace

} // namespace tomely
