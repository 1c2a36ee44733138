#include "tests/editor/lookup/SourcesDesk.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QString isbn = u"9780143039433"_s;

QString addressOf(QLatin1StringView link)
{
    return u"http://x/%1"_s.arg(link);
}

/// Links of the covers whose bits are set, from the smallest to the largest.
QJsonObject linksOf(unsigned covers)
{
    QJsonObject links;
    for (unsigned index = 0; index < sceneCovers.size(); ++index) {
        const QLatin1StringView link = sceneCovers.at(index).link;
        if ((covers & 1U << index) != 0)
            links[link] = addressOf(link);
    }
    return links;
}

/// The address of the largest of the covers whose bits are set; null when none is.
QString bestOf(unsigned covers)
{
    QString best;
    for (unsigned index = 0; index < sceneCovers.size(); ++index) {
        if ((covers & 1U << index) != 0)
            best = addressOf(sceneCovers.at(index).link).replace(u"http:"_s, u"https:"_s);
    }
    return best;
}

} // namespace

class BookLookupTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void readsAFullBook();
    void knowsNothingWithoutSources();
    void asksForTheIsbnAsItStands();
    void findsNothingForAnEmptyIsbn();
    void stopsWhenThePersonGivesUp();

    void joinsAuthorsAsPreferred();
    void splitsDates_data();
    void splitsDates();
    void choosesTheBestCover_data();
    void choosesTheBestCover();
    void wantsCoversByHttps_data();
    void wantsCoversByHttps();

    void endsSourceOne_data();
    void endsSourceOne();
    void keepsTheIdentifierInItsPlace();
    void asksForAnEmptyIdentifier();
    void usesTheKeyOnlyWhenRefused();
    void usesNoKeyThatIsNotThere();
    void failsWithARefusedKey();

    void asksTheSecondSourceForWhatIsMissing_data();
    void asksTheSecondSourceForWhatIsMissing();
    void readsThePageAlone();
    void keepsWhatTheFirstSourceKnew();
    void endsSourceTwo_data();
    void endsSourceTwo();
    void asksNoSecondSourceWithoutAHost();

private:
    static void compareWithNothing(const BookLookup& lookup);
    void serveRecord(const QByteArray& record);

    TestAuthority m_authority;
    std::unique_ptr<SourcesDesk> m_desk;
};

void BookLookupTest::init()
{
    m_desk = std::make_unique<SourcesDesk>(m_authority);
}

void BookLookupTest::serveRecord(const QByteArray& record)
{
    serveFullBook(m_desk->server, isbn);
    m_desk->server.serve(volumeTarget(isbn), {record});
}

void BookLookupTest::compareWithNothing(const BookLookup& lookup)
{
    QVERIFY(lookup.hasLoadError());
    QVERIFY(lookup.getTitle().isNull());
    QVERIFY(lookup.getAuthor().isNull());
    QVERIFY(lookup.getISBN().isNull());
    QVERIFY(lookup.getPublisher().isNull());
    QVERIFY(lookup.getPublicationDate().isNull());
    QVERIFY(lookup.getNumberOfPages().isNull());
    QVERIFY(lookup.getSmallThumbnailImageURL().isNull());
    QVERIFY(lookup.getThumbnailImageURL().isNull());
    QVERIFY(lookup.getSmallImageURL().isNull());
    QVERIFY(lookup.getMediumImageURL().isNull());
    QVERIFY(lookup.getLargeImageURL().isNull());
    QVERIFY(lookup.getBestImageURL(false).isNull());
    QVERIFY(lookup.getBestImageURL(true).isNull());
    QCOMPARE(lookup.getPublicationYear(), u""_s);
    QVERIFY(!lookup.getPublicationYear().isNull());
    QCOMPARE(lookup.getPublicationMonth(), 0);
}

