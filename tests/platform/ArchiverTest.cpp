#include "platform/Archiver.h"

#include "platform/ArchiveError.h"
#include "platform/Unarchiver.h"
#include "tests/platform/ArchiveSamples.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::fromHex;

namespace {

constexpr qsizetype FirstLengthTooLarge = 0x80000000;

QByteArray archived(const std::function<void(Archiver&)>& write)
{
    Archiver archiver;
    write(archiver);
    const qsizetype size = archiver.size();
    QByteArray bytes = archiver.takeData();
    return bytes.size() == size ? bytes : QByteArray("size() differs from what is taken");
}

// What one operation adds to an archive that has been begun so.
QByteArray added(
    const std::function<void(Archiver&)>& begin, const std::function<void(Archiver&)>& add)
{
    const qsizetype before = archived(begin).size();
    return archived([&](Archiver& archiver) {
        begin(archiver);
        add(archiver);
    }).sliced(before);
}

QString numbered(qsizetype number)
{
    return u"text %1"_s.arg(number);
}

} // namespace

class ArchiverTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void beginsWithTheHeader();
    void writesOneString();
    void writesTheBeginningOfAFile();
    void writesAWholeStream();
    void writesIntegersInTheShortestForm_data();
    void writesIntegersInTheShortestForm();
    void writesLengthsInTheShortestForm_data();
    void writesLengthsInTheShortestForm();
    void writesBlocksBigEndian();
    void writesAnEqualStringOnce();
    void writesStringsAsUtf8_data();
    void writesStringsAsUtf8();
    void tellsNullFromEmpty();
    void findsEveryOneOfManyStrings();
    void writesATypeForEveryLengthOfDataOnce();
    void writesRecords();
    void writesADictionaryIntoItsOwner();
    void refersToObjectsFarBack_data();
    void refersToObjectsFarBack();
    void refersToTypesFarBack();
    void refusesWhatALengthCannotSay();
};

void ArchiverTest::beginsWithTheHeader()
{
    QCOMPARE(archived([](Archiver&) {}), fromHex("04 0B 'streamtyped' 81 E8 03"));
}

void ArchiverTest::writesOneString()
{
    const auto write = [](Archiver& archiver) {
        archiver.encodeString(u"string value"_s);
    };
    QCOMPARE(archived(write), samples::oneString());
}

void ArchiverTest::writesTheBeginningOfAFile()
{
    const auto write = [](Archiver& archiver) {
        archiver.encodeInt32Block(4);
        archiver.encodeInt32Block(2);
        archiver.beginDictionary(2);
        archiver.encodeString(u"1"_s);
    };
    QCOMPARE(archived(write), samples::beginningOfFile());
}

void ArchiverTest::writesAWholeStream()
{
    const auto write = [](Archiver& archiver) {
        archiver.encodeInt32Block(4);
        archiver.beginDictionary(3);
        archiver.encodeNumber(42);
        archiver.encodeString(u"A"_s);
        archiver.encodeNumber(44);
        archiver.encodeString(u"A"_s);
        archiver.encodeNumber(300);
        archiver.encodeString(u"\u00E9"_s);
        archiver.endObject();
        archiver.encodeData("\xFF\xD8\xFF\xD9"_ba);
        archiver.encodeNil();
    };
    QCOMPARE(archived(write), samples::wholeStream());
}

void ArchiverTest::writesIntegersInTheShortestForm_data()
{
    QTest::addColumn<qint32>("number");
    QTest::addColumn<QByteArray>("form");
    QTest::newRow("0") << 0 << "00"_ba;
    QTest::newRow("-1") << -1 << "FF"_ba;
    QTest::newRow("127") << 127 << "7F"_ba;
    QTest::newRow("128") << 128 << "81 80 00"_ba;
    QTest::newRow("-110") << -110 << "92"_ba;
    QTest::newRow("-111") << -111 << "81 91 FF"_ba;
    QTest::newRow("32767") << 32767 << "81 FF 7F"_ba;
    QTest::newRow("32768") << 32768 << "82 00 80 00 00"_ba;
    QTest::newRow("-32768") << -32768 << "81 00 80"_ba;
    QTest::newRow("-32769") << -32769 << "82 FF 7F FF FF"_ba;
    QTest::newRow("largest") << std::numeric_limits<qint32>::max() << "82 FF FF FF 7F"_ba;
    QTest::newRow("smallest") << std::numeric_limits<qint32>::min() << "82 00 00 00 80"_ba;
}

