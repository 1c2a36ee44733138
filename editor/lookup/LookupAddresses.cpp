#include "editor/lookup/LookupAddresses.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int mostPort = 65'535;
constexpr qsizetype mostPortDigits = 5;

bool isHostName(QStringView name)
{
    const auto isPartOfName = [](QChar character) {
        return character.isLetterOrNumber() || character == u'-' || character == u'.';
    };
    return !name.isEmpty() && std::ranges::all_of(name, isPartOfName);
}

/// 0 when it is none.
int portOf(QStringView text)
{
    const auto isDigit = [](QChar character) {
        return character >= u'0' && character <= u'9';
    };
    if (text.size() > mostPortDigits || !std::ranges::all_of(text, isDigit))
        return 0;
    const int port = text.toInt();
    return port <= mostPort ? port : 0;
}

/// The root of a host; empty when the text names no host.
QUrl rootOf(QStringView host)
{
    const qsizetype colon = host.indexOf(u':');
    const QStringView name = colon < 0 ? host : host.first(colon);
    const int port = colon < 0 ? -1 : portOf(host.sliced(colon + 1));
    if (!isHostName(name) || port == 0)
        return {};
    QUrl url;
    url.setScheme(u"https"_s);
    url.setHost(name.toString(), QUrl::StrictMode);
    url.setPort(port);
    return url.isValid() && !url.host().isEmpty() ? url : QUrl();
}

QString encoded(const QString& text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

/// "/books/" and "x" are "/books/x", whatever "x" is.
QUrl withPath(QUrl url, QLatin1StringView folder, const QString& name)
{
    // These stand for folders, however they are written.
    if (url.isEmpty() || name == "."_L1 || name == ".."_L1)
        return {};
    url.setPath(folder + encoded(name), QUrl::StrictMode);
    return url;
}

} // namespace

QUrl viewAddress(const QString& host, const QString& isbn)
{
    QUrl url = rootOf(host);
    if (url.isEmpty())
        return {};
    url.setPath(u"/books"_s);
    url.setQuery("jscmd=viewapi&bibkeys=ISBN:"_L1 + encoded(isbn), QUrl::StrictMode);
    return url;
}

QUrl volumeAddress(const QString& host, const QString& identifier, const QString& serviceKey)
{
    QUrl url = withPath(rootOf(host), "/books/v1/volumes/"_L1, identifier);
    if (!url.isEmpty() && !serviceKey.isEmpty())
        url.setQuery("key="_L1 + encoded(serviceKey), QUrl::StrictMode);
    return url;
}

QUrl bookPageAddress(const QString& host, const QString& isbn)
{
    return withPath(rootOf(host), "/isbn/"_L1, isbn);
}

} // namespace tomely
