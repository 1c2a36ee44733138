#include "model/NSDataAdditions.h"

#include <QString>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

// What stands for 0 to 63.
const QString symbols = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/"_s;

/// The bytes of the numbers 0 to 63, six bits each.
QByteArray numberBytes()
{
    return QByteArray::fromHex("00108310518720928b30d38f41149351559761969b71d79f8218a39259a7a29aab"
                               "b2dbafc31cb3d35db7e39ebbf3dfbf");
}

} // namespace

class NSDataAdditionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsTexts_data();
    void readsTexts();
    void writesBytes_data();
    void writesBytes();
    void breaksLines_data();
    void breaksLines();
    void readsWhatItWrites();
};

void NSDataAdditionsTest::readsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QString() << QByteArray();
    QTest::newRow("three bytes") << u"TWFu"_s << QByteArray("Man");
    QTest::newRow("two bytes") << u"TWE="_s << QByteArray("Ma");
    QTest::newRow("one byte") << u"TQ=="_s << QByteArray("M");
    QTest::newRow("one byte, one sign") << u"TQ="_s << QByteArray("M");
    QTest::newRow("one symbol, closed") << u"T="_s << QByteArray("L");
    QTest::newRow("closed before it begins") << u"=TWFu"_s << QByteArray();
    QTest::newRow("a line break inside") << u"TW\nFu"_s << QByteArray("Man");
    QTest::newRow("junk inside") << u" T-W_F.u!"_s << QByteArray("Man");
    QTest::newRow("two bytes without a sign") << u"TWE"_s << QByteArray();
    QTest::newRow("rest without a sign") << u"TWFuTQ"_s << QByteArray("Man");
    QTest::newRow("more after the sign") << u"TWFu=TWFu"_s << QByteArray("Man");
    QTest::newRow("every symbol") << symbols << numberBytes();
    QTest::newRow("every kind of symbol")
        << u"+/09azAZ"_s << QByteArray("\xFB\xFD\x3D\x6B\x30\x19");
    QTest::newRow("beyond ASCII") << u"TWFué"_s << QByteArray();
    QTest::newRow("beyond ASCII after the end") << u"TWFu=é"_s << QByteArray();
}

void NSDataAdditionsTest::readsTexts()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, bytes);
    QCOMPARE(dataWithBase64EncodedString(text), bytes);
}

void NSDataAdditionsTest::writesBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("one") << QByteArray("M") << u"TQ=="_s;
    QTest::newRow("two") << QByteArray("Ma") << u"TWE="_s;
    QTest::newRow("three") << QByteArray("Man") << u"TWFu"_s;
    QTest::newRow("zeros") << QByteArray(4, '\0') << u"AAAAAA=="_s;
    QTest::newRow("every symbol") << numberBytes() << symbols;
    QTest::newRow("six") << QByteArray("foobar") << u"Zm9vYmFy"_s;
    QTest::newRow("the last symbols") << QByteArray("\xFB\xFF") << u"+/8="_s;
}

void NSDataAdditionsTest::writesBytes()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, text);
    QCOMPARE(base64Encoding(bytes), text);
    QCOMPARE(base64EncodingWithLineLength(bytes, 0), text);
}

void NSDataAdditionsTest::breaksLines_data()
{
    QTest::addColumn<int>("bytes");
    QTest::addColumn<quint32>("lineLength");
    QTest::addColumn<QList<int>>("lines"); // lengths of what stands before, between and after
    QTest::newRow("a full line") << 57 << 76U << QList<int>{76, 0};
    QTest::newRow("and one more group") << 58 << 76U << QList<int>{76, 4};
    QTest::newRow("no line break") << 57 << 0U << QList<int>{76};
    QTest::newRow("no multiple of four") << 12 << 5U << QList<int>{8, 8, 0};
    QTest::newRow("every group") << 7 << 1U << QList<int>{4, 4, 4, 0};
    QTest::newRow("longer than the text") << 3 << 4000000000U << QList<int>{4};
    QTest::newRow("nothing") << 0 << 4U << QList<int>{0};
}

void NSDataAdditionsTest::breaksLines()
{
    QFETCH(const int, bytes);
    QFETCH(const quint32, lineLength);
    QFETCH(const QList<int>, lines);
    const QString text = base64EncodingWithLineLength(QByteArray(bytes, 'x'), lineLength);
    QCOMPARE(QString(text).remove(u'\n'), base64Encoding(QByteArray(bytes, 'x')));
    QList<int> lengths;
    for (const QString& line : text.split(u'\n'))
        lengths.append(static_cast<int>(line.size()));
    QCOMPARE(lengths, lines);
}

void NSDataAdditionsTest::readsWhatItWrites()
{
    QByteArray bytes;
    for (int length = 0; length < 300; ++length) {
        QCOMPARE(dataWithBase64EncodedString(base64Encoding(bytes)), bytes);
        QCOMPARE(dataWithBase64EncodedString(base64EncodingWithLineLength(bytes, 76)), bytes);
        bytes.append(static_cast<char>(length * 7));
    }
}

QTEST_MAIN(NSDataAdditionsTest)
#include "NSDataAdditionsTest.moc"
