#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include "platform/network/PublicAddress.h"
#include "tests/support/LookupServer.h"

using namespace Qt::StringLiterals;
using namespace tomely;

using Body = std::optional<QByteArray>;

class UrlFetchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void hasStrictDefaults();
    void givesWholeBody_data();
    void givesWholeBody();
    void givesBodyOfSuccessOnly_data();
    void givesBodyOfSuccessOnly();
    void readsEveryWayToTellTheEnd_data();
    void readsEveryWayToTellTheEnd();
    void sendsHonestHeadersOnly();
    void keepsPathAndQuery();
    void keepsNothingBetweenFetches();
    void sendsNoPassword();
    void followsRedirects_data();
    void followsRedirects();
    void endsAfterSoManyRedirects();
    void handlesEventsMeanwhile();
    void givesUp();
    void givesNothingAfterGivingUp();
    void givesUpBeforeConnecting();
    void givesNothingWithinFetch();
    void endsWithProgram();

private:
    Body fetch(const QByteArray& target)
    {
        return UrlFetch(m_authority.policy()).fetch(m_server->url(target));
    }

    TestAuthority m_authority;
    ServerIdentity m_identity = m_authority.identityFor(u"localhost"_s);
    std::unique_ptr<LookupServer> m_server;
};

void UrlFetchTest::init()
{
    m_server = std::make_unique<LookupServer>(m_identity);
}

void UrlFetchTest::hasStrictDefaults()
{
    const FetchPolicy policy;
    QVERIFY(policy.mostTime == std::chrono::seconds(30));
    QCOMPARE(policy.mostBytes, 20'000'000);
    QCOMPARE(policy.mostRedirects, 5);
    const auto* const mayConnect = policy.mayConnect.target<bool (*)(const QHostAddress&)>();
    QVERIFY(mayConnect != nullptr && *mayConnect == &isPublicAddress);
    QVERIFY(policy.furtherAuthorities.isEmpty());
    QVERIFY(policy.knownHosts.isEmpty());
}

void UrlFetchTest::givesWholeBody_data()
{
    QTest::addColumn<qsizetype>("size");
    for (const qsizetype size : {0, 1, 65535, 65536, 65537, 3'000'000})
        QTest::addRow("%lld bytes", qlonglong{size}) << size;
}

void UrlFetchTest::givesWholeBody()
{
    QFETCH(const qsizetype, size);
    QByteArray body;
    for (qsizetype index = 0; index < size; ++index)
        body.append(static_cast<char>(index % 251));
    m_server->serve("/body", {body});
    const Body found = fetch("/body");
    QVERIFY(found.has_value());
    QVERIFY(*found == body);
}

void UrlFetchTest::givesBodyOfSuccessOnly_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("isSuccess");
    for (const int status : {200, 201, 203, 299})
        QTest::addRow("%d", status) << status << true;
    for (const int status : {300, 304, 305, 306, 400, 401, 403, 404, 407, 410, 429, 500, 503, 999})
        QTest::addRow("%d", status) << status << false;
}

void UrlFetchTest::givesBodyOfSuccessOnly()
{
    QFETCH(const int, status);
    QFETCH(const bool, isSuccess);
    m_server->serve("/", {"text", status});
    QCOMPARE(fetch("/"), isSuccess ? Body("text") : std::nullopt);
    QCOMPARE(m_server->requests().size(), 1);
}

void UrlFetchTest::readsEveryWayToTellTheEnd_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<Body>("body");
    const QByteArray chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
    QTest::newRow("length") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nabc")
                            << Body("abc");
    QTest::newRow("chunks") << chunked + "2\r\nab\r\n1;note=1\r\nc\r\n0\r\n\r\n" << Body("abc");
    QTest::newRow("connection") << QByteArray("HTTP/1.1 200 OK\r\n\r\nabc") << Body("abc");
    QTest::newRow("old server") << QByteArray("HTTP/1.0 200 OK\r\n\r\nabc") << Body("abc");
    QTest::newRow("after an interim reply") << QByteArray(
        "HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nabc")
                                            << Body("abc");
    QTest::newRow("short of its length")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nabc") << Body();
    QTest::newRow("short of a chunk") << chunked + "4\r\nabc" << Body();
    QTest::newRow("short of the last chunk") << chunked + "3\r\nabc\r\n" << Body();
}

