#include "cli/TableLayout.h"

#include "cli/DisplayWidth.h"
#include "cli/Output.h"
#include "cli/PlainText.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int separatorWidth = 2;
constexpr int narrowest = 4; // three characters and an ellipsis
constexpr int moreMarkWidth = separatorWidth + 1; // stands for the columns that are left out

int separatorsOf(std::size_t columns)
{
    return columns == 0 ? 0 : separatorWidth * (static_cast<int>(columns) - 1);
}

int sumCappedAt(int cap, const std::vector<int>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0,
        [cap](int sum, int width) { return sum + std::min(cap, width); });
}

/// How many leading columns fit at their narrowest beside the mark for the others.
std::size_t leadingThatFit(const std::vector<int>& natural, int available)
{
    int used = moreMarkWidth - separatorWidth;
    std::size_t count = 0;
    for (const int width : natural) {
        used += std::min(width, narrowest) + separatorWidth;
        if (used > available)
            break;
        ++count;
    }
    return count;
}

QString aligned(const QString& text, int width, Alignment alignment)
{
    const int free = std::max(0, width - displayWidth(text));
    const int before =
        alignment == Alignment::Left ? 0 : (alignment == Alignment::Right ? free : free / 2);
    return QString(before, u' ') + text + QString(free - before, u' ');
}

} // namespace

std::vector<int> fittedWidths(std::vector<int> natural, int available)
{
    const int total = sumCappedAt(std::numeric_limits<int>::max(), natural);
    if (total <= available)
        return natural;
    const int separators = separatorsOf(natural.size());
    if (sumCappedAt(narrowest, natural) > available) {
        const std::size_t fitting = leadingThatFit(natural, available + separators);
        natural.resize(fitting);
        available += separators - separatorsOf(fitting) - moreMarkWidth;
        if (sumCappedAt(std::numeric_limits<int>::max(), natural) <= available)
            return natural;
    }
    int cap = narrowest;
    while (sumCappedAt(cap + 1, natural) <= available)
        ++cap;
    int left = available - sumCappedAt(cap, natural);
    for (int& width : natural) {
        const bool isCut = width > cap;
        width = std::min(width, cap);
        if (isCut && left > 0) {
            ++width;
            --left;
        }
    }
    return natural;
}

TableLayout::TableLayout(std::vector<TableColumn> columns) : m_columns(std::move(columns))
{
    for (const TableColumn& column : m_columns)
        m_headings.append(onOneLine(column.heading));
}

void TableLayout::addRow(QStringList cells)
{
    for (QString& cell : cells)
        cell = onOneLine(std::move(cell));
    m_rows.push_back(std::move(cells));
}

std::vector<int> TableLayout::naturalWidths() const
{
    std::vector<int> widths;
    for (const QString& heading : m_headings)
        widths.push_back(std::max(1, displayWidth(heading)));
    for (const QStringList& row : m_rows) {
        for (qsizetype i = 0; i < row.size(); ++i) {
            int& width = widths.at(static_cast<std::size_t>(i));
            width = std::max(width, displayWidth(row[i]));
        }
    }
    return widths;
}

QString TableLayout::line(const QStringList& cells, const std::vector<int>& widths) const
{
    QStringList parts;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const QString text = fittedTo(cells[static_cast<qsizetype>(i)], widths[i]);
        parts.append(aligned(text, widths[i], m_columns[i].alignment));
    }
    if (widths.size() < m_columns.size())
        parts.append(u"…"_s);
    QString joined = parts.join(QString(separatorWidth, u' '));
    while (joined.endsWith(u' '))
        joined.chop(1);
    return joined + u'\n';
}

void TableLayout::write(Output& output, int width) const
{
    const std::vector<int> widths =
        fittedWidths(naturalWidths(), width - separatorsOf(m_columns.size()));
    QStringList rules;
    for (const int columnWidth : widths)
        rules.append(QString(columnWidth, u'-'));
    output.write(line(m_headings, widths));
    output.write(line(rules, widths));
    for (const QStringList& row : m_rows)
        output.write(line(row, widths));
}

} // namespace tomely
