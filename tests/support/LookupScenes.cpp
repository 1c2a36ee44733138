#include "tests/support/LookupScenes.h"

#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"
#include "tests/support/LookupServer.h"
#include "tests/support/PlainPictures.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr QLatin1StringView pageCover = "page"_L1;

QByteArray identifierFor(const QString& isbn)
{
    return "Vol-" + isbn.toUtf8() + "_C";
}

QString coverAddress(const LookupServer& server, QLatin1StringView link)
{
    return u"http://%1%2"_s.arg(server.host(), QString::fromUtf8(coverTarget(link)));
}

void serveCovers(LookupServer& server)
{
    for (const auto& [link, size] : sceneCovers) {
        const char* const format = size.width() < 100 ? "PNG" : "JPEG";
        server.serve(coverTarget(link), {samples::plainPicture(Qt::darkGreen, size, format)});
    }
}

QJsonObject withoutCovers(QJsonObject info)
{
    info.remove("imageLinks"_L1);
    return info;
}

} // namespace

QByteArray viewTarget(const QString& isbn)
{
    return "/books?jscmd=viewapi&bibkeys=ISBN:" + isbn.toUtf8();
}

QByteArray volumeTarget(const QString& isbn)
{
    return "/books/v1/volumes/" + identifierFor(isbn);
}

QByteArray bookPageTarget(const QString& isbn)
{
    return "/isbn/" + isbn.toUtf8();
}

QByteArray coverTarget(QLatin1StringView link)
{
    return "/covers/" + QByteArray(link.data(), link.size()) + "?zoom=1";
}

QByteArray viewReply(const QByteArray& identifier)
{
    return R"(var _BookInfo = {"ISBN":{"bib_key":"ISBN","info_url":"https://books.example/books?id=)"
        + identifier + R"(\u0026source=gbs_ViewAPI","preview_url":"https://books.example/books?id=)"
        + identifier + R"(\u0026printsec=frontcover\u0026source=gbs_ViewAPI","thumbnail_url":)"
        + R"("https://books.example/books/content?id=)" + identifier
        + R"(\u0026printsec=frontcover\u0026img=1\u0026zoom=5","preview":"partial"}};)";
}

QJsonObject fullVolumeInfo(const LookupServer& server)
{
    QJsonObject links;
    for (const SceneCover& cover : sceneCovers)
        links[cover.link] = coverAddress(server, cover.link);
    return {
        {"title"_L1, "The Grapes of Wrath"_L1},
        {"authors"_L1, QJsonArray{"John Steinbeck"_L1}},
        {"publisher"_L1, "Penguin"_L1},
        {"publishedDate"_L1, "2006-03-28"_L1},
        {"description"_L1, "<p>A family on its way to California.</p>"_L1},
        {"pageCount"_L1, 496},
        {"printedPageCount"_L1, 464},
        {"imageLinks"_L1, links},
        {"language"_L1, "en"_L1},
    };
}

void serveVolume(LookupServer& server, const QString& isbn, const QJsonObject& volumeInfo)
{
    server.serve(viewTarget(isbn), {viewReply(identifierFor(isbn))});
    const QJsonObject record{
        {"kind"_L1, "books#volume"_L1},
        {"id"_L1, QString::fromUtf8(identifierFor(isbn))},
        {"volumeInfo"_L1, volumeInfo},
    };
    server.serve(volumeTarget(isbn), {QJsonDocument(record).toJson()});
    serveCovers(server);
}

QByteArray bookPage(const LookupServer& server)
{
    return R"(<!DOCTYPE html>
<html><head>
<meta property="og:title" content="Steinbeck" />
<meta property="og:image" content=")"
        + coverAddress(server, pageCover).toUtf8() + R"(" />
</head><body>
<div class="book-heading-row"><a href="/">Home</a>
  <h1>The Grapes of Wrath: Centennial Edition</h1>
</div>
<div><span>Author(s)</span> <a href="/author/steinbeck">J. Steinbeck</a>
  <a href="/author/demott">R. DeMott</a></div>
<div class="min_frmt"><span>Format</span> <span class="book-detail">Paperback, 479 pages</span></div>
<div><span>Publisher</span> <span class="book-detail"><a href="/p">Penguin Classics</a></span></div>
<div><span>Published</span> <span class="book-detail">March 28, 2006</span></div>
</body></html>
)";
}

void serveBookPage(LookupServer& server, const QString& isbn)
{
    server.serve(bookPageTarget(isbn), {bookPage(server)});
    server.serve(coverTarget(pageCover), {samples::plainPicture(Qt::darkBlue, pageCoverSize)});
}

void serveFullBook(LookupServer& server, const QString& isbn)
{
    serveVolume(server, isbn, fullVolumeInfo(server));
}

void serveBookOfFourAuthors(LookupServer& server, const QString& isbn)
{
    QJsonObject info = fullVolumeInfo(server);
    info["authors"_L1] = QJsonArray{"A"_L1, "B"_L1, "C"_L1, "D"_L1};
    serveVolume(server, isbn, info);
}

void serveBookWithoutLargeCover(LookupServer& server, const QString& isbn)
{
    QJsonObject info = fullVolumeInfo(server);
    QJsonObject links = info["imageLinks"_L1].toObject();
    links.remove("large"_L1);
    info["imageLinks"_L1] = links;
    serveVolume(server, isbn, info);
}

void serveBookWithoutCovers(LookupServer& server, const QString& isbn)
{
    serveVolume(server, isbn, withoutCovers(fullVolumeInfo(server)));
}

void serveBookWithoutDetails(LookupServer& server, const QString& isbn)
{
    serveVolume(server, isbn, {{"title"_L1, "The Grapes of Wrath"_L1}});
}

void serveBookWithPlaceholder(LookupServer& server, const QString& isbn)
{
    serveFullBook(server, isbn);
    server.serve(coverTarget("large"_L1), {scenePlaceholder()});
}

QByteArray scenePlaceholder()
{
    return samples::plainPicture(Qt::lightGray, QSize(300, 400), "PNG");
}

QString scenePlaceholderDigest()
{
    const QByteArray digest =
        QCryptographicHash::hash(scenePlaceholder(), QCryptographicHash::Sha1);
    return QString::fromLatin1(digest.toBase64());
}

void askServer(UserDefaults& defaults, const LookupServer& server)
{
    for (const QLatin1StringView host : {PreferenceKeys::LookupViewHost,
             PreferenceKeys::LookupVolumesHost, PreferenceKeys::LookupPageHost})
        defaults.setString(host, server.host());
}

} // namespace tomely