void BookLookupTest::readsAFullBook()
{
    serveFullBook(m_desk->server, isbn);
    const BookLookup lookup = m_desk->lookUp(isbn);
    QVERIFY(!lookup.hasLoadError());
    QCOMPARE(lookup.getTitle(), u"The Grapes of Wrath"_s);
    QCOMPARE(lookup.getAuthor(), u"John Steinbeck"_s);
    QCOMPARE(lookup.getISBN(), isbn);
    QCOMPARE(lookup.getPublisher(), u"Penguin"_s);
    QCOMPARE(lookup.getPublicationDate(), u"2006-03-28"_s);
    QCOMPARE(lookup.getPublicationYear(), u"2006"_s);
    QCOMPARE(lookup.getPublicationMonth(), 3);
    QCOMPARE(lookup.getNumberOfPages(), u"464"_s);
    const QString covers = u"http://%1/covers/%2?zoom=1"_s.arg(m_desk->server.host());
    QCOMPARE(lookup.getSmallThumbnailImageURL(), covers.arg(u"smallThumbnail"_s));
    QCOMPARE(lookup.getThumbnailImageURL(), covers.arg(u"thumbnail"_s));
    QCOMPARE(lookup.getSmallImageURL(), covers.arg(u"small"_s));
    QCOMPARE(lookup.getMediumImageURL(), covers.arg(u"medium"_s));
    QCOMPARE(lookup.getLargeImageURL(), covers.arg(u"large"_s));
    QCOMPARE(lookup.getBestImageURL(false),
        u"https://%1/covers/large?zoom=1"_s.arg(m_desk->server.host()));
    QCOMPARE(m_desk->server.targets(),
        QList<QByteArray>({"/books?jscmd=viewapi&bibkeys=ISBN:9780143039433", volumeTarget(isbn)}));
}

void BookLookupTest::knowsNothingWithoutSources()
{
    m_desk->settings.enableAlternateSources = true;
    compareWithNothing(m_desk->lookUp(isbn));
    QCOMPARE(m_desk->server.targets(), QList<QByteArray>({viewTarget(isbn), bookPageTarget(isbn)}));
}

void BookLookupTest::asksForTheIsbnAsItStands()
{
    m_desk->settings.enableAlternateSources = true;
    m_desk->lookUp(u"0-8044/2957 x"_s);
    QCOMPARE(m_desk->server.targets(),
        QList<QByteArray>(
            {"/books?jscmd=viewapi&bibkeys=ISBN:0-8044%2F2957%20x", "/isbn/0-8044%2F2957%20x"}));
}

void BookLookupTest::findsNothingForAnEmptyIsbn()
{
    serveFullBook(m_desk->server, u""_s);
    const BookLookup lookup = m_desk->lookUp(u""_s);
    QCOMPARE(lookup.getTitle(), u"The Grapes of Wrath"_s);
    QVERIFY(lookup.getISBN().isNull());
    QVERIFY(lookup.hasLoadError());
}

void BookLookupTest::stopsWhenThePersonGivesUp()
{
    serveFullBook(m_desk->server, isbn);
    serveBookPage(m_desk->server, isbn);
    m_desk->settings.enableAlternateSources = true;
    m_desk->fetch.giveUp();
    compareWithNothing(m_desk->lookUp(isbn));
    QCOMPARE(m_desk->server.targets(), QList<QByteArray>());
}

void BookLookupTest::joinsAuthorsAsPreferred()
{
    serveBookOfFourAuthors(m_desk->server, isbn);
    QCOMPARE(m_desk->lookUp(isbn).getAuthor(), u"A and B and C and D"_s);
    m_desk->settings.disableAuthorConcatenation = true;
    QCOMPARE(m_desk->lookUp(isbn).getAuthor(), u"A"_s);
}

