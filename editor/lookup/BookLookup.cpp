#include "editor/lookup/BookLookup.h"

#include "editor/lookup/BookPage.h"
#include "editor/lookup/LookupAddresses.h"
#include "editor/lookup/LookupLog.h"
#include "editor/lookup/LookupSettings.h"
#include "editor/lookup/LookupText.h"
#include "editor/lookup/VolumeReply.h"
#include "platform/LenientNumbers.h"
#include "platform/network/UrlFetch.h"

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// Many times what the sources send; it is read while the person waits.
constexpr qint64 mostReplyBytes = 1'000'000;
constexpr qint64 mostPageBytes = 4'000'000;

/// The service answers without a key until it was asked too often.
std::optional<QByteArray> fetchVolume(
    const QString& identifier, const LookupSettings& settings, UrlFetch& fetch)
{
    auto record = fetch.fetch(volumeAddress(settings.volumesHost, identifier, {}), mostReplyBytes);
    if (!record && !settings.serviceKey.isEmpty())
        record = fetch.fetch(
            volumeAddress(settings.volumesHost, identifier, settings.serviceKey), mostReplyBytes);
    return record;
}

} // namespace

BookLookup BookLookup::initWithISBN(
    const QString& isbn, const LookupSettings& settings, UrlFetch& fetch)
{
    logLookup(u"----------------------------"_s);
    logLookup(isbn);
    BookLookup lookup;
    lookup.initWithISBN_Google(isbn, settings, fetch);
    const BookDetails& details = lookup.m_details;
    // A large cover is worth asking another source for.
    const bool isComplete =
        !details.largeImageURL.isEmpty() && !details.title.isEmpty() && !details.author.isEmpty();
    if (!isComplete && settings.enableAlternateSources)
        lookup.initWithISBN_Direct(isbn, settings, fetch);
    return lookup;
}

void BookLookup::initWithISBN_Google(
    const QString& isbn, const LookupSettings& settings, UrlFetch& fetch)
{
    logLookup(u"Lookup 1"_s);
    const auto scriptBytes = fetch.fetch(viewAddress(settings.viewHost, isbn), mostReplyBytes);
    if (!scriptBytes)
        return;
    logLookup(u"Lookup 1: Part 1 of 5"_s);
    const auto scriptText = decodedText(*scriptBytes);
    if (!scriptText)
        return;
    const QString identifier = volumeIdentifier(*scriptText);
    if (identifier.isNull())
        return;
    logLookup(u"Lookup 1: Part 2 of 5"_s);
    const auto record = fetchVolume(identifier, settings, fetch);
    if (!record)
        return;
    const Authors authors = settings.disableAuthorConcatenation ? Authors::FirstOnly : Authors::All;
    fillFromVolume(*record, isbn, authors, m_details);
}

void BookLookup::initWithISBN_Direct(
    const QString& isbn, const LookupSettings& settings, UrlFetch& fetch)
{
    logLookup(u"Lookup 2"_s);
    const auto bytes = fetch.fetch(bookPageAddress(settings.pageHost, isbn), mostPageBytes);
    const auto page = bytes ? decodedText(*bytes) : std::nullopt;
    if (page)
        fillFromBookPage(*page, isbn, m_details);
}

const QString& BookLookup::getISBN() const
{
    const bool isEmpty = m_details.isbn.isEmpty() && !m_details.isbn.isNull();
    return isEmpty ? m_details.asin : m_details.isbn;
}

QString BookLookup::getPublicationYear() const
{
    const QString& date = m_details.publicationDate;
    if (date.isEmpty())
        return u""_s;
    const qsizetype hyphen = date.indexOf(u'-');
    return hyphen < 0 ? date : date.first(hyphen);
}

qint32 BookLookup::getPublicationMonth() const
{
    return leadingInt(m_details.publicationDate.section(u'-', 1, 1));
}

QString BookLookup::getBestImageURL(bool ignoreLarge) const
{
    QString address = ignoreLarge ? u""_s : m_details.largeImageURL;
    for (const QString* next : {&m_details.mediumImageURL, &m_details.smallImageURL,
             &m_details.thumbnailImageURL, &m_details.smallThumbnailImageURL}) {
        if (address.isEmpty())
            address = *next;
    }
    return address.replace("http://"_L1, "https://"_L1);
}

} // namespace tomely