void ArchiverTest::writesIntegersInTheShortestForm()
{
    QFETCH(qint32, number);
    QFETCH(QByteArray, form);
    const QByteArray bytes = added([](Archiver& archiver) { archiver.encodeNumber(1); },
        [&](Archiver& archiver) { archiver.encodeNumber(number); });
    QCOMPARE(bytes, fromHex("92 84 93 96 96 97" + form + "86"));
}

void ArchiverTest::writesLengthsInTheShortestForm_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QByteArray>("form");
    // 42 and 43 characters: where the longest encoding of a text no longer has a length of one
    // byte.
    QTest::newRow("0") << 0 << "00"_ba;
    QTest::newRow("42") << 42 << "2A"_ba;
    QTest::newRow("43") << 43 << "2B"_ba;
    QTest::newRow("127") << 127 << "7F"_ba;
    QTest::newRow("128") << 128 << "81 80 00"_ba;
    QTest::newRow("10922") << 10922 << "81 AA 2A"_ba;
    QTest::newRow("10923") << 10923 << "81 AB 2A"_ba;
    QTest::newRow("32767") << 32767 << "81 FF 7F"_ba;
    QTest::newRow("32768") << 32768 << "82 00 80 00 00"_ba;
    QTest::newRow("100000") << 100000 << "82 A0 86 01 00"_ba;
}

void ArchiverTest::writesLengthsInTheShortestForm()
{
    QFETCH(int, length);
    QFETCH(QByteArray, form);
    const QByteArray characters(length, 'x');
    const auto begin = [](Archiver& archiver) {
        archiver.encodeString(u"first"_s);
    };
    const auto addText = [&](Archiver& archiver) {
        archiver.encodeString(QString(length, u'x'));
    };
    QCOMPARE(added(begin, addText), fromHex("92 84 93 95" + form) + characters + fromHex("86"));
    const auto addBytes = [&](Archiver& archiver) {
        archiver.encodeBytes(characters);
    };
    QCOMPARE(added(begin, addBytes), fromHex("95" + form) + characters);
    const auto addFirst = [&](Archiver& archiver) {
        archiver.encodeString(QString(length, u'x'));
    };
    QVERIFY(archived(addFirst).endsWith(fromHex(form) + characters + fromHex("86")));
}

void ArchiverTest::writesBlocksBigEndian()
{
    const auto begin = [](Archiver& archiver) {
        archiver.encodeByteBlock(1);
    };
    QCOMPARE(added([](Archiver&) {}, begin), fromHex("84 01 '+' 01 01"));
    const auto add = [](Archiver& archiver) {
        archiver.encodeByteBlock(0xFE);
        archiver.encodeInt32Block(300);
        archiver.encodeInt32Block(-2);
        archiver.encodeDoubleBlock(1.5);
        archiver.encodeFloatsBlock({0, -2, 100.3, 1024});
        archiver.encodeBytes({});
    };
    QCOMPARE(added(begin, add),
        fromHex("92 01 FE  92 04 00 00 01 2C  92 04 FF FF FF FE  92 08 3F F8 00 00 00 00 00 00"
                "92 10 00 00 00 00 C0 00 00 00 42 C8 99 9A 44 80 00 00  92 00"));
}

