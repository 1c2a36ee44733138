#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include "tests/support/LookupServer.h"

using namespace Qt::StringLiterals;
using namespace tomely;

using Body = std::optional<QByteArray>;

class UrlFetchTrustTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void takesHttpsOnly_data();
    void takesHttpsOnly();
    void refusesToBeLedElsewhere_data();
    void refusesToBeLedElsewhere();
    void refusesToBeLedToStranger();
    void refusesWrongCertificates_data();
    void refusesWrongCertificates();
    void refusesUnknownAuthority_data();
    void refusesUnknownAuthority();
    void offersNewProtocolsInNameOfHost();
    void refusesAddressesThatAreNotPublic_data();
    void refusesAddressesThatAreNotPublic();
    void refusesToBeLedToAddressesThatAreNotPublic_data();
    void refusesToBeLedToAddressesThatAreNotPublic();
    void asksCheckedAddressInNameOfHost();
    void takesAddressesAsHosts_data();
    void takesAddressesAsHosts();
    void leavesOutRefusedAddresses();
    void triesNextAddress();
    void triesNextAddressInsteadOfSilentOne();
    void asksNoFurtherServerThanTheFirstThatAnswers();
    void givesNothingWithoutServer();

private:
    Body fetch(const QUrl& url) { return UrlFetch(m_authority.policy()).fetch(url); }

    QUrl urlOf(const QString& host, const QByteArray& target = "/") const
    {
        return QUrl(u"https://"_s + host + u':' + QString::number(m_server->port())
            + QString::fromLatin1(target));
    }

    TestAuthority m_authority;
    ServerIdentity m_identity = m_authority.identityFor(u"localhost"_s);
    std::unique_ptr<LookupServer> m_server;
};

void UrlFetchTrustTest::init()
{
    m_server = std::make_unique<LookupServer>(m_identity);
    m_server->serve("/", {"text"});
}

void UrlFetchTrustTest::takesHttpsOnly_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("http") << u"http://{host}/"_s;
    QTest::newRow("ftp") << u"ftp://{host}/"_s;
    QTest::newRow("file") << u"file:///etc/hostname"_s;
    QTest::newRow("file of a host") << u"file://{host}/etc/hostname"_s;
    QTest::newRow("data") << u"data:text/plain,text"_s;
    QTest::newRow("resource") << u"qrc:/text"_s;
    QTest::newRow("web socket") << u"wss://{host}/"_s;
    QTest::newRow("no protocol") << u"//{host}/"_s;
    QTest::newRow("path") << u"/etc/hostname"_s;
    QTest::newRow("no host") << u"https:///"_s;
    QTest::newRow("name and password") << u"https://me:secret@{host}/"_s;
    QTest::newRow("name") << u"https://me@{host}/"_s;
    QTest::newRow("no valid port") << u"https://localhost:99999/"_s;
    QTest::newRow("no valid host") << u"https://local host/"_s;
}

void UrlFetchTrustTest::takesHttpsOnly()
{
    QFETCH(QString, text);
    const QUrl url(text.replace(u"{host}"_s, m_server->host()));
    QCOMPARE(fetch(url), std::nullopt);
    QCOMPARE(m_server->connectionCount(), 0);
}

void UrlFetchTrustTest::refusesToBeLedElsewhere_data()
{
    QTest::addColumn<QByteArray>("location");
    QTest::newRow("plain http") << QByteArray("http://{plain}/");
    QTest::newRow("file") << QByteArray("file:///etc/hostname");
    QTest::newRow("data") << QByteArray("data:text/plain,text");
    QTest::newRow("resource") << QByteArray("qrc:/text");
    QTest::newRow("ftp") << QByteArray("ftp://{plain}/");
    QTest::newRow("name and password") << QByteArray("https://me:secret@{host}/");
    QTest::newRow("name") << QByteArray("https://me@{host}/");
    QTest::newRow("nowhere") << QByteArray("");
    QTest::newRow("no address") << QByteArray("https://[/");
    QTest::newRow("no port") << QByteArray("https://localhost:99999/");
}

