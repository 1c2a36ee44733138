#include <QElapsedTimer>
#include <QTcpServer>
#include <QTest>
#include <QTimer>

#include "tests/support/LookupServer.h"

using namespace Qt::StringLiterals;
using namespace tomely;

using Body = std::optional<QByteArray>;
using Manner = ServedReply::Manner;

namespace {

// The slack is what a busy machine needs to get to it.
constexpr std::chrono::milliseconds mostTime(1000);
constexpr qint64 slack = 4000;
constexpr qint64 mostBytes = 100'000;

} // namespace

class UrlFetchHostileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void endsWhenTimeIsUp_data();
    void endsWhenTimeIsUp();
    void limitsTheTimeOfAHead_data();
    void limitsTheTimeOfAHead();
    void sharesTimeAmongRedirects();
    void endsWhenServerSaysNothing();
    void refusesAtOnce_data();
    void refusesAtOnce();
    void takesAsMuchAsAllowed_data();
    void takesAsMuchAsAllowed();
    void takesNoEncodedBody_data();
    void takesNoEncodedBody();
    void outlivesServer();

private:
    Body fetch(const QByteArray& target)
    {
        FetchPolicy policy = m_authority.policy();
        policy.mostTime = mostTime;
        policy.mostBytes = mostBytes;
        QElapsedTimer time;
        time.start();
        Body body = UrlFetch(policy).fetch(m_server->url(target));
        m_time = time.elapsed();
        return body;
    }

    TestAuthority m_authority;
    ServerIdentity m_identity = m_authority.identityFor(u"localhost"_s);
    std::unique_ptr<LookupServer> m_server;
    // How long the last fetch took.
    qint64 m_time = 0;
};

void UrlFetchHostileTest::init()
{
    m_server = std::make_unique<LookupServer>(m_identity);
}

void UrlFetchHostileTest::endsWhenTimeIsUp_data()
{
    QTest::addColumn<ServedReply>("reply");
    QTest::newRow("silence") << ServedReply{"text", 200, {}, Manner::Silence};
    QTest::newRow("drip") << ServedReply{QByteArray(1000, 'x'), 200, {}, Manner::Drip};
    QTest::newRow("half a status") << ServedReply{"HTTP/1.1 20", 200, {}, Manner::RawThenSilence};
    QTest::newRow("half a head") << ServedReply{
        "HTTP/1.1 200 OK\r\nA: b\r\n", 200, {}, Manner::RawThenSilence};
    QTest::newRow("head without body") << ServedReply{
        "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\n", 200, {}, Manner::RawThenSilence};
    QTest::newRow("chunk without end")
        << ServedReply{"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n7ffffff\r\nabc", 200,
               {}, Manner::RawThenSilence};
    QTest::newRow("interim replies")
        << ServedReply{QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(1000), 200, {},
               Manner::RawThenSilence};
    QTest::newRow("endless head") << ServedReply{{}, 200, {}, Manner::EndlessHead};
    QTest::newRow("endless field")
        << ServedReply{QByteArray(1000, 'x'), 200, {}, Manner::EndlessHead};
}

void UrlFetchHostileTest::endsWhenTimeIsUp()
{
    QFETCH(const ServedReply, reply);
    m_server->serve("/", reply);
    QCOMPARE(fetch("/"), std::nullopt);
    QVERIFY(m_time >= mostTime.count());
    QVERIFY2(m_time < mostTime.count() + slack, qPrintable(QString::number(m_time)));
    QCOMPARE(m_server->requests().size(), 1);
}

void UrlFetchHostileTest::limitsTheTimeOfAHead_data()
{
    QTest::addColumn<ServedReply>("reply");
    QTest::newRow("silence") << ServedReply{"text", 200, {}, Manner::Silence};
    QTest::newRow("endless head") << ServedReply{{}, 200, {}, Manner::EndlessHead};
    QTest::newRow("endless field")
        << ServedReply{QByteArray(1000, 'x'), 200, {}, Manner::EndlessHead};
}

void UrlFetchHostileTest::limitsTheTimeOfAHead()
{
    QFETCH(const ServedReply, reply);
    m_server->serve("/", reply);
    // Whatever the limit of all is: nobody limits the size of a head.
    FetchPolicy policy = m_authority.policy();
    policy.mostTimeToHead = std::chrono::milliseconds(100);
    QElapsedTimer time;
    time.start();
    QCOMPARE(UrlFetch(policy).fetch(m_server->url("/")), std::nullopt);
    QVERIFY2(
        time.elapsed() < policy.mostTime.count() / 2, qPrintable(QString::number(time.elapsed())));
    // A body may take longer than that.
    m_server->serve("/", {QByteArray(20, 'x'), 200, {}, Manner::Drip});
    QCOMPARE(UrlFetch(policy).fetch(m_server->url("/")), QByteArray(20, 'x'));
}

void UrlFetchHostileTest::sharesTimeAmongRedirects()
{
    m_server->serve("/first", ServedReply::redirect("/second"));
    m_server->serve("/second", ServedReply::redirect("/third"));
    m_server->serve("/third", {"text", 200, {}, Manner::Silence});
    QCOMPARE(fetch("/first"), std::nullopt);
    QVERIFY2(m_time < mostTime.count() + slack, qPrintable(QString::number(m_time)));
    QCOMPARE(m_server->requests().size(), 3);
}

