// Printing the list into a PDF, beside what the toolkit alone takes to paint the same letters.

#include "bench/Libraries.h"
#include "listwindow/engine/ColumnKind.h"
#include "listwindow/engine/PrintTable.h"
#include "listwindow/PrintPages.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QBuffer>
#include <QFontInfo>
#include <QPainter>
#include <QPdfWriter>

#include <numeric>
#include <vector>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int resolution = 1200; // dots an inch, as printers have it
constexpr double dotsPerPoint = resolution / 72.0;

QPageLayout paper()
{
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(54, 54, 54, 54)};
}

/// The columns of a new collection, together as wide as the paper.
std::vector<PrintColumn> columns()
{
    const Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter;
    return {{ColumnKey::RowNumber, u"#"_s, left, 40}, {ColumnKey::Title, u"Title"_s, left, 250},
        {ColumnKey::Author, u"Author"_s, left, 197}};
}

/// What paints a document gets a painter and a device for it; gives the size of the document.
template <class Paint>
qsizetype paintDocument(Paint paint)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&file);
        writer.setResolution(resolution);
        writer.setPageLayout(paper());
        QPainter painter(&writer);
        paint(painter, writer);
    }
    return file.size();
}

void print(benchmark::State& state)
{
    const auto books = libraryOf(static_cast<int>(state.range(0))).allValues();
    for ([[maybe_unused]] const auto step : state) {
        const PrintPages pages({columns(), books, QApplication::font()}, paper(), resolution);
        std::vector<qsizetype> all(static_cast<std::size_t>(pages.pageCount()));
        std::iota(all.begin(), all.end(), 0);
        benchmark::DoNotOptimize(paintDocument([&](QPainter& painter, QPagedPaintDevice& device) {
            pages.print(painter, device, all, [](qint64, qint64) {});
        }));
    }
}

struct ReadyText {
    QPointF place;
    QString text;
};

/// A table of ready-made texts, already cut to their columns.
struct ReadyTable {
    QFont font;
    std::vector<std::vector<ReadyText>> pages;
};

ReadyTable readyTable(const std::vector<BookEntry*>& books)
{
    ReadyTable table{QApplication::font(), {}};
    table.font.setPixelSize(qRound(QFontInfo(table.font).pointSizeF() * dotsPerPoint));
    table.font.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF metrics(table.font);
    const qsizetype pageCount =
        PrintPages({columns(), books, QApplication::font()}, paper(), resolution).pageCount();
    const qsizetype rowCount = printRowCount(static_cast<qsizetype>(books.size()));
    const qsizetype rowsPerPage = (rowCount + pageCount - 1) / pageCount;
    table.pages.resize(static_cast<std::size_t>(pageCount));
    for (qsizetype row = 0; row < rowCount; ++row) {
        const double baseline = static_cast<double>(row % rowsPerPage + 1) * metrics.height();
        double left = 0;
        for (const PrintColumn& column : columns()) {
            const double width = column.width * dotsPerPoint;
            const QString text = printCellText(books, column.key, column.heading, row);
            table.pages[static_cast<std::size_t>(row / rowsPerPage)].push_back(
                {QPointF(left, baseline), metrics.elidedText(text, Qt::ElideRight, width)});
            left += width;
        }
    }
    return table;
}

void print_floor(benchmark::State& state)
{
    const ReadyTable table = readyTable(libraryOf(static_cast<int>(state.range(0))).allValues());
    for ([[maybe_unused]] const auto step : state) {
        benchmark::DoNotOptimize(
            paintDocument([&table](QPainter& painter, QPagedPaintDevice& device) {
                for (const auto& page : table.pages) {
                    if (&page != &table.pages.front())
                        device.newPage();
                    painter.setFont(table.font);
                    for (const ReadyText& text : page)
                        painter.drawText(text.place, text.text);
                }
            }));
    }
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(print)->Apply(sizes);
BENCHMARK(print_floor)->Apply(sizes);

} // namespace

} // namespace tomely
