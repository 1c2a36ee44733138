#include "editor/lookup/LookupCover.h"

#include "editor/lookup/BookLookup.h"
#include "model/NSDataAdditions.h"
#include "platform/network/UrlFetch.h"

#include <QCryptographicHash>
#include <QUrl>

namespace tomely {

bool isBlankImage(QByteArrayView data, QStringView placeholderDigest)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(data);
    const QString digest = base64Encoding(hash.result());
    return placeholderDigest.compare(digest, Qt::CaseInsensitive) == 0;
}

Picture getImage(
    const BookLookup& lookup, bool ignoreLarge, UrlFetch& fetch, QStringView placeholderDigest)
{
    const QString address = lookup.getBestImageURL(ignoreLarge);
    if (address.isEmpty())
        return {};
    const auto data = fetch.fetch(QUrl(address));
    if (!data || data->isEmpty() || isBlankImage(*data, placeholderDigest))
        return {};
    return Picture::fromEncoded(*data);
}

} // namespace tomely