void BookLookupTest::splitsDates_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("year");
    QTest::addColumn<int>("month");
    QTest::newRow("day") << u"2004-07-15"_s << u"2004"_s << 7;
    QTest::newRow("month") << u"1999-03"_s << u"1999"_s << 3;
    QTest::newRow("year") << u"1999"_s << u"1999"_s << 0;
    QTest::newRow("in words") << u"March 28, 2006"_s << u"March 28, 2006"_s << 0;
    QTest::newRow("no month") << u"2004-"_s << u"2004"_s << 0;
    QTest::newRow("two hyphens") << u"2004--15"_s << u"2004"_s << 0;
    QTest::newRow("no year") << u"-07"_s << u""_s << 7;
    QTest::newRow("hyphen alone") << u"-"_s << u""_s << 0;
    QTest::newRow("no such month") << u"2004-13"_s << u"2004"_s << 13;
    QTest::newRow("letters") << u"2004-July"_s << u"2004"_s << 0;
    QTest::newRow("number in front") << u"2004-7th-1"_s << u"2004"_s << 7;
    QTest::newRow("white space") << u"2004 - 07"_s << u"2004 "_s << 7;
    QTest::newRow("too much") << u"2004-99999999999"_s << u"2004"_s << 2147483647;
    QTest::newRow("empty") << u""_s << u""_s << 0;
}

void BookLookupTest::splitsDates()
{
    QFETCH(const QString, date);
    serveVolume(m_desk->server, isbn, {{"publishedDate"_L1, date}});
    const BookLookup lookup = m_desk->lookUp(isbn);
    QCOMPARE(lookup.getPublicationDate(), date);
    QTEST(lookup.getPublicationYear(), "year");
    QVERIFY(!lookup.getPublicationYear().isNull());
    QTEST(lookup.getPublicationMonth(), "month");
}

void BookLookupTest::choosesTheBestCover_data()
{
    QTest::addColumn<unsigned>("covers"); // a bit for each that there is, the smallest first
    for (unsigned covers = 0; covers < 1U << sceneCovers.size(); ++covers)
        QTest::addRow("covers %u", covers) << covers;
}

void BookLookupTest::choosesTheBestCover()
{
    QFETCH(const unsigned, covers);
    constexpr unsigned large = 1U << 4U;
    serveVolume(m_desk->server, isbn, {{"imageLinks"_L1, linksOf(covers)}});
    const BookLookup lookup = m_desk->lookUp(isbn);
    QCOMPARE(lookup.getBestImageURL(false), bestOf(covers));
    QCOMPARE(lookup.getBestImageURL(true), bestOf(covers & ~large));
    // What is empty counts as missing.
    QJsonObject links = linksOf(covers);
    for (const SceneCover& cover : sceneCovers) {
        if (!links.contains(cover.link))
            links[cover.link] = u""_s;
    }
    serveVolume(m_desk->server, isbn, {{"imageLinks"_L1, links}});
    QCOMPARE(m_desk->lookUp(isbn).getBestImageURL(false), bestOf(covers));
}

void BookLookupTest::wantsCoversByHttps_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("wanted");
    QTest::newRow("http") << u"http://x/y?zoom=1"_s << u"https://x/y?zoom=1"_s;
    QTest::newRow("https") << u"https://x/y"_s << u"https://x/y"_s;
    QTest::newRow("within") << u"http://x/?u=http://y/"_s << u"https://x/?u=https://y/"_s;
    QTest::newRow("capitals") << u"HTTP://x/"_s << u"HTTP://x/"_s;
    QTest::newRow("no address") << u"cover.jpg"_s << u"cover.jpg"_s;
}

void BookLookupTest::wantsCoversByHttps()
{
    QFETCH(const QString, address);
    serveVolume(m_desk->server, isbn, {{"imageLinks"_L1, QJsonObject{{"large"_L1, address}}}});
    const BookLookup lookup = m_desk->lookUp(isbn);
    QTEST(lookup.getBestImageURL(false), "wanted");
    QCOMPARE(lookup.getLargeImageURL(), address);
}