void UrlFetchTrustTest::refusesToBeLedElsewhere()
{
    QFETCH(QByteArray, location);
    LookupServer plain(std::nullopt);
    plain.serve("/", {"text"});
    location.replace("{plain}", plain.host().toLatin1());
    location.replace("{host}", m_server->host().toLatin1());
    m_server->serve("/from", ServedReply::redirect(location));
    QCOMPARE(fetch(m_server->url("/from")), std::nullopt);
    m_server->serve("/from", {"text", 302});
    QCOMPARE(fetch(m_server->url("/from")), std::nullopt);
    QCOMPARE(m_server->targets(), QList<QByteArray>({"/from", "/from"}));
    QCOMPARE(plain.connectionCount(), 0);
}

void UrlFetchTrustTest::refusesToBeLedToStranger()
{
    LookupServer stranger(m_authority.identityFor(u"elsewhere.example"_s));
    stranger.serve("/", {"text"});
    m_server->serve("/from", ServedReply::redirect(stranger.url("/").toEncoded()));
    QCOMPARE(fetch(m_server->url("/from")), std::nullopt);
    QCOMPARE(stranger.connectionCount(), 1);
    QCOMPARE(stranger.targets(), {});
}

void UrlFetchTrustTest::refusesWrongCertificates_data()
{
    QTest::addColumn<ServerIdentity>("identity");
    QTest::newRow("other name") << m_authority.identityFor(u"elsewhere.example"_s);
    // The address that is asked is not the name that was meant.
    QTest::newRow("address") << m_authority.identityFor(u"127.0.0.1"_s);
    QTest::newRow("self-signed") << TestAuthority::selfSigned(u"localhost"_s);
    QTest::newRow("expired") << m_authority.expiredIdentityFor(u"localhost"_s);
    QTest::newRow("other authority") << TestAuthority().identityFor(u"localhost"_s);
}

void UrlFetchTrustTest::refusesWrongCertificates()
{
    QFETCH(const ServerIdentity, identity);
    LookupServer server(identity);
    server.serve("/", {"text"});
    QCOMPARE(fetch(server.url("/")), std::nullopt);
    QCOMPARE(server.connectionCount(), 1);
    QCOMPARE(server.targets(), {});
}

void UrlFetchTrustTest::refusesUnknownAuthority_data()
{
    QTest::addColumn<ServerIdentity>("identity");
    QTest::newRow("signed") << m_identity;
    QTest::newRow("self-signed") << TestAuthority::selfSigned(u"localhost"_s);
}

// With those whom the system trusts and nobody else, as the program has it.
void UrlFetchTrustTest::refusesUnknownAuthority()
{
    QFETCH(const ServerIdentity, identity);
    LookupServer server(identity);
    server.serve("/", {"text"});
    FetchPolicy policy = m_authority.policy();
    policy.furtherAuthorities.clear();
    QCOMPARE(UrlFetch(policy).fetch(server.url("/")), std::nullopt);
    QCOMPARE(server.connectionCount(), 1);
    QCOMPARE(server.targets(), {});
}

void UrlFetchTrustTest::offersNewProtocolsInNameOfHost()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QByteArray hello;
    connect(&server, &QTcpServer::newConnection, this, [&] {
        QTcpSocket* const socket = server.nextPendingConnection();
        connect(socket, &QIODevice::readyRead, socket, [&hello, socket] {
            hello += socket->readAll();
            socket->disconnectFromHost();
        });
    });
    const QUrl url(u"https://localhost:%1/"_s.arg(server.serverPort()));
    QCOMPARE(fetch(url), std::nullopt);
    // The list of versions that are offered is readable: TLS 1.3 and 1.2, and nothing else.
    QVERIFY(hello.contains(QByteArray::fromHex("002b00050403040303")));
    // The server learns which name is meant, not which address was asked.
    QVERIFY(hello.contains("localhost"));
}

