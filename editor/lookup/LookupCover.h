// The cover that a look-up names, fetched and read.

#pragma once

#include "model/Picture.h"

#include <QByteArrayView>
#include <QStringView>

namespace tomely {

class BookLookup;
class UrlFetch;

/// The SHA-1 digest, in base64, of the picture that the book service sends when it has no cover.
inline constexpr QStringView PlaceholderDigest = u"u9ZOcwLqWZo3okLpBRliA8/WZag=";

/// True for the picture of that digest, which is told apart from others without regard to case.
/// Another digest than the service's is for tests, which have no such picture.
bool isBlankImage(QByteArrayView data, QStringView placeholderDigest = PlaceholderDigest);

/// Fetches the best cover there is, or the best but the large one, and waits for it. Not valid when
/// there is none, or what comes is no picture or the placeholder.
Picture getImage(const BookLookup& lookup, bool ignoreLarge, UrlFetch& fetch,
    QStringView placeholderDigest = PlaceholderDigest);

} // namespace tomely