void UrlFetchTest::readsEveryWayToTellTheEnd()
{
    QFETCH(const QByteArray, reply);
    QFETCH(const Body, body);
    m_server->serve("/", {reply, 200, {}, ServedReply::Manner::Raw});
    QCOMPARE(fetch("/"), body);
}

void UrlFetchTest::sendsHonestHeadersOnly()
{
    fetch("/");
    QCOMPARE(m_server->requests().size(), 1);
    const ServedRequest& request = m_server->requests().constFirst();
    QCOMPARE(request.method, "GET");
    const QHash<QByteArray, QByteArray> headers{{"host", m_server->host().toLatin1()},
        {"user-agent", "Tomely/" TOMELY_VERSION}, {"accept-encoding", "identity"},
        {"accept-language", "*"}, {"connection", "close"}, {"cache-control", "no-cache"},
        {"pragma", "no-cache"}};
    QCOMPARE(request.headers, headers);
}

void UrlFetchTest::keepsPathAndQuery()
{
    const QByteArray target = "/a%20b/c%2Fd?q=isbn:%22978%22&key=%C3%A9+1";
    m_server->serve(target, {"found"});
    QCOMPARE(fetch(target + "#part"), Body("found"));
    QCOMPARE(m_server->targets(), {target});
}

void UrlFetchTest::keepsNothingBetweenFetches()
{
    m_server->serve("/",
        {"text", 200,
            {{"Set-Cookie", "who=you; Path=/"}, {"Cache-Control", "max-age=3600"},
                {"ETag", "\"1\""}}});
    UrlFetch fetch(m_authority.policy());
    for (int count = 1; count <= 3; ++count) {
        QCOMPARE(fetch.fetch(m_server->url("/")), Body("text"));
        QCOMPARE(m_server->requests().size(), count);
        QCOMPARE(m_server->connectionCount(), count);
        const ServedRequest& request = m_server->requests().constLast();
        QVERIFY(!request.headers.contains("cookie"));
        QVERIFY(!request.headers.contains("if-none-match"));
    }
    // Nor from one request of a fetch to the next.
    m_server->serve("/from", {{}, 302, {{"Location", "/"}, {"Set-Cookie", "who=you; Path=/"}}});
    QCOMPARE(fetch.fetch(m_server->url("/from")), Body("text"));
    QVERIFY(!m_server->requests().constLast().headers.contains("cookie"));
    QVERIFY(!m_server->requests().constLast().headers.contains("referer"));
}

void UrlFetchTest::sendsNoPassword()
{
    for (const char* const challenge :
        {"Basic realm=\"books\"", "Negotiate", "NTLM", "Digest realm=\"a\", nonce=\"b\""}) {
        m_server->forgetRequests();
        m_server->serve("/", {"text", 401, {{"WWW-Authenticate", challenge}}});
        QCOMPARE(fetch("/"), std::nullopt);
        QCOMPARE(m_server->requests().size(), 1);
        QVERIFY(!m_server->requests().constFirst().headers.contains("authorization"));
    }
}

void UrlFetchTest::followsRedirects_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("location");
    for (const int status : {301, 302, 303, 307, 308})
        QTest::addRow("%d", status) << status << QByteArray("{server}/there/to?a=1");
    QTest::newRow("absolute path") << 302 << QByteArray("/there/to?a=1");
    QTest::newRow("relative path") << 302 << QByteArray("to?a=1");
    QTest::newRow("path upwards") << 302 << QByteArray("../there/to?a=1");
    QTest::newRow("same protocol") << 302 << QByteArray("//{host}/there/to?a=1");
    QTest::newRow("with fragment") << 302 << QByteArray("to?a=1#part");
    QTest::newRow("capitals") << 302 << QByteArray("HTTPS://{host}/there/to?a=1");
}

void UrlFetchTest::followsRedirects()
{
    QFETCH(const int, status);
    QFETCH(QByteArray, location);
    location.replace("{server}", m_server->url({}).toEncoded());
    location.replace("{host}", m_server->host().toLatin1());
    m_server->serve("/there/from", ServedReply::redirect(location, status));
    m_server->serve("/there/to?a=1", {"found"});
    QCOMPARE(fetch("/there/from"), Body("found"));
    QCOMPARE(m_server->targets(), QList<QByteArray>({"/there/from", "/there/to?a=1"}));
    QCOMPARE(m_server->requests().constLast().method, "GET");
}

