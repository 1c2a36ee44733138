#include "listwindow/PrintPages.h"

#include "listwindow/engine/PrintTable.h"

#include <QFontInfo>
#include <QLocale>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <numeric>

namespace tomely {

namespace {

constexpr double pointsPerInch = 72;
constexpr double cellPadding = 2; // points beside a text
constexpr double rowPadding = 2; // points between two lines

/// How many dots a point of the table is: fewer than a point of paper where the table is wider.
double dotsPerPoint(
    const std::vector<PrintColumn>& columns, const QPageLayout& paper, int resolution)
{
    const double tableWidth = std::accumulate(columns.begin(), columns.end(), 0.0,
        [](double sum, const PrintColumn& column) { return sum + column.width; });
    const double paperWidth = paper.paintRect(QPageLayout::Point).width();
    return resolution / pointsPerInch * std::min(1.0, paperWidth / tableWidth);
}

/// The screen's letters in their size on paper. In dots, since a size in points would mean another
/// one on the screen, where the preview paints.
QFont printFont(const QFont& screenFont, double dotsPerPoint)
{
    QFont font = screenFont;
    const double size = QFontInfo(screenFont).pointSizeF() * dotsPerPoint;
    font.setPixelSize(std::max(1, qRound(size)));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

PrintPages::PrintPages(PrintContent content, const QPageLayout& paper, int resolution)
    : m_content(std::move(content))
    , m_screen(std::make_unique<SingleLineDelegate>())
    , m_dotsPerPoint(dotsPerPoint(m_content.columns, paper, resolution))
    , m_font(printFont(m_content.font, m_dotsPerPoint))
    , m_metrics(m_font)
    , m_rowHeight(m_metrics.height() + rowPadding * m_dotsPerPoint)
{
    const double height = paper.paintRectPixels(resolution).height();
    m_rowsPerPage = std::max(qsizetype(1), static_cast<qsizetype>(height / m_rowHeight));
}

qsizetype PrintPages::pageCount() const
{
    const qsizetype rows = printRowCount(static_cast<qsizetype>(m_content.displayedBooks.size()));
    return (rows + m_rowsPerPage - 1) / m_rowsPerPage;
}

void PrintPages::paint(QPainter& painter, qsizetype page) const
{
    painter.setFont(m_font);
    painter.setPen(Qt::black); // paper is white, whatever the screen is
    const qsizetype rows = printRowCount(static_cast<qsizetype>(m_content.displayedBooks.size()));
    const qsizetype first = page * m_rowsPerPage;
    const qsizetype end = std::min(rows, first + m_rowsPerPage);
    for (qsizetype row = first; row < end; ++row)
        paintRow(painter, row, static_cast<double>(row - first) * m_rowHeight);
}

bool PrintPages::print(QPainter& painter, QPagedPaintDevice& device,
    std::span<const qsizetype> pages, const Progress& progress) const
{
    const auto total = static_cast<qint64>(pages.size());
    for (qint64 done = 0; done < total; ++done) {
        progress(done, total);
        if (done > 0 && !device.newPage())
            return false;
        paint(painter, pages[static_cast<std::size_t>(done)]);
    }
    return true;
}

void PrintPages::paintRow(QPainter& painter, qsizetype row, double top) const
{
    const double baseline = top + (m_rowHeight - m_metrics.height()) / 2 + m_metrics.ascent();
    const double padding = cellPadding * m_dotsPerPoint;
    double left = 0;
    for (const PrintColumn& column : m_content.columns) {
        const double columnWidth = column.width * m_dotsPerPoint;
        const double room = std::max(0.0, columnWidth - 2 * padding);
        const QString text = shownText(column, row, room);
        double place = left + padding;
        if (column.alignment & Qt::AlignHCenter)
            place += (room - m_metrics.horizontalAdvance(text)) / 2;
        if (!text.isEmpty())
            painter.drawText(QPointF(place, baseline), text);
        left += columnWidth;
    }
}

/// The text of a cell as far as it fits into `width` dots.
QString PrintPages::shownText(const PrintColumn& column, qsizetype row, double width) const
{
    const QString text = printCellText(m_content.displayedBooks, column.key, column.heading, row);
    // A rule goes to the end of its column; it is not a text of which something is missing.
    if (row == ruleRow)
        return text.left(static_cast<qsizetype>(width / m_metrics.horizontalAdvance(text.front())));
    const QString line = m_screen->displayText(text, QLocale());
    return m_metrics.elidedText(line, Qt::ElideRight, width);
}

} // namespace tomely