void BookLookupTest::endsSourceOne_data()
{
    QTest::addColumn<QByteArray>("view");
    QTest::addColumn<int>("viewStatus");
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<int>("recordStatus");
    QTest::addColumn<int>("requests");
    const QByteArray view = viewReply("Vol-9780143039433_C");
    const QByteArray record = R"({"volumeInfo": {"title": "x"}})";
    const auto row = [](const char* name, const QByteArray& viewBody, int viewStatus,
                         const QByteArray& recordBody, int recordStatus, int requests) {
        QTest::newRow(name) << viewBody << viewStatus << recordBody << recordStatus << requests;
    };
    row("view not found", view, 404, record, 200, 1);
    row("view not available", view, 503, record, 200, 1);
    row("view not decodable", view + '\xFF', 200, record, 200, 1);
    row("view empty", {}, 200, record, 200, 1);
    row("no identifier", "var _BookInfo = {};", 200, record, 200, 1);
    row("no start", QByteArray(view).replace("?id=", "?no="), 200, record, 200, 1);
    row("no end", QByteArray(view).replace("\\u0026", "&"), 200, record, 200, 1);
    row("end before start", "\\u0026" + view, 200, record, 200, 1);
    row("record not found", view, 200, record, 404, 2);
    row("record not available", view, 200, record, 503, 2);
    row("record empty", view, 200, {}, 200, 2);
    row("record no JSON", view, 200, "{", 200, 2);
    row("record no object", view, 200, '[' + record + ']', 200, 2);
    row("record no volume", view, 200, R"({"kind": "x"})", 200, 2);
    row("volume no object", view, 200, R"({"volumeInfo": "x"})", 200, 2);
}

void BookLookupTest::endsSourceOne()
{
    QFETCH(const QByteArray, view);
    QFETCH(const int, viewStatus);
    QFETCH(const QByteArray, record);
    QFETCH(const int, recordStatus);
    QFETCH(const int, requests);
    m_desk->server.serve(viewTarget(isbn), {view, viewStatus});
    m_desk->server.serve(volumeTarget(isbn), {record, recordStatus});
    compareWithNothing(m_desk->lookUp(isbn));
    QCOMPARE(m_desk->server.requests().size(), requests);
    // The other source is still there.
    serveBookPage(m_desk->server, isbn);
    m_desk->settings.enableAlternateSources = true;
    QVERIFY(!m_desk->lookUp(isbn).hasLoadError());
}

void BookLookupTest::keepsTheIdentifierInItsPlace()
{
    m_desk->server.serve(viewTarget(isbn), {viewReply("../../x?y#z&key=1")});
    m_desk->lookUp(isbn);
    QCOMPARE(m_desk->server.targets().last(), "/books/v1/volumes/..%2F..%2Fx%3Fy%23z%26key%3D1"_ba);
    // No path is left of this one.
    m_desk->server.forgetRequests();
    m_desk->server.serve(viewTarget(isbn), {viewReply("..")});
    m_desk->lookUp(isbn);
    QCOMPARE(m_desk->server.targets(), QList<QByteArray>{viewTarget(isbn)});
}

void BookLookupTest::asksForAnEmptyIdentifier()
{
    m_desk->server.serve(viewTarget(isbn), {viewReply("")});
    m_desk->server.serve("/books/v1/volumes/", {R"({"volumeInfo": {"title": "x"}})"});
    QCOMPARE(m_desk->lookUp(isbn).getTitle(), u"x"_s);
}

void BookLookupTest::usesTheKeyOnlyWhenRefused()
{
    m_desk->settings.serviceKey = u"se cret&"_s;
    const QByteArray withKey = volumeTarget(isbn) + "?key=se%20cret%26";
    serveFullBook(m_desk->server, isbn);
    QVERIFY(!m_desk->lookUp(isbn).hasLoadError());
    QVERIFY(!m_desk->server.targets().contains(withKey));

    m_desk->server.forgetRequests();
    m_desk->server.serve(volumeTarget(isbn), {"too many", 429});
    m_desk->server.serve(withKey, {R"({"volumeInfo": {"title": "by key"}})"});
    QCOMPARE(m_desk->lookUp(isbn).getTitle(), u"by key"_s);
    QCOMPARE(m_desk->server.targets(),
        QList<QByteArray>({viewTarget(isbn), volumeTarget(isbn), withKey}));

    // An answer that is of no use is still an answer.
    m_desk->server.forgetRequests();
    m_desk->server.serve(volumeTarget(isbn), {"no JSON"});
    QVERIFY(m_desk->lookUp(isbn).hasLoadError());
    QCOMPARE(m_desk->server.targets(), QList<QByteArray>({viewTarget(isbn), volumeTarget(isbn)}));
}

