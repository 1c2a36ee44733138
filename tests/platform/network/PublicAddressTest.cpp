#include "platform/network/PublicAddress.h"

#include <QHostAddress>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class PublicAddressTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refusesSpecialBlocks_data();
    void refusesSpecialBlocks();
    void refusesAddressesOfNoHost_data();
    void refusesAddressesOfNoHost();
    void judgesEmbeddedIPv4_data();
    void judgesEmbeddedIPv4();
    void refusesScopes();
};

// The first and the last address of a block, and the public ones just outside, if those are.
void PublicAddressTest::refusesSpecialBlocks_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("after");
    const auto addRow = [](const char* name, const char* before, const char* first,
                            const char* last, const char* after) {
        QTest::newRow(name) << QString::fromLatin1(before) << QString::fromLatin1(first)
                            << QString::fromLatin1(last) << QString::fromLatin1(after);
    };
    addRow("this network", "", "0.0.0.0", "0.255.255.255", "1.0.0.0");
    addRow("private 10", "9.255.255.255", "10.0.0.0", "10.255.255.255", "11.0.0.0");
    addRow("shared", "100.63.255.255", "100.64.0.0", "100.127.255.255", "100.128.0.0");
    addRow("loopback", "126.255.255.255", "127.0.0.0", "127.255.255.255", "128.0.0.0");
    addRow("link-local", "169.253.255.255", "169.254.0.0", "169.254.255.255", "169.255.0.0");
    addRow("private 172", "172.15.255.255", "172.16.0.0", "172.31.255.255", "172.32.0.0");
    addRow("protocols", "191.255.255.255", "192.0.0.0", "192.0.0.255", "192.0.1.0");
    addRow("documentation 1", "192.0.1.255", "192.0.2.0", "192.0.2.255", "192.0.3.0");
    addRow("relays", "192.88.98.255", "192.88.99.0", "192.88.99.255", "192.88.100.0");
    addRow("private 192", "192.167.255.255", "192.168.0.0", "192.168.255.255", "192.169.0.0");
    addRow("benchmarks", "198.17.255.255", "198.18.0.0", "198.19.255.255", "198.20.0.0");
    addRow("documentation 2", "198.51.99.255", "198.51.100.0", "198.51.100.255", "198.51.101.0");
    addRow("documentation 3", "203.0.112.255", "203.0.113.0", "203.0.113.255", "203.0.114.0");
    addRow("multicast and reserved", "223.255.255.255", "224.0.0.0", "255.255.255.255", "");
    addRow("below the global IPv6 block", "", "::", "1fff:ffff:ffff:ffff:ffff:ffff:ffff:ffff",
        "2000::");
    addRow("protocols, IPv6", "2000:ffff:ffff:ffff:ffff:ffff:ffff:ffff",
        "2001::", "2001:1ff:ffff:ffff:ffff:ffff:ffff:ffff", "2001:200::");
    addRow("documentation, IPv6", "2001:db7:ffff:ffff:ffff:ffff:ffff:ffff",
        "2001:db8::", "2001:db8:ffff:ffff:ffff:ffff:ffff:ffff", "2001:db9::");
    addRow("more documentation, IPv6", "3ffe:ffff:ffff:ffff:ffff:ffff:ffff:ffff",
        "3fff::", "3fff:0fff:ffff:ffff:ffff:ffff:ffff:ffff", "3fff:1000::");
    addRow("above the global IPv6 block", "3fff:ffff:ffff:ffff:ffff:ffff:ffff:ffff",
        "4000::", "ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff", "");
}

void PublicAddressTest::refusesSpecialBlocks()
{
    QFETCH(const QString, before);
    QFETCH(const QString, first);
    QFETCH(const QString, last);
    QFETCH(const QString, after);
    for (const QString& text : {first, last}) {
        const QHostAddress address(text);
        QVERIFY2(!address.isNull(), qPrintable(text));
        QVERIFY2(!isPublicAddress(address), qPrintable(text));
    }
    for (const QString& text : {before, after}) {
        const QHostAddress address(text);
        QVERIFY2(address.isNull() == text.isEmpty(), qPrintable(text));
        QVERIFY2(text.isEmpty() || isPublicAddress(address), qPrintable(text));
    }
}

void PublicAddressTest::refusesAddressesOfNoHost_data()
{
    QTest::addColumn<QHostAddress>("address");
    QTest::newRow("none") << QHostAddress();
    QTest::newRow("any") << QHostAddress(QHostAddress::Any);
    QTest::newRow("any IPv4") << QHostAddress(QHostAddress::AnyIPv4);
    QTest::newRow("any IPv6") << QHostAddress(QHostAddress::AnyIPv6);
    QTest::newRow("broadcast") << QHostAddress(QHostAddress::Broadcast);
    QTest::newRow("loopback") << QHostAddress(QHostAddress::LocalHost);
    QTest::newRow("loopback, IPv6") << QHostAddress(QHostAddress::LocalHostIPv6);
    QTest::newRow("private, IPv6") << QHostAddress(u"fd00::1"_s);
    QTest::newRow("link-local, IPv6") << QHostAddress(u"fe80::1"_s);
    QTest::newRow("site-local, IPv6") << QHostAddress(u"fec0::1"_s);
    QTest::newRow("multicast, IPv6") << QHostAddress(u"ff02::1"_s);
    QTest::newRow("discarded, IPv6") << QHostAddress(u"100::1"_s);
    QTest::newRow("local translation") << QHostAddress(u"64:ff9b:1::8.8.8.8"_s);
    QTest::newRow("compatible, given up") << QHostAddress(u"::8.8.8.8"_s);
    QTest::newRow("tunnel to a host behind a router") << QHostAddress(u"2001:0:808:808::1"_s);
}

void PublicAddressTest::refusesAddressesOfNoHost()
{
    QFETCH(const QHostAddress, address);
    QVERIFY(!isPublicAddress(address));
}

void PublicAddressTest::judgesEmbeddedIPv4_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isPublic");
    QTest::newRow("mapped public") << u"::ffff:8.8.8.8"_s << true;
    QTest::newRow("mapped loopback") << u"::ffff:127.0.0.1"_s << false;
    QTest::newRow("mapped private") << u"::ffff:192.168.1.1"_s << false;
    QTest::newRow("mapped link-local") << u"::ffff:a9fe:a9fe"_s << false;
    QTest::newRow("translated public") << u"64:ff9b::8.8.8.8"_s << true;
    QTest::newRow("translated loopback") << u"64:ff9b::127.0.0.1"_s << false;
    QTest::newRow("translated private") << u"64:ff9b::10.0.0.1"_s << false;
    QTest::newRow("relayed public") << u"2002:808:808::1"_s << true;
    QTest::newRow("relayed loopback") << u"2002:7f00:1::1"_s << false;
    QTest::newRow("relayed private") << u"2002:c0a8:101::1"_s << false;
}

void PublicAddressTest::judgesEmbeddedIPv4()
{
    QFETCH(const QString, text);
    QFETCH(const bool, isPublic);
    const QHostAddress address(text);
    QVERIFY(!address.isNull());
    QCOMPARE(isPublicAddress(address), isPublic);
}

void PublicAddressTest::refusesScopes()
{
    QHostAddress address(u"2606:4700::1111"_s);
    QVERIFY(isPublicAddress(address));
    address.setScopeId(u"1"_s);
    QVERIFY(!isPublicAddress(address));
    QVERIFY(!isPublicAddress(QHostAddress(u"fe80::1%1"_s)));
}

QTEST_APPLESS_MAIN(PublicAddressTest)
#include "PublicAddressTest.moc"
