// The list without its window: one key in the text filter, sorting, and a refresh after an edit,
// beside what scanning or sorting the same data costs by itself.

#include "bench/Libraries.h"
#include "listwindow/engine/ListEngine.h"
#include "model/CaseFolding.h"

#include <benchmark/benchmark.h>

#include <QStringList>

#include <algorithm>
#include <array>
#include <cstring>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// What a person types, key by key: first very common, then rare.
const QStringList& typedTexts()
{
    static const QStringList texts = {
        u"s"_s, u"si"_s, u"sil"_s, u"sile"_s, u"silen"_s, u"silent"_s, u"silent g"_s};
    return texts;
}

void filterKey(benchmark::State& state)
{
    ListEngine engine(libraryOf(static_cast<int>(state.range(0))));
    engine.filter().m_nSelectedFilter = ColumnKey::AuthorAndTitle;
    engine.loadBookKeys();
    qsizetype next = 0;
    for ([[maybe_unused]] const auto step : state) {
        engine.filter().m_strFilter = typedTexts().at(next++ % typedTexts().size());
        engine.loadBookKeys();
        benchmark::DoNotOptimize(engine.getDisplayedBooks().size());
    }
}

void filterKey_floor(benchmark::State& state)
{
    std::vector<char> texts;
    for (const auto& [key, book] : libraryOf(static_cast<int>(state.range(0))).books()) {
        appendFolded(book->getAuthor(), texts);
        appendFolded(book->getTitle(), texts);
    }
    qsizetype next = 0;
    for ([[maybe_unused]] const auto step : state) {
        const QByteArray needle = typedTexts().at(next++ % typedTexts().size()).toUtf8();
        qsizetype hits = 0;
        const char* position = texts.data();
        const char* const end = position + texts.size();
        while (const void* const hit = memmem(position, static_cast<std::size_t>(end - position),
                   needle.data(), static_cast<std::size_t>(needle.size()))) {
            ++hits;
            position = static_cast<const char*>(hit) + needle.size();
        }
        benchmark::DoNotOptimize(hits);
    }
}

void sortBy(benchmark::State& state, qint32 columnKey)
{
    BookListDocument& document = libraryOf(static_cast<int>(state.range(0)));
    ListEngine engine(document);
    engine.loadBookKeys();
    qint32 direction = 0;
    for ([[maybe_unused]] const auto step : state) {
        document.setSortField(columnKey + direction);
        engine.loadBookKeys();
        direction = 1 - direction;
        benchmark::DoNotOptimize(engine.getDisplayedBooks().data());
    }
    document.setSortField(0);
}

void sortByTitle(benchmark::State& state)
{
    sortBy(state, ColumnKey::Title);
}

void sortByYear(benchmark::State& state)
{
    constexpr qint32 published = 10;
    sortBy(state, published);
}

void sortByRating(benchmark::State& state)
{
    constexpr qint32 rating = 6;
    sortBy(state, rating);
}

void sort_floor(benchmark::State& state)
{
    struct Record {
        quint64 prefix;
        quint32 row;
    };

    std::vector<Record> unsorted;
    for (const auto& [key, book] : libraryOf(static_cast<int>(state.range(0))).books()) {
        std::vector<char> text;
        appendFolded(book->getTitle(), text);
        text.resize(8);
        quint64 prefix = 0;
        for (const char byte : text)
            prefix = prefix << 8 | static_cast<quint8>(byte);
        unsorted.push_back({prefix, static_cast<quint32>(unsorted.size())});
    }
    for ([[maybe_unused]] const auto step : state) {
        std::vector<Record> records = unsorted;
        std::ranges::sort(records, {}, &Record::prefix);
        benchmark::DoNotOptimize(records.data());
    }
}

void refreshAfterEdit(benchmark::State& state)
{
    BookListDocument document;
    if (document.readFromFile(libraryFileOf(static_cast<int>(state.range(0)))))
        state.SkipWithError("the file could not be read");
    ListEngine engine(document);
    engine.loadBookKeys();
    BookEntry& book = *document.books().begin()->second;
    int edit = 0;
    for ([[maybe_unused]] const auto step : state) {
        book.setTitle(++edit % 2 == 0 ? u"A Changed Title"_s : u"Zest"_s);
        engine.setBooksChanged();
        engine.loadBookKeys();
        benchmark::DoNotOptimize(engine.getDisplayedBooks().data());
    }
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(filterKey)->Apply(sizes);
BENCHMARK(filterKey_floor)->Apply(sizes);
BENCHMARK(sortByTitle)->Apply(sizes);
BENCHMARK(sortByYear)->Apply(sizes);
BENCHMARK(sortByRating)->Apply(sizes);
BENCHMARK(refreshAfterEdit)->Apply(sizes);
BENCHMARK(sort_floor)->Apply(sizes);

} // namespace

} // namespace tomely