void BookLookupTest::usesNoKeyThatIsNotThere()
{
    m_desk->server.serve(viewTarget(isbn), {viewReply("x")});
    QVERIFY(m_desk->lookUp(isbn).hasLoadError());
    QCOMPARE(
        m_desk->server.targets(), QList<QByteArray>({viewTarget(isbn), "/books/v1/volumes/x"}));
}

void BookLookupTest::failsWithARefusedKey()
{
    m_desk->settings.serviceKey = u"k"_s;
    m_desk->server.serve(viewTarget(isbn), {viewReply("x")});
    compareWithNothing(m_desk->lookUp(isbn));
    QCOMPARE(m_desk->server.targets(),
        QList<QByteArray>({viewTarget(isbn), "/books/v1/volumes/x", "/books/v1/volumes/x?key=k"}));
}

void BookLookupTest::asksTheSecondSourceForWhatIsMissing_data()
{
    QTest::addColumn<QStringList>("missing");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("asked");
    QTest::newRow("nothing") << QStringList() << true << false;
    QTest::newRow("nothing, disabled") << QStringList() << false << false;
    QTest::newRow("large cover") << QStringList{u"large"_s} << true << true;
    QTest::newRow("large cover, disabled") << QStringList{u"large"_s} << false << false;
    QTest::newRow("covers") << QStringList{u"imageLinks"_s} << true << true;
    QTest::newRow("title") << QStringList{u"title"_s} << true << true;
    QTest::newRow("title, disabled") << QStringList{u"title"_s} << false << false;
    QTest::newRow("author") << QStringList{u"authors"_s} << true << true;
    QTest::newRow("author, disabled") << QStringList{u"authors"_s} << false << false;
    const QStringList others{u"publisher"_s, u"publishedDate"_s, u"printedPageCount"_s, u"small"_s,
        u"medium"_s, u"thumbnail"_s, u"smallThumbnail"_s};
    QTest::newRow("all others") << others << true << false;
}

void BookLookupTest::asksTheSecondSourceForWhatIsMissing()
{
    QFETCH(const QStringList, missing);
    QFETCH(const bool, enabled);
    QFETCH(const bool, asked);
    QJsonObject info = fullVolumeInfo(m_desk->server);
    QJsonObject links = info["imageLinks"_L1].toObject();
    for (const QString& name : missing)
        links.remove(name);
    info["imageLinks"_L1] = links;
    for (const QString& name : missing)
        info.remove(name);
    serveVolume(m_desk->server, isbn, info);
    serveBookPage(m_desk->server, isbn);
    m_desk->settings.enableAlternateSources = enabled;
    const BookLookup lookup = m_desk->lookUp(isbn);
    QCOMPARE(m_desk->server.targets().contains(bookPageTarget(isbn)), asked);
    const auto wanted = [&](const char* name, const QString& first, const QString& second) {
        const bool isMissing = missing.contains(QLatin1StringView(name));
        return !isMissing ? first : asked ? second : QString();
    };
    QCOMPARE(lookup.getTitle(),
        wanted("title", u"The Grapes of Wrath"_s, u"The Grapes of Wrath: Centennial Edition"_s));
    QCOMPARE(lookup.getAuthor(), wanted("authors", u"John Steinbeck"_s, u"J. Steinbeck"_s));
    QCOMPARE(lookup.getPublisher(), wanted("publisher", u"Penguin"_s, u"Penguin Classics"_s));
    if (missing.contains(u"large"_s))
        QCOMPARE(lookup.getLargeImageURL().endsWith("/covers/page?zoom=1"_L1), asked);
    QVERIFY(!lookup.hasLoadError());
}