void UrlFetchHostileTest::endsWhenServerSaysNothing()
{
    QTcpServer silent;
    QVERIFY(silent.listen(QHostAddress::LocalHost));
    FetchPolicy policy = m_authority.policy();
    policy.mostTime = mostTime;
    QElapsedTimer time;
    time.start();
    const QUrl url(u"https://localhost:%1/"_s.arg(silent.serverPort()));
    QCOMPARE(UrlFetch(policy).fetch(url), std::nullopt);
    QVERIFY(time.elapsed() >= mostTime.count());
    QVERIFY2(
        time.elapsed() < mostTime.count() + slack, qPrintable(QString::number(time.elapsed())));
}

void UrlFetchHostileTest::refusesAtOnce_data()
{
    QTest::addColumn<ServedReply>("reply");
    const auto addOpen = [](const char* name, const QByteArray& bytes) {
        QTest::newRow(name) << ServedReply{bytes, 200, {}, Manner::RawThenSilence};
    };
    addOpen("huge length", "HTTP/1.1 200 OK\r\nContent-Length: 99999999999\r\n\r\nabc");
    addOpen("too large a length", "HTTP/1.1 200 OK\r\nContent-Length: 100001\r\n\r\nabc");
    addOpen("length beyond numbers",
        "HTTP/1.1 200 OK\r\nContent-Length: 99999999999999999999999\r\n\r\nabc");
    addOpen("length below nothing", "HTTP/1.1 200 OK\r\nContent-Length: -5\r\n\r\nabc");
    addOpen("length of no number", "HTTP/1.1 200 OK\r\nContent-Length: many\r\n\r\nabc");
    addOpen("two lengths", "HTTP/1.1 200 OK\r\nContent-Length: 2\r\nContent-Length: 3\r\n\r\nabc");
    addOpen("no success", "HTTP/1.1 404 No\r\nContent-Length: 1000\r\n\r\n");
    addOpen("redirect to plain http",
        "HTTP/1.1 302 Go\r\nContent-Length: 9\r\nLocation: http://localhost/\r\n\r\n");
    addOpen("other protocol", "SSH-2.0-server\r\n");
    addOpen("noise", QByteArray(100'000, '\xff'));
    QTest::newRow("nothing") << ServedReply{{}, 200, {}, Manner::Raw};
    QTest::newRow("noise, then the end")
        << ServedReply{QByteArray(100'000, '\xff'), 200, {}, Manner::Raw};
    QTest::newRow("cut off") << ServedReply{QByteArray(10'000, 'x'), 200, {}, Manner::CutOff};
    QTest::newRow("endless") << ServedReply{"text", 200, {}, Manner::Endless};
}

void UrlFetchHostileTest::refusesAtOnce()
{
    QFETCH(const ServedReply, reply);
    m_server->serve("/", reply);
    QCOMPARE(fetch("/"), std::nullopt);
    QVERIFY2(m_time < mostTime.count(), qPrintable(QString::number(m_time)));
}

void UrlFetchHostileTest::takesAsMuchAsAllowed_data()
{
    QTest::addColumn<bool>("isChunked");
    QTest::newRow("length told") << false;
    QTest::newRow("chunks") << true;
}

void UrlFetchHostileTest::takesAsMuchAsAllowed()
{
    QFETCH(const bool, isChunked);
    for (const qsizetype more : {0, 1}) {
        const QByteArray body(mostBytes + more, 'x');
        const QByteArray raw = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
            + QByteArray::number(body.size(), 16) + "\r\n" + body + "\r\n0\r\n\r\n";
        m_server->serve(
            "/", isChunked ? ServedReply{raw, 200, {}, Manner::Raw} : ServedReply{body});
        QCOMPARE(fetch("/"), more == 0 ? Body(body) : std::nullopt);
    }
}

void UrlFetchHostileTest::takesNoEncodedBody_data()
{
    QTest::addColumn<QByteArray>("encoding");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("none") << QByteArray("identity") << true;
    QTest::newRow("none, in capitals") << QByteArray("Identity") << true;
    for (const char* const encoding : {"gzip", "deflate", "br", "zstd", "GZIP", "identity, gzip"})
        QTest::newRow(encoding) << QByteArray(encoding) << false;
}

void UrlFetchHostileTest::takesNoEncodedBody()
{
    QFETCH(const QByteArray, encoding);
    QFETCH(const bool, isTaken);
    // Ten million zeros.
    const QByteArray bomb = qCompress(QByteArray(10'000'000, '\0'), 9).sliced(4);
    QVERIFY(bomb.size() < mostBytes);
    m_server->serve("/", {bomb, 200, {{"Content-Encoding", encoding}}});
    QCOMPARE(fetch("/"), isTaken ? Body(bomb) : std::nullopt);
    // The same without a word about it is just bytes.
    m_server->serve("/", {bomb, 200, {{"Content-Type", "application/gzip"}}});
    QCOMPARE(fetch("/"), Body(bomb));
}

void UrlFetchHostileTest::outlivesServer()
{
    m_server->serve("/", {QByteArray(10'000, 'x'), 200, {}, Manner::Drip});
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (m_server && !m_server->requests().isEmpty())
            m_server.reset();
    });
    timer.start(1);
    QCOMPARE(fetch("/"), std::nullopt);
    QVERIFY(!m_server);
}

QTEST_GUILESS_MAIN(UrlFetchHostileTest)
#include "UrlFetchHostileTest.moc"
