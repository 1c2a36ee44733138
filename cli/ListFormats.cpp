#include "cli/ListFormats.h"

#include "cli/JsonWriter.h"
#include "cli/Output.h"
#include "listwindow/engine/CellText.h"

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int widthWithoutTerminal = 100;

using Books = std::span<BookEntry* const>;
using Columns = std::span<const PrintedColumn>;

QStringList headingsOf(Columns columns)
{
    QStringList headings;
    for (const PrintedColumn& column : columns)
        headings.append(column.table.heading);
    return headings;
}

QStringList cellsOf(const BookEntry& book, Columns columns, qsizetype row)
{
    QStringList cells;
    cells.reserve(std::ssize(columns));
    for (const PrintedColumn& column : columns)
        cells.append(cellText(book, column.key, row));
    return cells;
}

void printTable(Books books, Columns columns, Output& output)
{
    std::vector<TableColumn> tableColumns;
    for (const PrintedColumn& column : columns)
        tableColumns.push_back(column.table);
    TableLayout table(std::move(tableColumns));
    qsizetype row = 0;
    for (const BookEntry* book : books)
        table.addRow(cellsOf(*book, columns, row++));
    const int terminalWidth = output.terminalWidth();
    table.write(output, terminalWidth > 0 ? terminalWidth : widthWithoutTerminal);
}

QString escapedForTsv(QString text)
{
    text.replace(u'\\', "\\\\"_L1);
    text.replace(u'\t', "\\t"_L1);
    text.replace(u'\n', "\\n"_L1);
    text.replace(u'\r', "\\r"_L1);
    return text;
}

void printTsvLine(QStringList cells, Output& output)
{
    for (QString& cell : cells)
        cell = escapedForTsv(std::move(cell));
    output.write(cells.join(u'\t'));
    output.write("\n");
}

void printTsv(Books books, Columns columns, Output& output)
{
    printTsvLine(headingsOf(columns), output);
    qsizetype row = 0;
    for (const BookEntry* book : books)
        printTsvLine(cellsOf(*book, columns, row++), output);
}

/// A cell without a text is an empty one.
QString presentText(const QString& text)
{
    return text.isNull() ? u""_s : text;
}

void printJson(Books books, Columns columns, Output& output)
{
    JsonWriter json(output);
    json.beginArray(JsonWriter::Layout::Lines);
    qsizetype row = 0;
    for (const BookEntry* book : books) {
        json.beginObject();
        json.name("key"_L1);
        json.text(book->getKey());
        json.name("cells"_L1);
        json.beginObject();
        for (const PrintedColumn& column : columns) {
            json.name(column.keyText);
            json.text(presentText(cellText(*book, column.key, row)));
        }
        json.endObject();
        json.endObject();
        ++row;
    }
    json.endArray();
}

} // namespace

void printList(Books books, Columns columns, ListFormat format, Output& output)
{
    switch (format) {
    case ListFormat::Table:
        printTable(books, columns, output);
        break;
    case ListFormat::Tsv:
        printTsv(books, columns, output);
        break;
    case ListFormat::Json:
        printJson(books, columns, output);
        break;
    }
}

} // namespace tomely
