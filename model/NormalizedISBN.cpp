#include "model/NormalizedISBN.h"

#include <QByteArray>

#include <utility>

namespace tomely {

namespace {

constexpr qsizetype mostBytes = 1023;

bool isAsciiLetterOrDigit(char byte)
{
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z')
        || (byte >= 'a' && byte <= 'z');
}

} // namespace

QString normalizedISBN(QStringView text)
{
    // No character has fewer bytes than it has units, so what is cut here would be cut anyway.
    QByteArray bytes = text.first(qMin(text.size(), mostBytes)).toUtf8();
    bytes.truncate(mostBytes);
    QString isbn;
    for (const char byte : std::as_const(bytes)) {
        if (isAsciiLetterOrDigit(byte))
            isbn.append(QLatin1Char(byte));
    }
    return isbn.toUpper();
}

} // namespace tomely
