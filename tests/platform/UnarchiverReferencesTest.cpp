// One object met in several places of a stream.
#include "platform/Archiver.h"
#include "platform/Unarchiver.h"
#include "tests/platform/ArchiveSamples.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::littleEndian;

namespace {

// A record of the class GroupEntry that holds one text and one block.
struct Group {
    QString text;
    qint32 block = 0;
};

Group decodeGroup(Unarchiver& unarchiver)
{
    Group group;
    unarchiver.decodeObject("GroupEntry"_L1, [&] {
        group.text = unarchiver.decodeString();
        group.block = unarchiver.decodeInt32Block();
    });
    return group;
}

// A dictionary of such records, an entry a line.
QStringList decodeGroups(Unarchiver& unarchiver)
{
    QStringList entries;
    unarchiver.decodeDictionary([&] {
        const QString key = unarchiver.decodeString();
        const Group group = decodeGroup(unarchiver);
        entries << u"%1: %2 %3"_s.arg(key, group.text).arg(group.block);
    });
    return entries;
}

// A record with objects of every other kind.
struct Book {
    QList<qint64> numbers;
    QStringList texts;
    QByteArray data;
};

Book decodeBook(Unarchiver& unarchiver)
{
    Book book;
    unarchiver.decodeObject("BookEntry"_L1, [&] {
        book.numbers << unarchiver.decodeNumber();
        book.texts << unarchiver.decodeString();
        book.data = unarchiver.decodeData();
        book.numbers << unarchiver.decodeNumber();
        book.texts << unarchiver.decodeString();
    });
    return book;
}

// Object 0, which is a record of the first kind: its class 1 and 2, its text 3 of the class 4; the
// shared strings
// "@" 0, the two class names, "NSString" 3, "+" 4.
QByteArray oneGroup()
{
    return "84 01 '@' 84 84 84 0A 'GroupEntry' 00 84 84 08 'NSObject' 00 85"
           "92 84 84 84 08 'NSString' 01 94 84 01 '+' 03 'abc' 86  96 04 00 00 01 2C 86"_ba;
}

} // namespace

class UnarchiverReferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sharesStrings();
    void readsARecordAgain();
    void readsADictionaryOfRecordsAgain();
    void readsEveryObjectInsideARecordAgain();
    void followsReferencesFarBack();
    void followsReferencesInLongerFormsThanNeeded();
};

void UnarchiverReferencesTest::sharesStrings()
{
    const QByteArray bytes =
        littleEndian("84 01 '@' 84 84 84 08 'NSString' 01 85 84 01 '+' 03 'abc' 86"
                     "92 92  92 84 93 94 00 86  92 94  92 85");
    Unarchiver unarchiver(bytes);
    const QString first = unarchiver.decodeString();
    const QString again = unarchiver.decodeString();
    QCOMPARE(again, u"abc"_s);
    QCOMPARE(again.constData(), first.constData());
    for (int i = 0; i < 2; ++i) {
        const QString empty = unarchiver.decodeString();
        QVERIFY(empty.isEmpty());
        QVERIFY(!empty.isNull());
    }
    QVERIFY(unarchiver.decodeString().isNull());
}

void UnarchiverReferencesTest::readsARecordAgain()
{
    // What is new after the reference must take the next number: the text "d" is object 5.
    const QByteArray bytes =
        littleEndian(oneGroup() + "92 92  92 84 96 96 01 'd' 86  92 97  92 92");
    Unarchiver unarchiver(bytes);
    const Group first = decodeGroup(unarchiver);
    const Group again = decodeGroup(unarchiver);
    QCOMPARE(again.text, first.text);
    QCOMPARE(again.text.constData(), first.text.constData());
    QCOMPARE(again.block, 300);
    QCOMPARE(unarchiver.decodeString(), u"d"_s);
    QCOMPARE(unarchiver.decodeString(), u"d"_s);
    QCOMPARE(decodeGroup(unarchiver).block, 300);
    QCOMPARE(unarchiver.offset(), unarchiver.size());
}

