// Any bytes as the replies of source 1: the script text with a volume's identifier, and the
// volume's record. What is found is where it should be and no longer than it may be.

#include "editor/lookup/LookupText.h"
#include "editor/lookup/VolumeReply.h"

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace Qt::StringLiterals;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// The identifier, found in another way; null when there is none.
QString plainIdentifier(const QString& text)
{
    const std::u16string units = text.toStdU16String();
    const std::size_t start = units.find(u"?id=");
    const std::size_t end = units.find(u"\\u0026");
    if (start == std::u16string::npos || end == std::u16string::npos || end < start + 4)
        return {};
    const QString identifier = QString::fromStdU16String(units.substr(start + 4, end - start - 4));
    if (identifier.size() > tomely::MostIdentifierUnits)
        return {};
    return identifier.isNull() ? u""_s : identifier;
}

void checkScriptText(const QByteArray& bytes)
{
    const std::optional<QString> text = tomely::decodedText(bytes);
    if (!text)
        return;
    const QString identifier = tomely::volumeIdentifier(*text);
    const QString expected = plainIdentifier(*text);
    require(identifier == expected && identifier.isNull() == expected.isNull());
}

tomely::BookDetails read(const QByteArray& record, tomely::Authors authors)
{
    tomely::BookDetails details;
    tomely::fillFromVolume(record, u"9780143039433"_s, authors, details);
    return details;
}

void checkRecord(const QByteArray& record)
{
    const tomely::BookDetails details = read(record, tomely::Authors::All);
    for (const QString& text :
        {details.author, details.numberOfPages, details.publicationDate, details.publisher,
            details.title, details.smallThumbnailImageURL, details.thumbnailImageURL,
            details.smallImageURL, details.mediumImageURL, details.largeImageURL}) {
        require(text.size() <= tomely::MostTextUnits);
        require(text.isNull() || !details.isbn.isNull());
    }
    require(details.asin.isNull());
    const tomely::BookDetails first = read(record, tomely::Authors::FirstOnly);
    require(first.title == details.title && first.isbn == details.isbn);
    // A cut text need not end where a text of one author ends.
    require(details.author.startsWith(first.author));
    require(first.author.isNull() == details.author.isNull());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    checkScriptText(bytes);
    checkRecord(bytes);
    return 0;
}
