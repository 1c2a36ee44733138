// Any bytes as the page of source 2. What is found between markers and outside tags agrees with
// plainer ways to find it, lies in the page and is no longer than it may be.

#include "editor/lookup/BookPage.h"
#include "editor/lookup/LookupText.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// What stands between markers, compared at every place.
std::optional<std::u16string> plainValue(
    const std::u16string& text, std::u16string_view start, std::u16string_view end)
{
    for (std::size_t begin = 0; begin + start.size() <= text.size(); ++begin) {
        if (text.compare(begin, start.size(), start) != 0)
            continue;
        const std::size_t from = begin + start.size();
        for (std::size_t to = from; to + end.size() <= text.size(); ++to) {
            if (text.compare(to, end.size(), end) == 0)
                return text.substr(from, to - from);
        }
        return std::nullopt;
    }
    return std::nullopt;
}

void checkExtraction(const QString& page, QStringView start, QStringView end)
{
    const QStringView value = tomely::extractValue(page, start, end);
    const auto expected = plainValue(
        page.toStdU16String(), start.toString().toStdU16String(), end.toString().toStdU16String());
    require(value.isNull() == !expected.has_value());
    require(!expected || value == QString::fromStdU16String(*expected));
}

void checkCleaning(const QString& page)
{
    const QStringView cleaned = tomely::cleanString(page);
    require(cleaned.size() <= page.size());
    require(cleaned.trimmed().size() == cleaned.size());
    // It is a part of the page, and the first of a run is not within a tag.
    require(cleaned.isEmpty()
        || (cleaned.begin() >= page.constBegin() && cleaned.end() <= page.constEnd()));
    // Where no tag is, there is nothing but white space to lose.
    if (!page.contains(u'<') && !page.contains(u'>'))
        require(cleaned == page.trimmed());
}

void checkPage(const QString& page)
{
    const QString isbn = u"9780143039433"_s;
    tomely::BookDetails details;
    tomely::fillFromBookPage(page, isbn, details);
    require(details.isbn == isbn);
    for (const QString& text : {details.author, details.numberOfPages, details.publicationDate,
             details.publisher, details.title, details.largeImageURL}) {
        require(text.size() <= tomely::MostTextUnits);
        require(text.isEmpty() || page.contains(text));
    }
    for (const QString& text : {details.asin, details.smallThumbnailImageURL,
             details.thumbnailImageURL, details.smallImageURL, details.mediumImageURL})
        require(text.isNull());
    // What is known is kept, and what was empty was looked for once.
    const tomely::BookDetails before = details;
    tomely::fillFromBookPage(page, isbn, details);
    require(details.title == before.title && details.numberOfPages == before.numberOfPages);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::optional<QString> page = tomely::decodedText(
        QByteArrayView(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!page)
        return 0;
    checkExtraction(*page, u"<h1>", u"</h1>");
    checkExtraction(*page, u"\">", u"</a>");
    checkExtraction(*page, u"<meta property=\"og:image\" content=\"", u"\"");
    checkCleaning(*page);
    checkPage(*page);
    return 0;
}
