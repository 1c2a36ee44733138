#include "platform/Unarchiver.h"

#include "tests/platform/ArchiveSamples.h"

#include <QtTest>
#include <utility>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::bigEndian;
using samples::littleEndian;

namespace {

using NumberedTexts = QList<std::pair<qint64, QString>>;

} // namespace

class UnarchiverTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsOneString();
    void readsTheBeginningOfAFile();
    void readsAWholeStream();
    void readsABigEndianStream();
    void readsNumbers_data();
    void readsNumbers();
    void readsCounts_data();
    void readsCounts();
    void readsUnsignedLengths();
    void readsBlocks_data();
    void readsBlocks();
    void readsStrings_data();
    void readsStrings();
    void readsData();
    void readsDictionaries();
    void readsADictionaryInItsOwner();
    void readsRecords();
    void checksNoVersionsAndSuperclasses();
    void readsAsManySuperclassesAsAreAllowed();
    void ignoresWhatFollows();
};

void UnarchiverTest::readsOneString()
{
    const QByteArray bytes = samples::oneString();
    Unarchiver unarchiver(bytes);
    QCOMPARE(unarchiver.offset(), 16);
    QCOMPARE(unarchiver.decodeString(), u"string value"_s);
    QCOMPARE(unarchiver.offset(), unarchiver.size());
    QCOMPARE(unarchiver.size(), bytes.size());
}

void UnarchiverTest::readsTheBeginningOfAFile()
{
    // The second of the two entries, so that the dictionary is whole: the first key to itself
    // again.
    const QByteArray bytes = samples::beginningOfFile() + samples::fromHex("93 96 93 85 93 96 86");
    Unarchiver unarchiver(bytes);
    QCOMPARE(unarchiver.decodeInt32Block(), 4);
    QCOMPARE(unarchiver.decodeInt32Block(), 2);
    QStringList keysAndValues;
    QVERIFY(unarchiver.decodeDictionary([&] {
        keysAndValues << unarchiver.decodeString();
        keysAndValues << unarchiver.decodeString();
    }));
    QCOMPARE(keysAndValues, QStringList({u"1"_s, u"1"_s, QString(), u"1"_s}));
}

void UnarchiverTest::readsAWholeStream()
{
    const QByteArray bytes = samples::wholeStream();
    Unarchiver unarchiver(bytes);
    QCOMPARE(unarchiver.decodeInt32Block(), 4);
    NumberedTexts labels;
    QVERIFY(unarchiver.decodeDictionary([&] {
        const qint64 key = unarchiver.decodeNumber();
        labels.append({key, unarchiver.decodeString()});
    }));
    QCOMPARE(labels, NumberedTexts({{42, u"A"_s}, {44, u"A"_s}, {300, u"\u00E9"_s}}));
    QCOMPARE(unarchiver.decodeData(), "\xFF\xD8\xFF\xD9"_ba);
    QVERIFY(unarchiver.decodeString().isNull());
    QCOMPARE(unarchiver.offset(), unarchiver.size());
}

void UnarchiverTest::readsABigEndianStream()
{
    const QByteArray bytes = bigEndian(
        "84 01 '+' 04 00 00 01 2C"
        "84 01 '@' 84 84 84 0C 'NSDictionary' 00 84 84 08 'NSObject' 00 85 84 01 'i' 81 00 02"
        "93 84 84 84 08 'NSNumber' 00 84 84 07 'NSValue' 00 94 84 01 '*' 84 84 01 'l'"
        "9A 82 00 01 00 00 86"
        "93 84 84 84 08 'NSString' 01 94 92 81 00 03 'abc' 86"
        "93 84 96 99 84 84 01 'd' 9C 83 C0 45 00 00 00 00 00 00 86"
        "93 81 FF 99 86");
    Unarchiver unarchiver(bytes);
    QCOMPARE(unarchiver.decodeInt32Block(), 300);
    NumberedTexts read;
    const auto readEntry = [&] {
        const qint64 key = unarchiver.decodeNumber();
        read.append({key, unarchiver.decodeString()});
    };
    QVERIFY(unarchiver.decodeDictionary(readEntry));
    QCOMPARE(read, NumberedTexts({{65536, u"abc"_s}, {-42, u"abc"_s}}));
}

