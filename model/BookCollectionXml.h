// The XML interchange file: the books in the elements around them. It turns books into a text and
// bytes into books; it opens no file and knows no collection.

#pragma once

#include "model/BookEntry.h"
#include "platform/Progress.h"

#include <QByteArrayView>

#include <algorithm>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace tomely {

/// The text of a file with these books in this order, byte-order mark included: the file holds its
/// UTF-16 units as they lie in memory. Reports progress in books and may be left by it.
std::u16string bookCollectionXml(std::span<BookEntry* const> books, const Progress& progress = {});

using ReadBooks = std::vector<std::unique_ptr<BookEntry>>;

/// How many books are taken from a file of so many bytes. An empty book takes seven bytes of a file
/// and more than a hundred times that in memory, so a file of nothing else is given up early. What
/// this program wrote has more bytes a book than counts here, up to the limit for any file.
constexpr std::size_t mostXmlBooks(qsizetype fileSize)
{
    constexpr std::size_t inSmallFiles = 250'000;
    constexpr std::size_t inAnyFile = 2'000'000;
    constexpr std::size_t bytesPerBook = 64;
    return std::min(inAnyFile, inSmallFiles + static_cast<std::size_t>(fileSize) / bytesPerBook);
}

/// The books of a file in their order, without keys. The root element may have any name. A file
/// that has not exactly one list of books in it gives none, without an error. Reports progress in
/// bytes and may be left by it. Throws XmlError, also for more books than mostXmlBooks().
ReadBooks readBookCollectionXml(QByteArrayView bytes, const Progress& progress = {});

/// The same with another limit.
ReadBooks readBookCollectionXml(
    QByteArrayView bytes, const Progress& progress, std::size_t mostBooks);

} // namespace tomely