void BookLookupTest::readsThePageAlone()
{
    serveBookPage(m_desk->server, isbn);
    m_desk->settings.enableAlternateSources = true;
    const BookLookup lookup = m_desk->lookUp(isbn);
    QVERIFY(!lookup.hasLoadError());
    QCOMPARE(lookup.getISBN(), isbn);
    QCOMPARE(lookup.getTitle(), u"The Grapes of Wrath: Centennial Edition"_s);
    QCOMPARE(lookup.getAuthor(), u"J. Steinbeck"_s);
    QCOMPARE(lookup.getPublisher(), u"Penguin Classics"_s);
    QCOMPARE(lookup.getNumberOfPages(), u"479"_s);
    QCOMPARE(lookup.getPublicationDate(), u"March 28, 2006"_s);
    QCOMPARE(lookup.getPublicationYear(), u"March 28, 2006"_s);
    QCOMPARE(lookup.getPublicationMonth(), 0);
    QCOMPARE(
        lookup.getLargeImageURL(), u"http://%1/covers/page?zoom=1"_s.arg(m_desk->server.host()));
    QVERIFY(lookup.getMediumImageURL().isNull());
}

void BookLookupTest::keepsWhatTheFirstSourceKnew()
{
    serveBookWithoutLargeCover(m_desk->server, isbn);
    serveBookPage(m_desk->server, isbn);
    QVERIFY(m_desk->lookUp(isbn).getLargeImageURL().isNull());
    m_desk->settings.enableAlternateSources = true;
    const BookLookup lookup = m_desk->lookUp(isbn);
    QCOMPARE(lookup.getTitle(), u"The Grapes of Wrath"_s);
    QCOMPARE(lookup.getAuthor(), u"John Steinbeck"_s);
    QCOMPARE(lookup.getPublisher(), u"Penguin"_s);
    QCOMPARE(lookup.getNumberOfPages(), u"464"_s);
    QCOMPARE(lookup.getPublicationDate(), u"2006-03-28"_s);
    QVERIFY(lookup.getLargeImageURL().endsWith("/covers/page?zoom=1"_L1));
    QVERIFY(lookup.getMediumImageURL().endsWith("/covers/medium?zoom=1"_L1));
}

void BookLookupTest::endsSourceTwo_data()
{
    QTest::addColumn<QByteArray>("rest");
    QTest::addColumn<int>("status");
    QTest::newRow("not found") << QByteArray() << 404;
    QTest::newRow("not available") << QByteArray() << 503;
    QTest::newRow("not decodable") << "\xE9"_ba << 200;
}

void BookLookupTest::endsSourceTwo()
{
    QFETCH(const QByteArray, rest);
    QFETCH(const int, status);
    m_desk->settings.enableAlternateSources = true;
    m_desk->server.serve(bookPageTarget(isbn), {bookPage(m_desk->server) + rest, status});
    compareWithNothing(m_desk->lookUp(isbn));
    QCOMPARE(m_desk->server.targets().last(), bookPageTarget(isbn));
    serveBookWithoutDetails(m_desk->server, isbn);
    const BookLookup lookup = m_desk->lookUp(isbn);
    QCOMPARE(lookup.getTitle(), u"The Grapes of Wrath"_s);
    QVERIFY(lookup.getAuthor().isNull());
    QVERIFY(!lookup.hasLoadError());
}

void BookLookupTest::asksNoSecondSourceWithoutAHost()
{
    m_desk->settings.enableAlternateSources = true;
    m_desk->settings.pageHost.clear();
    serveBookPage(m_desk->server, isbn);
    compareWithNothing(m_desk->lookUp(isbn));
    QCOMPARE(m_desk->server.targets(), QList<QByteArray>{viewTarget(isbn)});
}

QTEST_GUILESS_MAIN(BookLookupTest)

#include "BookLookupTest.moc"