void UnarchiverTest::readsNumbers_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<qint64>("number");
    const auto row = [](const char* type, const char* form, qint64 number) {
        QTest::addRow("%s %s", type, form) << QByteArray(type) << QByteArray(form) << number;
    };
    for (const char* const type : {"s", "i", "l", "q"}) {
        row(type, "00", 0);
        row(type, "7F", 127);
        row(type, "92", -110);
        row(type, "81 80 00", 128);
        row(type, "81 91 FF", -111);
        row(type, "81 00 80", -32768);
        row(type, "82 00 80 00 00", 32768);
        row(type, "82 FF FF FF 7F", 2147483647);
        row(type, "82 00 00 00 80", -2147483648);
        row(type, "81 05 00", 5);
        row(type, "82 FF FF FF FF", -1);
    }
    for (const char* const type : {"S", "I", "L", "Q"}) {
        row(type, "2A", 42);
        row(type, "81 40 9C", 40000);
        row(type, "82 00 28 6B EE", 4000000000);
    }
    row("c", "84", -124);
    row("c", "2A", 42);
    row("C", "84", 132);
    row("B", "01", 1);
    row("d", "2A", 42);
    row("d", "81 2C 01", 300);
    row("d", "83 00 00 00 00 00 00 45 40", 42);
    row("f", "83 00 00 28 C2", -42);
    row("d", "83 00 00 00 00 00 00 40 43", 9007199254740992);
}

void UnarchiverTest::readsNumbers()
{
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, form);
    QFETCH(qint64, number);
    const QByteArray bytes =
        littleEndian("84 01 '@' 84 84 84 08 'NSNumber' 00 85 84 01 '*' 84 84 01 '" + type + "' 95"
            + form + "86  92 92");
    Unarchiver unarchiver(bytes);
    QCOMPARE(unarchiver.decodeNumber(), number);
    QCOMPARE(unarchiver.decodeNumber(), number);
    QCOMPARE(unarchiver.offset(), unarchiver.size());
}

void UnarchiverTest::readsCounts_data()
{
    QTest::addColumn<QByteArray>("type");
    for (const char* const type : {"i", "l", "q", "s", "I", "L", "Q", "S"})
        QTest::newRow(type) << QByteArray(type);
}

void UnarchiverTest::readsCounts()
{
    QFETCH(QByteArray, type);
    const QByteArray room(40000, '\0');
    const QByteArray bytes = littleEndian("84 01 '" + type + "' 03 92 81 30 75 92 81 40 9C") + room;
    Unarchiver unarchiver(bytes);
    QCOMPARE(unarchiver.decodeCount(1), 3);
    QCOMPARE(unarchiver.decodeCount(1), 30000);
    QCOMPARE(unarchiver.decodeCount(1), 40000);
}

void UnarchiverTest::readsUnsignedLengths()
{
    const QByteArray block(40000, 'x');
    const QByteArray bytes = littleEndian("84 01 '+' 81 40 9C") + block;
    QCOMPARE(Unarchiver(bytes).decodeBytes(), block);
    const QByteArray longer = littleEndian("84 01 '+' 82 40 9C 00 00") + block;
    QCOMPARE(Unarchiver(longer).decodeBytes(), block);
    const QByteArray data = littleEndian("84 01 '@' 84 84 84 06 'NSData' 00 85 84 01 'i' 81 40 9C"
                                         "84 08 '[40000c]'")
        + block + samples::fromHex("86");
    QCOMPARE(Unarchiver(data).decodeData(), block);
}

void UnarchiverTest::readsBlocks_data()
{
    QTest::addColumn<QByteArray>("bytes");
    // Of each kind one of just its size and one that is longer.
    const QByteArray groups =
        "84 01 '+' 01 FE  92 02 01 FF  92 04 FF FF FF FE  92 05 00 00 01 2C FF"
        "92 08 3F F8 00 00 00 00 00 00  92 09 C0 45 00 00 00 00 00 00 FF"
        "92 10 00 00 00 00 C0 00 00 00 42 C8 99 9A 44 80 00 00"
        "92 11 3F 80 00 00 00 00 00 00 00 00 00 00 00 00 00 00 FF  92 00"_ba;
    QTest::newRow("little-endian") << littleEndian(groups);
    QTest::newRow("big-endian") << bigEndian(groups);
}