void ArchiverTest::writesAnEqualStringOnce()
{
    const auto begin = [](Archiver& archiver) {
        archiver.encodeString(u"first"_s);
        archiver.encodeString(u"second"_s);
    };
    const auto add = [](Archiver& archiver) {
        archiver.encodeString(u"sec"_s + u"ond"_s);
        archiver.encodeString(u"first"_s);
        archiver.encodeString(u"secon"_s);
        archiver.encodeString(u"second"_s);
    };
    QCOMPARE(added(begin, add), fromHex("92 95  92 92  92 84 93 95 05 'secon' 86  92 95"));
}

void ArchiverTest::writesStringsAsUtf8_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("utf8");
    QTest::newRow("two bytes") << u"\u00E9"_s << "C3 A9"_ba;
    QTest::newRow("three bytes") << u"\u20AC"_s << "E2 82 AC"_ba;
    QTest::newRow("a pair") << u"\U0001F4D6"_s << "F0 9F 93 96"_ba;
    QTest::newRow("a null character") << QString(1, QChar(u'\0')) << "00"_ba;
    QTest::newRow("a byte-order mark") << QString(QChar(0xFEFF)) << "EF BB BF"_ba;
    QTest::newRow("a high half at the end") << QString(u'a') + QChar(0xD83D) << "61 EF BF BD"_ba;
    QTest::newRow("a high half") << QChar(0xD83D) + QString(u'a') << "EF BF BD 61"_ba;
    QTest::newRow("a low half") << QChar(0xDCD6) + QString(u'a') << "EF BF BD 61"_ba;
}

void ArchiverTest::writesStringsAsUtf8()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, utf8);
    const QByteArray characters = fromHex(utf8);
    const QByteArray bytes = added([](Archiver& archiver) { archiver.encodeString(u"first"_s); },
        [&](Archiver& archiver) {
            archiver.encodeString(text);
            archiver.encodeString(u"next"_s);
        });
    QCOMPARE(bytes,
        fromHex("92 84 93 95") + char(characters.size()) + characters
            + fromHex("86 92 84 93 95 04 'next' 86"));
}

void ArchiverTest::tellsNullFromEmpty()
{
    const auto begin = [](Archiver& archiver) {
        archiver.encodeString(u"first"_s);
        archiver.encodeData("x"_ba);
    };
    const auto add = [](Archiver& archiver) {
        archiver.encodeString(QString());
        archiver.encodeString(u""_s);
        archiver.encodeString(u""_s);
        archiver.encodeData(QByteArray());
        archiver.encodeData(""_ba);
    };
    // Objects: the text 0, its class 1, the root class 2, the data 3, its class 4, the empty
    // text 5.
    QCOMPARE(added(begin, add),
        fromHex("92 85  92 84 93 95 00 86  92 97  92 85  92 84 96 97 00 84 04 '[0c]' 86"));
}

void ArchiverTest::findsEveryOneOfManyStrings()
{
    constexpr qsizetype count = 5000;
    Archiver archiver;
    for (qsizetype i = 0; i < count; ++i)
        archiver.encodeString(numbered(i));
    const qsizetype once = archiver.size();
    for (qsizetype i = 0; i < count; ++i)
        archiver.encodeString(numbered(i));
    // A reference takes four bytes at most here, its type included.
    QVERIFY(archiver.size() - once <= count * 4);

    const QByteArray bytes = archiver.takeData();
    Unarchiver unarchiver(bytes);
    for (qsizetype i = 0; i < count * 2; ++i)
        QCOMPARE(unarchiver.decodeString(), numbered(i % count));
    QCOMPARE(unarchiver.offset(), unarchiver.size());
}

void ArchiverTest::writesATypeForEveryLengthOfDataOnce()
{
    const auto begin = [](Archiver& archiver) {
        archiver.encodeData("abc"_ba);
    };
    QVERIFY(archived(begin).endsWith(fromHex("84 01 'i' 03 84 04 '[3c]' 'abc' 86")));
    const auto add = [](Archiver& archiver) {
        archiver.encodeData("abc"_ba);
        archiver.encodeData(QByteArray(200, 'x'));
        archiver.encodeData("xyz"_ba);
    };
    QCOMPARE(added(begin, add),
        fromHex("92 84 93 95 03 96 'abc' 86  92 84 93 95 81 C8 00 84 06 '[200c]'")
            + QByteArray(200, 'x') + fromHex("86  92 84 93 95 03 96 'xyz' 86"));
}