void UnarchiverReferencesTest::readsADictionaryOfRecordsAgain()
{
    // A record; a dictionary (object 5) of its text to it and of nil to a new record; that again.
    const QByteArray bytes = littleEndian(oneGroup()
        + "92 84 84 84 0C 'NSDictionary' 00 94 84 01 'i' 02"
          "92 95 92 92  92 85 92 84 93 92 95 96 04 00 00 00 07 86 86  92 97  92 99");
    Unarchiver unarchiver(bytes);
    QCOMPARE(decodeGroup(unarchiver).block, 300);
    const QStringList entries{u"abc: abc 300"_s, u": abc 7"_s};
    QCOMPARE(decodeGroups(unarchiver), entries);
    QCOMPARE(decodeGroups(unarchiver), entries);
    QCOMPARE(decodeGroup(unarchiver).block, 7);
    QCOMPARE(unarchiver.offset(), unarchiver.size());
}

void UnarchiverReferencesTest::readsEveryObjectInsideARecordAgain()
{
    Archiver archiver;
    archiver.beginObject("BookEntry"_L1);
    archiver.encodeNumber(5);
    archiver.encodeString(u"text"_s);
    archiver.encodeData("data"_ba);
    archiver.encodeNumber(300);
    archiver.encodeString(u"text"_s);
    archiver.endObject();
    const QByteArray bytes = archiver.takeData() + samples::fromHex("92 92");
    Unarchiver unarchiver(bytes);
    const Book first = decodeBook(unarchiver);
    const Book again = decodeBook(unarchiver);
    QCOMPARE(unarchiver.offset(), unarchiver.size());
    QCOMPARE(again.numbers, QList<qint64>({5, 300}));
    QCOMPARE(again.texts, QStringList({u"text"_s, u"text"_s}));
    QCOMPARE(again.data, "data"_ba);
    QCOMPARE(again.texts.first().constData(), first.texts.last().constData());
    QCOMPARE(again.data.constData(), first.data.constData());
}

void UnarchiverReferencesTest::followsReferencesFarBack()
{
    // Past the largest reference of two bytes for objects; past the largest of one byte for types,
    // of which each length of data has its own.
    constexpr int count = 32900;
    Archiver archiver;
    for (int i = 0; i < 300; ++i)
        archiver.encodeData(QByteArray(i, 'x'));
    for (int reading = 0; reading < 2; ++reading) {
        for (int i = 0; i < count; ++i)
            archiver.encodeString(QString::number(i));
    }
    for (int i = 0; i < 300; ++i)
        archiver.encodeData(QByteArray(i, 'y'));
    const QByteArray bytes = archiver.takeData();

    Unarchiver unarchiver(bytes);
    for (int i = 0; i < 300; ++i)
        QCOMPARE(unarchiver.decodeData(), QByteArray(i, 'x'));
    for (int i = 0; i < count * 2; ++i)
        QCOMPARE(unarchiver.decodeString(), QString::number(i % count));
    for (int i = 0; i < 300; ++i)
        QCOMPARE(unarchiver.decodeData(), QByteArray(i, 'y'));
    QCOMPARE(unarchiver.offset(), unarchiver.size());
}

void UnarchiverReferencesTest::followsReferencesInLongerFormsThanNeeded()
{
    const QByteArray bytes =
        littleEndian("84 01 '@' 84 84 84 08 'NSString' 01 85 84 01 '+' 03 'abc' 86"
                     "92 81 92 FF  82 92 FF FF FF 82 92 FF FF FF");
    Unarchiver unarchiver(bytes);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(unarchiver.decodeString(), u"abc"_s);
}

QTEST_APPLESS_MAIN(UnarchiverReferencesTest)
#include "UnarchiverReferencesTest.moc"