void UnarchiverTest::readsBlocks()
{
    QFETCH(QByteArray, bytes);
    Unarchiver unarchiver(bytes);
    QCOMPARE(unarchiver.decodeByteBlock(), 0xFE);
    QCOMPARE(unarchiver.decodeByteBlock(), 1);
    QCOMPARE(unarchiver.decodeInt32Block(), -2);
    QCOMPARE(unarchiver.decodeInt32Block(), 300);
    QCOMPARE(unarchiver.decodeDoubleBlock(), 1.5);
    QCOMPARE(unarchiver.decodeDoubleBlock(), -42.0);
    const std::array<double, 4> frame{0, -2, double(100.3F), 1024};
    QCOMPARE(unarchiver.decodeFloatsBlock(), frame);
    const std::array<double, 4> longer{1, 0, 0, 0};
    QCOMPARE(unarchiver.decodeFloatsBlock(), longer);
    QCOMPARE(unarchiver.decodeBytes().size(), 0);
}

void UnarchiverTest::readsStrings_data()
{
    QTest::addColumn<QByteArray>("utf8");
    QTest::addColumn<QString>("text");
    const QString replacement(QChar::ReplacementCharacter);
    QTest::newRow("ASCII") << "'abc'"_ba << u"abc"_s;
    QTest::newRow("two bytes") << "C3 A9"_ba << u"\u00E9"_s;
    QTest::newRow("three bytes") << "E2 82 AC"_ba << u"\u20AC"_s;
    QTest::newRow("four bytes") << "F0 9F 93 96"_ba << u"\U0001F4D6"_s;
    QTest::newRow("a null character") << "00 61"_ba << QString(QChar(u'\0')) + u'a';
    QTest::newRow("a byte-order mark") << "EF BB BF 61"_ba << QString(QChar(0xFEFF)) + u'a';
    QTest::newRow("only that") << "EF BB BF"_ba << QString(QChar(0xFEFF));
    QTest::newRow("a byte alone") << "61 FF 62"_ba << u'a' + replacement + u'b';
    QTest::newRow("cut short") << "61 C3"_ba << u'a' + replacement;
}

void UnarchiverTest::readsStrings()
{
    QFETCH(QByteArray, utf8);
    QFETCH(QString, text);
    const QByteArray characters = samples::fromHex(utf8);
    const QByteArray length = QByteArray(1, char(characters.size()));
    const QByteArray plain = littleEndian("84 01 '@' 84 84 84 08 'NSString' 01 85 84 01 '+'")
        + length + characters + samples::fromHex("86");
    QCOMPARE(Unarchiver(plain).decodeString(), text);
    const QByteArray changeable =
        littleEndian("84 01 '@' 84 84 84 0F 'NSMutableString' 01 84 84 08 'NSString' 01 85"
                     "84 01 '+'")
        + length + characters + samples::fromHex("86");
    QCOMPARE(Unarchiver(changeable).decodeString(), text);
}

void UnarchiverTest::readsData()
{
    const QByteArray bytes = littleEndian(
        "84 01 '@' 84 84 84 06 'NSData' 00 85 84 01 'i' 03 84 04 '[3c]' 'abc' 86  92 92"
        "92 84 84 84 0D 'NSMutableData' 00 93 94 03 95 'xyz' 86"
        "92 84 93 94 00 84 04 '[0c]' 86  92 85");
    Unarchiver unarchiver(bytes);
    const QByteArray first = unarchiver.decodeData();
    QCOMPARE(first, "abc"_ba);
    QCOMPARE(unarchiver.decodeData().constData(), first.constData());
    QCOMPARE(unarchiver.decodeData(), "xyz"_ba);
    const QByteArray empty = unarchiver.decodeData();
    QVERIFY(empty.isEmpty());
    QVERIFY(!empty.isNull());
    QVERIFY(unarchiver.decodeData().isNull());
    // A copy: it must be good when the stream is gone.
    QVERIFY(first.constData() < bytes.constData() || first.constData() >= bytes.constEnd());
}

