// A collection document with a few books and groups that tests of the list share.

#pragma once

#include "document/BookListDocument.h"
#include "tests/support/BookSamples.h"

#include <QStringList>

namespace tomely::samples {

/// Adds a group of that name; its key.
inline QString addGroup(BookListDocument& document, const QString& name)
{
    GroupEntry group;
    group.setKey(document.getNextGroupKey());
    group.setGroupName(name);
    document.getGroups().insert(group);
    return group.getKey();
}

/// Adds a book to the document and, when one is named, to a group; good until books change.
inline BookEntry& addBook(BookListDocument& document, const QString& title,
    const QString& author = {}, const QString& groupKey = {})
{
    auto book = makeBook(title, author);
    if (!groupKey.isNull())
        book->addToGroup(groupKey);
    BookEntry& added = *book;
    document.addBook(std::move(book));
    return added;
}

/// Emma, Ivanhoe, Kim and Villette; Emma and Kim are in the group "Fiction", Kim has the author
/// that comes first.
inline void addFourBooks(BookListDocument& document)
{
    const QString fiction = QStringLiteral("1");
    addBook(document, QStringLiteral("Villette"), QStringLiteral("Charlotte Brontë"));
    addBook(document, QStringLiteral("Emma"), QStringLiteral("Jane Austen"), fiction);
    addBook(document, QStringLiteral("Kim"), QStringLiteral("A. Kipling"), fiction);
    addBook(document, QStringLiteral("Ivanhoe"), QStringLiteral("Walter Scott"));
}

/// The catalogue's column for a key.
inline ColumnEntry& column(BookListDocument& document, qint32 columnKey)
{
    return document.getListColumns().find(keyText(columnKey))->second;
}

/// Shows exactly these columns, in this order, each so wide.
inline void showColumns(
    BookListDocument& document, const QList<qint32>& columnKeys, qint32 width = 120)
{
    for (auto& [key, record] : document.getListColumns())
        record.setPosition(ColumnEntry::hidden);
    qint32 position = 0;
    for (const qint32 columnKey : columnKeys) {
        column(document, columnKey).setPosition(position++);
        column(document, columnKey).setWidth(width);
    }
}

} // namespace tomely::samples