void UrlFetchTest::endsAfterSoManyRedirects()
{
    for (int step = 0; step < 6; ++step) {
        m_server->serve("/" + QByteArray::number(step),
            ServedReply::redirect("/" + QByteArray::number(step + 1)));
    }
    m_server->serve("/6", {"found"});
    QCOMPARE(fetch("/1"), Body("found"));
    QCOMPARE(m_server->requests().size(), 6);
    m_server->forgetRequests();
    QCOMPARE(fetch("/0"), std::nullopt);
    QCOMPARE(m_server->requests().size(), 6);
    m_server->forgetRequests();
    m_server->serve("/loop", ServedReply::redirect("/loop"));
    QCOMPARE(fetch("/loop"), std::nullopt);
    QCOMPARE(m_server->requests().size(), 6);
}

void UrlFetchTest::handlesEventsMeanwhile()
{
    m_server->serve("/", {"abc", 200, {}, ServedReply::Manner::Drip});
    QTimer timer;
    int ticks = 0;
    connect(&timer, &QTimer::timeout, this, [&] { ++ticks; });
    timer.start(1);
    QCOMPARE(fetch("/"), Body("abc"));
    QVERIFY(ticks > 3);
}

void UrlFetchTest::givesUp()
{
    m_server->serve("/", {{}, 200, {}, ServedReply::Manner::Silence});
    m_server->serve("/found", {"text"});
    UrlFetch fetch(m_authority.policy());
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (!m_server->requests().isEmpty())
            fetch.giveUp();
    });
    timer.start(1);
    QElapsedTimer time;
    time.start();
    QCOMPARE(fetch.fetch(m_server->url("/")), std::nullopt);
    QVERIFY(time.elapsed() < 10'000); // far less than the time it may take
    QVERIFY(fetch.isGivenUp());
    m_server->forgetRequests();
    QCOMPARE(fetch.fetch(m_server->url("/found")), std::nullopt);
    QCOMPARE(m_server->targets(), {});
}

void UrlFetchTest::givesNothingAfterGivingUp()
{
    m_server->serve("/", {"text"});
    UrlFetch fetch(m_authority.policy());
    QVERIFY(!fetch.isGivenUp());
    fetch.giveUp();
    fetch.giveUp();
    QVERIFY(fetch.isGivenUp());
    QCOMPARE(fetch.fetch(m_server->url("/")), std::nullopt);
    QCOMPARE(m_server->connectionCount(), 0);
}

void UrlFetchTest::givesUpBeforeConnecting()
{
    m_server->serve("/", {"text"});
    UrlFetch fetch(m_authority.policy());
    QMetaObject::invokeMethod(&fetch, &UrlFetch::giveUp, Qt::QueuedConnection);
    QCOMPARE(fetch.fetch(m_server->url("/")), std::nullopt);
    QCOMPARE(m_server->targets(), {});
}

void UrlFetchTest::givesNothingWithinFetch()
{
    m_server->serve("/outer", {"outer", 200, {}, ServedReply::Manner::Drip});
    m_server->serve("/inner", {"inner"});
    UrlFetch fetch(m_authority.policy());
    bool isAsked = false;
    QTimer::singleShot(0, this, [&] {
        isAsked = true;
        QCOMPARE(fetch.fetch(m_server->url("/inner")), std::nullopt);
    });
    QCOMPARE(fetch.fetch(m_server->url("/outer")), Body("outer"));
    QVERIFY(isAsked);
    QCOMPARE(m_server->targets(), {"/outer"});
    QCOMPARE(fetch.fetch(m_server->url("/inner")), Body("inner"));
}

void UrlFetchTest::endsWithProgram()
{
    m_server->serve("/", {{}, 200, {}, ServedReply::Manner::Silence});
    Body body("not yet");
    QTimer::singleShot(0, this, [&] { body = fetch("/"); });
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (!m_server->requests().isEmpty())
            QCoreApplication::quit();
    });
    timer.start(1);
    QElapsedTimer time;
    time.start();
    QCoreApplication::exec();
    QCOMPARE(body, std::nullopt);
    QVERIFY(time.elapsed() < 10'000);
}

QTEST_GUILESS_MAIN(UrlFetchTest)
#include "UrlFetchTest.moc"