void UnarchiverTest::readsDictionaries()
{
    const QByteArray bytes =
        littleEndian("84 01 '@' 84 84 84 0C 'NSDictionary' 00 85 84 01 'i' 01 92 85 92 85 86"
                     "92 84 84 84 13 'NSMutableDictionary' 00 93 94 00 86  92 85");
    Unarchiver unarchiver(bytes);
    QList<qint64> reserved;
    QStringList texts;
    const auto reserve = [&](qint64 count) {
        reserved << count;
    };
    const auto readEntry = [&] {
        texts << unarchiver.decodeString() << unarchiver.decodeString();
    };
    QVERIFY(unarchiver.decodeDictionary(reserve, readEntry));
    QCOMPARE(reserved, QList<qint64>({1}));
    QCOMPARE(texts, QStringList({QString(), QString()}));
    QVERIFY(unarchiver.decodeDictionary(reserve, readEntry));
    QCOMPARE(reserved, QList<qint64>({1, 0}));
    QVERIFY(!unarchiver.decodeDictionary(reserve, readEntry));
    QCOMPARE(reserved.size(), 2);
    QCOMPARE(texts.size(), 2);
}

void UnarchiverTest::readsADictionaryInItsOwner()
{
    const QByteArray bytes = littleEndian("84 01 'i' 02 84 01 '@' 85 93 85 93 85 93 85 92 00");
    Unarchiver unarchiver(bytes);
    int groups = 0;
    const auto readEntry = [&] {
        for (int i = 0; i < 2; ++i)
            groups += unarchiver.decodeString().isNull() ? 1 : 0;
    };
    unarchiver.decodeInlineDictionary(readEntry);
    QCOMPARE(groups, 4);
    unarchiver.decodeInlineDictionary(readEntry);
    QCOMPARE(groups, 4);
    QCOMPARE(unarchiver.offset(), unarchiver.size());
}

void UnarchiverTest::readsRecords()
{
    const QByteArray bytes = littleEndian(
        "84 01 '@' 84 84 84 0A 'GroupEntry' 00 84 84 08 'NSObject' 00 85 92 85 84 01 '+' 01 07 86"
        "92 85  92 84 93 92 85 95 01 09 86");
    Unarchiver unarchiver(bytes);
    QList<quint8> read;
    const auto readBody = [&] {
        QVERIFY(unarchiver.decodeString().isNull());
        read << unarchiver.decodeByteBlock();
    };
    QVERIFY(unarchiver.decodeObject("GroupEntry"_L1, readBody));
    QVERIFY(!unarchiver.decodeObject("GroupEntry"_L1, readBody));
    QVERIFY(unarchiver.decodeObject("GroupEntry"_L1, readBody));
    QCOMPARE(read, QList<quint8>({7, 9}));
    QCOMPARE(unarchiver.offset(), unarchiver.size());
}

void UnarchiverTest::checksNoVersionsAndSuperclasses()
{
    const QByteArray bytes = samples::fromHex(
        "04 0B 'streamtyped' 05"
        "84 01 '@' 84 84 84 08 'NSString' 81 E8 03 84 84 03 'Odd' FF 85 84 01 '+' 03 'abc' 86");
    QCOMPARE(Unarchiver(bytes).decodeString(), u"abc"_s);
}

void UnarchiverTest::readsAsManySuperclassesAsAreAllowed()
{
    QByteArray groups = "84 01 '@' 84 84 84 08 'NSString' 01"_ba;
    for (int i = 0; i < 15; ++i)
        groups += "84 84 01 'A' 00";
    const QByteArray bytes = littleEndian(groups + "85 84 01 '+' 03 'abc' 86");
    QCOMPARE(Unarchiver(bytes).decodeString(), u"abc"_s);
}

void UnarchiverTest::ignoresWhatFollows()
{
    const QByteArray bytes = samples::oneString() + samples::fromHex("80 87 86 FF");
    QCOMPARE(Unarchiver(bytes).decodeString(), u"string value"_s);
}

QTEST_APPLESS_MAIN(UnarchiverTest)
#include "UnarchiverTest.moc"
