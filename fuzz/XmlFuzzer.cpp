// Any bytes as an XML file of books: they end in books or in one error. What was read is written
// and read again, which must work and give a file that is written the same from then on.

#include "model/BookCollectionXml.h"
#include "model/BookField.h"
#include "model/XmlReader.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

/// Years are written without escapes, so one with markup makes a file that cannot be read.
bool hasMarkupInYear(const tomely::BookEntry& book)
{
    return std::ranges::any_of(tomely::bookFields(), [&](const tomely::BookField& field) {
        if (field.kind != tomely::FieldKind::Year)
            return false;
        const QString year = field.text(book);
        return year.contains(u'&') || year.contains(u'<') || year.contains(u'>');
    });
}

QByteArray written(const tomely::ReadBooks& books)
{
    std::vector<tomely::BookEntry*> pointers;
    for (const auto& book : books)
        pointers.push_back(book.get());
    const std::u16string xml = tomely::bookCollectionXml(pointers);
    return {reinterpret_cast<const char*>(xml.data()), static_cast<qsizetype>(xml.size() * 2)};
}

/// Ends the program for what cannot be read: it was written by this program.
QByteArray writtenAgain(const QByteArray& bytes)
{
    try {
        return written(tomely::readBookCollectionXml(bytes));
    } catch (const tomely::XmlError&) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    tomely::ReadBooks books;
    try {
        books = tomely::readBookCollectionXml({data, static_cast<qsizetype>(size)});
    } catch (const tomely::XmlError&) {
        return 0;
    }
    for (const auto& book : books) {
        if (hasMarkupInYear(*book))
            return 0;
    }
    // The first writing rounds prices, and the first reading makes every line end a line feed.
    const QByteArray settled = writtenAgain(written(books));
    if (writtenAgain(settled) != settled)
        std::abort();
    return 0;
}
