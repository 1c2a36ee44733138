#include "listwindow/BookClipboard.h"

#include <QHeaderView>
#include <QItemSelection>
#include <QTableView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

/// Logical numbers of the columns that are seen, from left to right.
QList<int> visibleColumns(const QTableView& table)
{
    QList<int> columns;
    const QHeaderView& header = *table.horizontalHeader();
    for (int visual = 0; visual < header.count(); ++visual) {
        const int column = header.logicalIndex(visual);
        if (!header.isSectionHidden(column))
            columns.append(column);
    }
    return columns;
}

QString inOneLine(QString text)
{
    text.replace("\r\n"_L1, " "_L1);
    const auto breaksLine = [](QChar character) {
        return character == u'\t' || character == u'\n' || character == u'\r'
            || character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
    };
    std::ranges::replace_if(text, breaksLine, u' ');
    return text;
}

} // namespace

QString tabSeparatedLines(const QTableView& table)
{
    const QAbstractItemModel& model = *table.model();
    const QList<int> columns = visibleColumns(table);
    QItemSelection ranges = table.selectionModel()->selection();
    std::ranges::sort(ranges, {}, &QItemSelectionRange::top);
    QString lines;
    int nextRow = 0; // ranges side by side share rows
    for (const QItemSelectionRange& range : std::as_const(ranges)) {
        for (int row = std::max(range.top(), nextRow); row <= range.bottom(); ++row) {
            for (const int column : columns) {
                if (column != columns.front())
                    lines += u'\t';
                lines += inOneLine(model.index(row, column).data().toString());
            }
            lines += u'\n';
        }
        nextRow = std::max(nextRow, range.bottom() + 1);
    }
    return lines;
}

} // namespace tomely