void ArchiverTest::writesRecords()
{
    const auto write = [](Archiver& archiver) {
        for (int i = 0; i < 2; ++i) {
            archiver.beginObject("GroupEntry"_L1);
            archiver.encodeByteBlock(7);
            archiver.encodeNil();
            archiver.endObject();
        }
    };
    QCOMPARE(archived(write),
        samples::littleEndian("84 01 '@' 84 84 84 0A 'GroupEntry' 00 84 84 08 'NSObject' 00 85"
                              "84 01 '+' 01 07  92 85 86  92 84 93 95 01 07  92 85 86"));
}

void ArchiverTest::writesADictionaryIntoItsOwner()
{
    const auto write = [](Archiver& archiver) {
        archiver.encodeCount(1);
        archiver.encodeNil();
        archiver.encodeNil();
        archiver.encodeCount(128);
    };
    QCOMPARE(archived(write), samples::littleEndian("84 01 'i' 01 84 01 '@' 85 93 85 92 81 80 00"));
}

void ArchiverTest::refersToObjectsFarBack_data()
{
    QTest::addColumn<int>("object");
    QTest::addColumn<QByteArray>("reference");
    QTest::newRow("0") << 0 << "92"_ba;
    QTest::newRow("17") << 17 << "A3"_ba;
    QTest::newRow("237") << 237 << "7F"_ba;
    QTest::newRow("238") << 238 << "81 80 00"_ba;
    QTest::newRow("32877") << 32877 << "81 FF 7F"_ba;
    QTest::newRow("32878") << 32878 << "82 00 80 00 00"_ba;
}

void ArchiverTest::refersToObjectsFarBack()
{
    QFETCH(int, object);
    QFETCH(QByteArray, reference);
    // The first text is object 0, its class and the class above it are 1 and 2.
    const auto textOf = [](int number) {
        return numbered(number == 0 ? 0 : number - 2);
    };
    const auto begin = [](Archiver& archiver) {
        for (int i = 0; i < 32900; ++i)
            archiver.encodeString(numbered(i));
    };
    const auto add = [&](Archiver& archiver) {
        archiver.encodeString(textOf(object));
    };
    QCOMPARE(added(begin, add), fromHex("92" + reference));
}

void ArchiverTest::refersToTypesFarBack()
{
    // Each length of data has a type of its own.
    constexpr int count = 300;
    const auto begin = [](Archiver& archiver) {
        for (int i = 0; i < count; ++i)
            archiver.encodeData(QByteArray(i, 'x'));
    };
    // 0 type, 1 class, 2 root class, 3 count, 4 the type of no bytes: that of n bytes is 4 + n.
    const auto add = [](Archiver& archiver) {
        archiver.encodeData(QByteArray(233, 'y'));
        archiver.encodeData(QByteArray(234, 'y'));
    };
    QCOMPARE(added(begin, add),
        fromHex("92 84 93 95 81 E9 00 7F") + QByteArray(233, 'y')
            + fromHex("86 92 84 93 95 81 EA 00 81 80 00") + QByteArray(234, 'y') + fromHex("86"));
}

void ArchiverTest::refusesWhatALengthCannotSay()
{
    Archiver archiver;
    const char one = 'x';
    // A view that claims to be longer than it is: it must be refused before it is read.
    QVERIFY_THROWS_EXCEPTION(
        ArchiveError, archiver.encodeBytes(QByteArrayView(&one, FirstLengthTooLarge)));
    QVERIFY_THROWS_EXCEPTION(ArchiveError, archiver.encodeCount(FirstLengthTooLarge));
    QVERIFY_THROWS_EXCEPTION(ArchiveError, archiver.beginDictionary(FirstLengthTooLarge));
}

QTEST_APPLESS_MAIN(ArchiverTest)
#include "ArchiverTest.moc"
