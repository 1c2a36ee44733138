// Opening and saving a collection, beside what the bytes alone cost.

#include "bench/ByteFloors.h"
#include "bench/Libraries.h"
#include "model/BookField.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

void open(benchmark::State& state)
{
    const QString path = libraryFileOf(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] const auto step : state) {
        BookListDocument document;
        if (document.readFromFile(path))
            state.SkipWithError("the file could not be read");
        benchmark::DoNotOptimize(document.getBookListSize());
    }
}

/// All texts of the library, end to end.
QByteArray allTexts(const BookListDocument& document)
{
    QByteArray bytes;
    for (const auto& [key, book] : document.books()) {
        for (const BookField& field : bookFields()) {
            if (std::holds_alternative<TextAccess>(field.access))
                bytes += field.text(*book).toUtf8();
        }
    }
    return bytes;
}

void open_floor(benchmark::State& state)
{
    const int books = static_cast<int>(state.range(0));
    const QString path = libraryFileOf(books);
    const QByteArray texts = allTexts(libraryOf(books));
    for ([[maybe_unused]] const auto step : state) {
        benchmark::DoNotOptimize(readBytes(path));
        benchmark::DoNotOptimize(QString::fromUtf8(texts));
    }
}

void save(benchmark::State& state)
{
    BookListDocument document;
    if (document.readFromFile(libraryFileOf(static_cast<int>(state.range(0)))))
        state.SkipWithError("the file could not be read");
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"saved.books"_s);
    for ([[maybe_unused]] const auto step : state) {
        if (document.writeToFile(path))
            state.SkipWithError("the file could not be written");
    }
}

void save_floor(benchmark::State& state)
{
    const QByteArray bytes = readBytes(libraryFileOf(static_cast<int>(state.range(0))));
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"saved.books"_s);
    for ([[maybe_unused]] const auto step : state) {
        if (!writeSynced(path, bytes))
            state.SkipWithError("the file could not be written");
    }
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(open)->Apply(sizes);
BENCHMARK(open_floor)->Apply(sizes);
BENCHMARK(save)->Apply(sizes);
BENCHMARK(save_floor)->Apply(sizes);

} // namespace

} // namespace tomely
