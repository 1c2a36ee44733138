// Everything that a collection holds as lines of text, so that two can be compared and a test shows
// what is different.

#pragma once

#include "document/BookListDocument.h"
#include "model/BookField.h"

#include <QStringList>

namespace tomely::samples {

inline QString quoted(const QString& text)
{
    return text.isNull() ? QStringLiteral("nil") : u'"' + text + u'"';
}

inline QString quoted(double value)
{
    return QString::number(value, 'g', 17);
}

inline QString quoted(qint32 value)
{
    return QString::number(value);
}

inline QString quoted(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

inline QString quoted(const QRectF& frame)
{
    return quoted(frame.x()) + u' ' + quoted(frame.y()) + u' ' + quoted(frame.width()) + u' '
        + quoted(frame.height());
}

inline QStringList linesOf(const BookEntry& book)
{
    QStringList lines;
    for (const BookField& field : bookFields()) {
        lines.append(QString::fromLatin1(field.name) + QStringLiteral(": ")
            + std::visit(
                [&book](const auto& access) { return quoted(book.*access.stored); }, field.access));
    }
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
        const QByteArray jpeg = book.getImageData(slot);
        lines.append(QStringLiteral("image%1: ").arg(slot)
            + (jpeg.isNull() ? QStringLiteral("nil") : QString::fromLatin1(jpeg.toHex())));
    }
    for (const GroupMembership::Entry& group : book.getSelectedGroups())
        lines.append(QStringLiteral("in group ") + quoted(group.key) + u' ' + quoted(group.value));
    return lines;
}

inline QStringList linesOf(const ColumnEntry& column)
{
    return {quoted(column.getKey()) + u' ' + quoted(column.getColumnName()) + u' '
        + quoted(column.getSelectionName()) + u' ' + quoted(column.getPosition()) + u' '
        + quoted(column.getWidth()) + u' ' + quoted(qint32(column.getFilterType())) + u' '
        + quoted(column.getCentered())};
}

/// The file version that was read is not among them: it is not part of what is saved.
inline QStringList linesOf(const BookListDocument& document)
{
    QStringList lines{QStringLiteral("last group ") + quoted(document.lastGroupKey()),
        QStringLiteral("last book ") + quoted(document.lastBookNumber()),
        QStringLiteral("sort field ") + quoted(document.getSortField())};
    for (const auto& [key, group] : document.getGroups().byKey())
        lines.append(QStringLiteral("group ") + quoted(key) + u' ' + quoted(group.getKey()) + u' '
            + quoted(group.getGroupName()));
    for (const auto& [key, label] : document.customFieldLabels())
        lines.append(QStringLiteral("label ") + quoted(key) + u' ' + quoted(label));
    for (const auto& [key, book] : document.books()) {
        lines.append(QStringLiteral("book ") + quoted(key) + u' ' + quoted(book->getKey()));
        lines.append(linesOf(*book));
    }
    for (const auto& [key, column] : document.getListColumns())
        lines.append(QStringLiteral("column ") + quoted(key) + u' ' + linesOf(column).join(u' '));
    for (const QRectF& frame :
        {document.getSavedWindowPosition(), document.getCustomizeListControllerWindowPosition(),
            document.getGroupListControllerWindowPosition(),
            document.getSavedImageSplitterView1Size(), document.getSavedImageSplitterView2Size(),
            document.getSavedListSplitterView1Size(), document.getSavedListSplitterView2Size()})
        lines.append(QStringLiteral("frame ") + quoted(frame));
    return lines;
}

} // namespace tomely::samples
