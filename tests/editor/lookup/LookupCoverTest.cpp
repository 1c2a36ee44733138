#include "editor/lookup/LookupCover.h"
#include "tests/editor/lookup/SourcesDesk.h"
#include "tests/support/PlainPictures.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QString isbn = u"9780143039433"_s;

} // namespace

class LookupCoverTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tellsThePlaceholder_data();
    void tellsThePlaceholder();
    void knowsTheServicesPlaceholder();
    void fetchesEachSize_data();
    void fetchesEachSize();
    void leavesOutTheLargeOne();
    void asksNobodyWithoutAnAddress();
    void refusesThePlaceholder();
    void givesNoPicture_data();
    void givesNoPicture();
    void givesNoPictureWithoutAServer_data();
    void givesNoPictureWithoutAServer();

private:
    Picture cover(bool ignoreLarge)
    {
        return getImage(m_desk->lookUp(isbn), ignoreLarge, m_desk->fetch, scenePlaceholderDigest());
    }

    TestAuthority m_authority;
    std::unique_ptr<SourcesDesk> m_desk;
};

void LookupCoverTest::init()
{
    m_desk = std::make_unique<SourcesDesk>(m_authority);
}

void LookupCoverTest::tellsThePlaceholder_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("digest");
    QTest::addColumn<bool>("isBlank");
    // SHA-1 digests that are known everywhere.
    QTest::newRow("abc") << "abc"_ba << u"qZk+NkcGgWq6PiVxeFDCbJzQ2J0="_s << true;
    QTest::newRow("nothing") << QByteArray() << u"2jmj7l5rSw0yVb/vlWAYkK/YBwk="_s << true;
    QTest::newRow("any case") << "abc"_ba << u"QZK+nKCGgWQ6pIvXEfdcBjZq2j0="_s << true;
    QTest::newRow("another byte") << "abd"_ba << u"qZk+NkcGgWq6PiVxeFDCbJzQ2J0="_s << false;
    QTest::newRow("a byte more") << "abc\0"_ba + '\0' << u"qZk+NkcGgWq6PiVxeFDCbJzQ2J0="_s << false;
    QTest::newRow("without padding") << "abc"_ba << u"qZk+NkcGgWq6PiVxeFDCbJzQ2J0"_s << false;
    QTest::newRow("a line break") << "abc"_ba << u"qZk+NkcGgWq6PiVxeFDCbJzQ2J0=\n"_s << false;
}

void LookupCoverTest::tellsThePlaceholder()
{
    QFETCH(const QByteArray, data);
    QFETCH(const QString, digest);
    QFETCH(const bool, isBlank);
    QCOMPARE(isBlankImage(data, digest), isBlank);
}

void LookupCoverTest::knowsTheServicesPlaceholder()
{
    QCOMPARE(PlaceholderDigest.toString(), u"u9ZOcwLqWZo3okLpBRliA8/WZag="_s);
    QVERIFY(!isBlankImage("abc"));
    QVERIFY(!isBlankImage(scenePlaceholder()));
}

void LookupCoverTest::fetchesEachSize_data()
{
    QTest::addColumn<int>("index");
    for (std::size_t index = 0; index < sceneCovers.size(); ++index)
        QTest::newRow(sceneCovers.at(index).link.data()) << static_cast<int>(index);
}

void LookupCoverTest::fetchesEachSize()
{
    QFETCH(const int, index);
    QJsonObject info = fullVolumeInfo(m_desk->server);
    QJsonObject links = info["imageLinks"_L1].toObject();
    for (std::size_t larger = static_cast<std::size_t>(index) + 1; larger < sceneCovers.size();
         ++larger)
        links.remove(sceneCovers.at(larger).link);
    info["imageLinks"_L1] = links;
    serveVolume(m_desk->server, isbn, info);
    const SceneCover& wanted = sceneCovers.at(static_cast<std::size_t>(index));
    const Picture result = cover(false);
    QVERIFY(result.isValid());
    QCOMPARE(result.size(), wanted.size);
    QCOMPARE(m_desk->server.targets().last(), coverTarget(wanted.link));
}

void LookupCoverTest::leavesOutTheLargeOne()
{
    serveFullBook(m_desk->server, isbn);
    QCOMPARE(cover(false).size(), QSize(400, 600));
    QCOMPARE(cover(true).size(), QSize(200, 300));
}

void LookupCoverTest::asksNobodyWithoutAnAddress()
{
    serveBookWithoutCovers(m_desk->server, isbn);
    for (const bool ignoreLarge : {false, true}) {
        const Picture result = cover(ignoreLarge);
        QVERIFY(!result.isValid());
    }
    QVERIFY(!m_desk->server.targets().join(' ').contains("/covers/"));
    // An address that is there for the large one alone.
    serveBookPage(m_desk->server, isbn);
    m_desk->settings.enableAlternateSources = true;
    QCOMPARE(cover(false).size(), pageCoverSize);
    QVERIFY(!cover(true).isValid());
}

void LookupCoverTest::refusesThePlaceholder()
{
    serveBookWithPlaceholder(m_desk->server, isbn);
    const Picture large = cover(false);
    QVERIFY(!large.isValid());
    QCOMPARE(m_desk->server.targets().last(), coverTarget("large"_L1));
    QCOMPARE(cover(true).size(), QSize(200, 300));
    // Nothing but its digest makes it one.
    const BookLookup lookup = m_desk->lookUp(isbn);
    QVERIFY(getImage(lookup, false, m_desk->fetch).isValid());
}

void LookupCoverTest::givesNoPicture_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("status");
    const QByteArray picture = samples::plainPicture(Qt::red, QSize(400, 600));
    QTest::newRow("not found") << picture << 404;
    QTest::newRow("not available") << picture << 503;
    QTest::newRow("empty") << QByteArray() << 200;
    QTest::newRow("no picture") << "<html>no cover</html>"_ba << 200;
    QTest::newRow("cut off") << picture.first(picture.size() / 2) << 200;
    QTest::newRow("drawing") << "<svg xmlns='http://www.w3.org/2000/svg'/>"_ba << 200;
}

void LookupCoverTest::givesNoPicture()
{
    QFETCH(const QByteArray, body);
    QFETCH(const int, status);
    serveFullBook(m_desk->server, isbn);
    m_desk->server.serve(coverTarget("large"_L1), {body, status});
    const Picture large = cover(false);
    QVERIFY(!large.isValid());
    QVERIFY(cover(true).isValid());
}

void LookupCoverTest::givesNoPictureWithoutAServer_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("no server") << u"cover.jpg"_s;
    QTest::newRow("a file") << u"file:///usr/share/pixmaps/debian-logo.png"_s;
    QTest::newRow("data") << u"data:image/png;base64,AAAA"_s;
    QTest::newRow("no address") << u"https://"_s;
    QTest::newRow("not valid") << u"https://[x"_s;
    QTest::newRow("spaces") << u"  "_s;
}

void LookupCoverTest::givesNoPictureWithoutAServer()
{
    QFETCH(const QString, address);
    serveVolume(m_desk->server, isbn, {{"imageLinks"_L1, QJsonObject{{"large"_L1, address}}}});
    const Picture result = cover(false);
    QVERIFY(!result.isValid());
}

QTEST_GUILESS_MAIN(LookupCoverTest)

#include "LookupCoverTest.moc"
