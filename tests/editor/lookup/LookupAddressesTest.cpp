#include "editor/lookup/LookupAddresses.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class LookupAddressesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asksTheSources();
    void takesHosts_data();
    void takesHosts();
    void refusesHosts_data();
    void refusesHosts();
    void keepsTextsInTheirPlace_data();
    void keepsTextsInTheirPlace();
    void refusesFolders_data();
    void refusesFolders();
    void asksForAnEmptyIdentifier();
};

void LookupAddressesTest::asksTheSources()
{
    QCOMPARE(viewAddress(u"books.example"_s, u"9780143039433"_s).toEncoded(),
        "https://books.example/books?jscmd=viewapi&bibkeys=ISBN:9780143039433"_ba);
    QCOMPARE(volumeAddress(u"api.example"_s, u"JmNrrVe5hJ0C"_s, {}).toEncoded(),
        "https://api.example/books/v1/volumes/JmNrrVe5hJ0C"_ba);
    QCOMPARE(volumeAddress(u"api.example"_s, u"JmNrrVe5hJ0C"_s, u"k"_s).toEncoded(),
        "https://api.example/books/v1/volumes/JmNrrVe5hJ0C?key=k"_ba);
    QCOMPARE(bookPageAddress(u"pages.example"_s, u"080442957X"_s).toEncoded(),
        "https://pages.example/isbn/080442957X"_ba);
}

void LookupAddressesTest::takesHosts_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<QByteArray>("authority");
    QTest::newRow("name") << u"books.example"_s << "books.example"_ba;
    QTest::newRow("one word") << u"localhost"_s << "localhost"_ba;
    QTest::newRow("port") << u"localhost:8443"_s << "localhost:8443"_ba;
    QTest::newRow("the last port") << u"localhost:65535"_s << "localhost:65535"_ba;
    QTest::newRow("numbers") << u"192.0.2.1:1"_s << "192.0.2.1:1"_ba;
    QTest::newRow("another script") << u"bücher.example"_s << "xn--bcher-kva.example"_ba;
}

void LookupAddressesTest::takesHosts()
{
    QFETCH(const QString, host);
    QFETCH(const QByteArray, authority);
    QCOMPARE(bookPageAddress(host, u"1"_s).toEncoded(), "https://" + authority + "/isbn/1");
    QVERIFY(viewAddress(host, u"1"_s).toEncoded().startsWith("https://" + authority + "/books?"));
    QVERIFY(volumeAddress(host, u"1"_s, {}).toEncoded().startsWith("https://" + authority + "/b"));
}

void LookupAddressesTest::refusesHosts_data()
{
    QTest::addColumn<QString>("host");
    for (const char* const host :
        {"", ":443", "a.example:", "a.example:0", "a.example:65536", "a.example:+1", "a.example:1 ",
            "a.example:x", "a.example:1:2", "a.example:000443", "a.example/path", "a.example?q",
            "a.example#f", "user@a.example", "user:1@a.example", "https://a.example", "[::1]",
            "::1", "a b", "a%2Fb", "a\\b", "a_b.example", "a!b", "..", "a..example"})
        QTest::newRow(host) << QString::fromUtf8(host);
    QTest::newRow("a slash in disguise") << u"a\u2100b"_s;
    QTest::newRow("line break") << u"a\nb"_s;
    QTest::newRow("other digits") << u"a.example:٤٤٣"_s;
    QTest::newRow("null character") << u"a"_s + QChar(0) + u"b"_s;
}

void LookupAddressesTest::refusesHosts()
{
    QFETCH(const QString, host);
    QCOMPARE(viewAddress(host, u"1"_s), QUrl());
    QCOMPARE(volumeAddress(host, u"1"_s, u"k"_s), QUrl());
    QCOMPARE(bookPageAddress(host, u"1"_s), QUrl());
}

void LookupAddressesTest::keepsTextsInTheirPlace_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("encoded");
    QTest::newRow("path") << u"a/../b"_s << "a%2F..%2Fb"_ba;
    QTest::newRow("query") << u"a?b=c&d#e"_s << "a%3Fb%3Dc%26d%23e"_ba;
    QTest::newRow("encoded already") << u"%2e%2F"_s << "%252e%252F"_ba;
    QTest::newRow("plus and space") << u"a+b c"_s << "a%2Bb%20c"_ba;
    QTest::newRow("another host") << u"//other.example:1@"_s << "%2F%2Fother.example%3A1%40"_ba;
    QTest::newRow("lines") << u"a\r\nHost: b"_s << "a%0D%0AHost%3A%20b"_ba;
    QTest::newRow("other scripts") << u"é"_s << "%C3%A9"_ba;
    QTest::newRow("backslash") << u"..\\x"_s << "..%5Cx"_ba;
    QTest::newRow("null character") << QString(QChar(0)) << "%00"_ba;
}

void LookupAddressesTest::keepsTextsInTheirPlace()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, encoded);
    const QString host = u"a.example"_s;
    const QUrl::FormattingOptions onTheWire(QUrl::FullyEncoded);
    QCOMPARE(viewAddress(host, text).toEncoded(onTheWire),
        "https://a.example/books?jscmd=viewapi&bibkeys=ISBN:" + encoded);
    QCOMPARE(volumeAddress(host, text, text).toEncoded(onTheWire),
        "https://a.example/books/v1/volumes/" + encoded + "?key=" + encoded);
    QCOMPARE(bookPageAddress(host, text).toEncoded(onTheWire), "https://a.example/isbn/" + encoded);
}

void LookupAddressesTest::refusesFolders_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("this one") << u"."_s;
    QTest::newRow("the one above") << u".."_s;
}

void LookupAddressesTest::refusesFolders()
{
    QFETCH(const QString, text);
    QCOMPARE(volumeAddress(u"a.example"_s, text, {}), QUrl());
    QCOMPARE(volumeAddress(u"a.example"_s, text, u"k"_s), QUrl());
    QCOMPARE(bookPageAddress(u"a.example"_s, text), QUrl());
}

void LookupAddressesTest::asksForAnEmptyIdentifier()
{
    QCOMPARE(volumeAddress(u"a.example"_s, u""_s, {}).toEncoded(),
        "https://a.example/books/v1/volumes/"_ba);
}

QTEST_GUILESS_MAIN(LookupAddressesTest)

#include "LookupAddressesTest.moc"