void UrlFetchTrustTest::refusesAddressesThatAreNotPublic_data()
{
    QTest::addColumn<QString>("host");
    for (const char* const host :
        {"localhost", "LOCALHOST", "127.0.0.1", "127.1", "2130706433", "0x7f000001", "0x7f.1",
            "0177.0.0.1", "0.0.0.0", "0", "[::1]", "[::]", "[0:0:0:0:0:0:0:1]",
            "[::ffff:127.0.0.1]", "[::ffff:7f00:1]", "[64:ff9b::7f00:1]", "[fe80::1%25lo]"})
        QTest::newRow(host) << QString::fromLatin1(host);
    QTest::newRow("wide digits") << u"\uFF11\uFF12\uFF17.0.0.1"_s;
    QTest::newRow("ideographic stops") << u"127\u30020\u30020\u30021"_s;
    QTest::newRow("name of a private address") << u"private.example"_s;
}

// The server is there and would be believed; only its address is not to be asked.
void UrlFetchTrustTest::refusesAddressesThatAreNotPublic()
{
    QFETCH(const QString, host);
    FetchPolicy policy;
    policy.furtherAuthorities = {m_authority.certificate()};
    policy.knownHosts.insert(u"private.example"_s,
        {QHostAddress(QHostAddress::LocalHost), QHostAddress(u"::ffff:127.0.0.1"_s)});
    QElapsedTimer time;
    time.start();
    QCOMPARE(UrlFetch(policy).fetch(urlOf(host)), std::nullopt);
    QCOMPARE(m_server->connectionCount(), 0);
    QVERIFY(time.elapsed() < 10'000);
}

void UrlFetchTrustTest::refusesToBeLedToAddressesThatAreNotPublic_data()
{
    refusesAddressesThatAreNotPublic_data();
}

// Here one address of this machine stands for a public one.
void UrlFetchTrustTest::refusesToBeLedToAddressesThatAreNotPublic()
{
    QFETCH(const QString, host);
    const QHostAddress asPublic(u"127.0.0.2"_s);
    LookupServer front(m_authority.identityFor(u"front.example"_s), asPublic);
    front.serve("/", ServedReply::redirect(urlOf(host).toEncoded()));
    FetchPolicy policy;
    policy.furtherAuthorities = {m_authority.certificate()};
    policy.mayConnect = [&](const QHostAddress& address) {
        return address == asPublic || isPublicAddress(address);
    };
    policy.knownHosts.insert(u"front.example"_s, {asPublic});
    policy.knownHosts.insert(u"private.example"_s, {QHostAddress(QHostAddress::LocalHost)});
    const QUrl url(u"https://front.example:%1/"_s.arg(front.port()));
    QCOMPARE(UrlFetch(policy).fetch(url), std::nullopt);
    QCOMPARE(front.targets(), {"/"});
    QCOMPARE(m_server->connectionCount(), 0);
}

void UrlFetchTrustTest::asksCheckedAddressInNameOfHost()
{
    const QString host = u"covers.example"_s;
    LookupServer server(m_authority.identityFor(host), QHostAddress(u"127.0.0.3"_s));
    server.serve("/a", {"text"});
    FetchPolicy policy = m_authority.policy();
    policy.knownHosts.insert(host, {QHostAddress(u"127.0.0.3"_s)});
    const QUrl url(u"https://covers.example:%1/a"_s.arg(server.port()));
    QCOMPARE(UrlFetch(policy).fetch(url), Body("text"));
    QCOMPARE(server.requests().constFirst().headers.value("host"),
        "covers.example:" + QByteArray::number(server.port()));
    // A name in other letters goes out as all programs write it.
    policy.knownHosts.insert(u"xn--bcher-kva.example"_s, {QHostAddress(u"127.0.0.3"_s)});
    LookupServer books(
        m_authority.identityFor(u"xn--bcher-kva.example"_s), QHostAddress(u"127.0.0.3"_s));
    books.serve("/", {"text"});
    const QUrl booksUrl(u"https://B\u00fccher.example:%1/"_s.arg(books.port()));
    QCOMPARE(UrlFetch(policy).fetch(booksUrl), Body("text"));
    QCOMPARE(books.requests().constFirst().headers.value("host"),
        "xn--bcher-kva.example:" + QByteArray::number(books.port()));
}

void UrlFetchTrustTest::takesAddressesAsHosts_data()
{
    QTest::addColumn<QHostAddress>("address");
    QTest::addColumn<QByteArray>("host");
    QTest::newRow("IPv4") << QHostAddress(QHostAddress::LocalHost) << QByteArray("127.0.0.1");
    QTest::newRow("IPv6") << QHostAddress(QHostAddress::LocalHostIPv6) << QByteArray("[::1]");
}

void UrlFetchTrustTest::takesAddressesAsHosts()
{
    QFETCH(const QHostAddress, address);
    QFETCH(const QByteArray, host);
    if (!QTcpServer().listen(address))
        QSKIP("This machine has no such address.");
    LookupServer server(m_authority.identityFor(address.toString()), address);
    server.serve("/", {"text"});
    const QByteArray hostAndPort = host + ':' + QByteArray::number(server.port());
    const QUrl url = QUrl::fromEncoded("https://" + hostAndPort + '/');
    QCOMPARE(fetch(url), Body("text"));
    QCOMPARE(server.requests().constFirst().headers.value("host"), hostAndPort);
}

void UrlFetchTrustTest::leavesOutRefusedAddresses()
{
    FetchPolicy policy = m_authority.policy();
    const QHostAddress allowed(QHostAddress::LocalHost);
    policy.mayConnect = [&](const QHostAddress& address) {
        return address == allowed;
    };
    QTcpServer refused;
    QVERIFY(refused.listen(QHostAddress(u"127.0.0.4"_s), m_server->port()));
    policy.knownHosts.insert(u"localhost"_s, {QHostAddress(u"127.0.0.4"_s), allowed});
    QCOMPARE(UrlFetch(policy).fetch(m_server->url("/")), Body("text"));
    QVERIFY(!refused.hasPendingConnections());
}

void UrlFetchTrustTest::triesNextAddress()
{
    FetchPolicy policy = m_authority.policy();
    // Nobody listens at the others.
    policy.knownHosts.insert(u"localhost"_s,
        {QHostAddress(u"127.0.0.5"_s), QHostAddress(u"127.0.0.6"_s),
            QHostAddress(QHostAddress::LocalHost)});
    QCOMPARE(UrlFetch(policy).fetch(m_server->url("/")), Body("text"));
    QCOMPARE(m_server->connectionCount(), 1);
}

void UrlFetchTrustTest::triesNextAddressInsteadOfSilentOne()
{
    QTcpServer silent;
    QVERIFY(silent.listen(QHostAddress(u"127.0.0.7"_s), m_server->port()));
    FetchPolicy policy = m_authority.policy();
    policy.mostTime = std::chrono::seconds(3);
    policy.knownHosts.insert(
        u"localhost"_s, {QHostAddress(u"127.0.0.7"_s), QHostAddress(QHostAddress::LocalHost)});
    QCOMPARE(UrlFetch(policy).fetch(m_server->url("/")), Body("text"));
    QCOMPARE(m_server->connectionCount(), 1);
}

void UrlFetchTrustTest::asksNoFurtherServerThanTheFirstThatAnswers()
{
    LookupServer first(m_identity, QHostAddress(u"127.0.0.8"_s));
    first.serve("/", {"text", 503});
    QTcpServer second;
    QVERIFY(second.listen(QHostAddress(u"127.0.0.9"_s), first.port()));
    FetchPolicy policy = m_authority.policy();
    policy.knownHosts.insert(
        u"localhost"_s, {QHostAddress(u"127.0.0.8"_s), QHostAddress(u"127.0.0.9"_s)});
    QCOMPARE(UrlFetch(policy).fetch(first.url("/")), std::nullopt);
    QCOMPARE(first.targets(), {"/"});
    QVERIFY(!second.hasPendingConnections());
}

void UrlFetchTrustTest::givesNothingWithoutServer()
{
    const QUrl url = m_server->url("/");
    m_server.reset();
    QElapsedTimer time;
    time.start();
    QCOMPARE(fetch(url), std::nullopt);
    QVERIFY(time.elapsed() < 10'000);
    FetchPolicy policy = m_authority.policy();
    policy.knownHosts.insert(u"localhost"_s, {});
    QCOMPARE(UrlFetch(policy).fetch(url), std::nullopt);
}

QTEST_GUILESS_MAIN(UrlFetchTrustTest)
#include "UrlFetchTrustTest.moc"
