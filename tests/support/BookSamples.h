// Books for tests: small ones by title and author, and one whose every field says something else.

#pragma once

#include "model/BookEntry.h"
#include "model/BookField.h"

#include <QString>

#include <memory>

namespace tomely::samples {

inline std::unique_ptr<BookEntry> makeBook(const QString& title, const QString& author = {})
{
    auto book = std::make_unique<BookEntry>();
    book->setTitle(title);
    if (!author.isNull())
        book->setAuthor(author);
    return book;
}

/// Bytes that begin and end as a JPEG does and hold every byte value between.
inline QByteArray pictureBytes(char mark)
{
    QByteArray bytes("\xFF\xD8\xFF\xE0");
    for (int value = 0; value < 256; ++value)
        bytes.append(static_cast<char>(value));
    bytes.append(mark);
    bytes.append("\xFF\xD9");
    return bytes;
}

/// A book in whose fields no two values are the same, but for the flags: every second is set.
inline BookEntry fullBook()
{
    BookEntry book;
    int number = 100;
    for (const BookField& field : bookFields()) {
        ++number;
        switch (field.kind) {
        case FieldKind::Text:
        case FieldKind::Year:
            field.setText(book, QString::fromLatin1(field.name) + QString::number(number));
            break;
        case FieldKind::Month:
        case FieldKind::Integer:
        case FieldKind::Rating:
        case FieldKind::Type:
            field.setInteger(book, number);
            break;
        case FieldKind::Real:
            field.setReal(book, number + 0.25);
            break;
        case FieldKind::Flag:
            field.setFlag(book, number % 2 == 0);
            break;
        }
    }
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
        book.setImageData(slot, pictureBytes(static_cast<char>('0' + slot)));
    book.addToGroup(QStringLiteral("2"));
    book.addToGroup(QStringLiteral("10"));
    return book;
}

} // namespace tomely::samples
