#include "cli/Commands.h"
#include "cli/OpenedCollection.h"
#include "cli/Output.h"
#include "cli/PlainText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

void printLine(Output& output, const QString& name, const QString& value)
{
    output.write(onOneLine(name + ": "_L1 + value));
    output.write("\n");
}

void printLine(Output& output, const QString& name, qint64 value)
{
    printLine(output, name, QString::number(value));
}

qint64 booksInGroup(const BookListDocument& document, const QString& groupKey)
{
    return std::ranges::count_if(document.books(), [&groupKey](const auto& keyAndBook) {
        return keyAndBook.second->getSelectedGroups().contains(groupKey);
    });
}

QString headings(const BookListDocument& document)
{
    QStringList names;
    for (const ColumnEntry* column : shownColumns(document.getListColumns()))
        names.append(column->getColumnName());
    return names.join(", "_L1);
}

} // namespace

void runInfo(const Arguments& arguments, Output& output)
{
    const auto document = openCollection(arguments.operands.front());
    printLine(output, u"version"_s, document->fileVersion());
    printLine(output, u"books"_s, document->getBookListSize());
    printLine(output, u"pictures"_s, pictureCount(*document));
    for (const GroupEntry* const group : document->getGroups().byName()) {
        printLine(output, "group "_L1 + group->getKey(),
            u"%1 (%2 books)"_s.arg(
                group->getGroupName(), QString::number(booksInGroup(*document, group->getKey()))));
    }
    printLine(output, u"last book number"_s, document->lastBookNumber());
    printLine(output, u"last group key"_s, document->lastGroupKey());
    printLine(output, u"sort field"_s, document->getSortField());
    printLine(output, u"visible columns"_s, headings(*document));
    for (const auto& [key, label] : document->customFieldLabels())
        printLine(output, "label "_L1 + keyText(key), label);
}

} // namespace tomely
