// Streams that must be refused: each rule of the stream broken by itself, every truncation, and
// bits turned over.
#include "platform/ArchiveError.h"
#include "platform/Archiver.h"
#include "platform/Unarchiver.h"
#include "tests/platform/ArchiveSamples.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::littleEndian;

using Reading = void (*)(Unarchiver&);
Q_DECLARE_METATYPE(Reading)

namespace {

const Reading Bytes = [](Unarchiver& unarchiver) {
    unarchiver.decodeBytes();
};
const Reading ByteBlock = [](Unarchiver& unarchiver) {
    unarchiver.decodeByteBlock();
};
const Reading Int32Block = [](Unarchiver& unarchiver) {
    unarchiver.decodeInt32Block();
};
const Reading DoubleBlock = [](Unarchiver& unarchiver) {
    unarchiver.decodeDoubleBlock();
};
const Reading FloatsBlock = [](Unarchiver& unarchiver) {
    unarchiver.decodeFloatsBlock();
};
const Reading Text = [](Unarchiver& unarchiver) {
    unarchiver.decodeString();
};
const Reading Data = [](Unarchiver& unarchiver) {
    unarchiver.decodeData();
};
const Reading Number = [](Unarchiver& unarchiver) {
    unarchiver.decodeNumber();
};
const Reading Count = [](Unarchiver& unarchiver) {
    unarchiver.decodeCount(1);
};
const Reading CountOfFours = [](Unarchiver& unarchiver) {
    unarchiver.decodeCount(4);
};

const Reading Texts = [](Unarchiver& unarchiver) {
    unarchiver.decodeDictionary([&] {
        unarchiver.decodeString();
        unarchiver.decodeString();
    });
};

const Reading Record = [](Unarchiver& unarchiver) {
    unarchiver.decodeObject("GroupEntry"_L1, [&] { unarchiver.decodeString(); });
};

const Reading Nested = [](Unarchiver& unarchiver) {
    unarchiver.decodeObject("GroupEntry"_L1, [&] { Record(unarchiver); });
};

const Reading TextThenRecord = [](Unarchiver& unarchiver) {
    Text(unarchiver);
    Record(unarchiver);
};

const Reading RecordThenTexts = [](Unarchiver& unarchiver) {
    Record(unarchiver);
    Texts(unarchiver);
};

const Reading GroupThenColumn = [](Unarchiver& unarchiver) {
    Record(unarchiver);
    unarchiver.decodeObject("ColumnEntry"_L1, [&] { unarchiver.decodeString(); });
};

const Reading TextTwice = [](Unarchiver& unarchiver) {
    Text(unarchiver);
    Text(unarchiver);
};

const Reading WholeStream = [](Unarchiver& unarchiver) {
    unarchiver.decodeInt32Block();
    unarchiver.decodeDictionary([&] {
        unarchiver.decodeNumber();
        unarchiver.decodeString();
    });
    unarchiver.decodeData();
    unarchiver.decodeString();
};

const Reading BeginningOfFile = [](Unarchiver& unarchiver) {
    unarchiver.decodeInt32Block();
    unarchiver.decodeInt32Block();
    Texts(unarchiver);
};

// The error that reading ends in, as its message; empty when it ends in values.
QString errorOf(const QByteArray& bytes, Reading read)
{
    try {
        Unarchiver unarchiver(bytes);
        read(unarchiver);
    } catch (const ArchiveError& error) {
        const bool within = error.offset() >= 0 && error.offset() <= bytes.size();
        return within ? error.message() : u"an error outside of the stream"_s;
    }
    return {};
}

// Group of the type "@" and all of a text object up to its length; "+" is the shared string 2.
const QByteArray TextBegun = "84 01 '@' 84 84 84 08 'NSString' 01 85 84 01 '+'"_ba;
const QByteArray DataBegun = "84 01 '@' 84 84 84 06 'NSData' 00 85 84 01 'i' "_ba;
const QByteArray NumberBegun = "84 01 '@' 84 84 84 08 'NSNumber' 00 85 "_ba;
const QByteArray RecordBegun = "84 01 '@' 84 84 84 0A 'GroupEntry' 00 85 "_ba;

void addRow(
    const char* name, const QByteArray& groups, Reading read, qint64 offset, const char* problem)
{
    constexpr qint64 headerSize = 16;
    const QString message =
        QString::fromUtf8(problem) + u" at offset %1"_s.arg(headerSize + offset);
    QTest::newRow(name) << littleEndian(groups) << read << message;
}

void addHeaderRows()
{
    const auto row = [](const char* name, const QByteArray& stream, const QString& message) {
        QTest::newRow(name) << samples::fromHex(stream) << Bytes << message;
    };
    row("nothing", {}, u"the stream ends too early at offset 0"_s);
    row("version 3", "03 0B 'streamtyped' 81 E8 03", u"an unknown stream version at offset 0"_s);
    row("version 5", "05 0B 'streamtyped' 81 E8 03", u"an unknown stream version at offset 0"_s);
    row("another signature", "04 0B 'streamtypes' 81 E8 03",
        u"the unknown signature \"streamtypes\" at offset 1"_s);
    row("a shorter signature", "04 0A 'streamtype' 81 E8 03",
        u"the unknown signature \"streamtype\" at offset 1"_s);
    row("a signature beyond the end", "04 7F 'streamtyped' 81 E8 03",
        u"a length of 127 with 14 bytes left at offset 1"_s);
    row("no system version", "04 0B 'streamtyped' 86",
        u"byte 0x86 where an integer was expected at offset 13"_s);
}

void addTypeRows()
{
    addRow("a nil type", "85", Bytes, 0, "a nil type");
    addRow("a type not yet met", "92", Bytes, 0, "a reference to a type not yet met");
    addRow("a type before the first", "84 01 '@' 85 81 91 FF 85", TextTwice, 4,
        "a reference to a type not yet met");
    addRow("an end for a type", "86", Text, 0, "byte 0x86 where an integer was expected");
    addRow("another type", "84 01 '@' 85", Bytes, 0, "type \"@\" where \"+\" was expected");
    addRow("a longer type", "84 02 '++' 00", Bytes, 0, "type \"++\" where \"+\" was expected");
    addRow("an unprintable type", "84 02 00 0A", Bytes, 0, "type \"??\" where \"+\" was expected");
    addRow("an empty type", "84 00", Bytes, 0, "type \"\" where \"+\" was expected");
    addRow("a negative length of a type", "84 FF", Bytes, 1, "a negative length");
    addRow("a type beyond the end", "84 02 '+'", Bytes, 1, "a length of 2 with 1 bytes left");
}

void addIntegerRows()
{
    for (const char* const lead : {"80", "83", "84", "85", "86", "87", "88", "89", "8A", "8B", "8C",
             "8D", "8E", "8F", "90", "91"}) {
        const QByteArray name = QByteArray("byte ") + lead + " for a length";
        const QByteArray problem =
            QByteArray("byte 0x") + QByteArray(lead).toLower() + " where an integer was expected";
        addRow(name.constData(), QByteArray("84 01 '+' ") + lead + "00 00 00 00", Bytes, 3,
            problem.constData());
    }
    addRow("a negative length", "84 01 '+' FF 00", Bytes, 3, "a negative length");
    addRow("a negative length of four bytes", "84 01 '+' 82 00 00 00 80", Bytes, 3,
        "a negative length");
    addRow(
        "a length beyond the end", "84 01 '+' 02 00", Bytes, 3, "a length of 2 with 1 bytes left");
    addRow("an unsigned length beyond the end", "84 01 '+' 81 FF FF 00", Bytes, 3,
        "a length of 65535 with 1 bytes left");
    addRow("the largest length", "84 01 '+' 82 FF FF FF 7F", Bytes, 3,
        "a length of 2147483647 with 0 bytes left");
}

void addBlockRows()
{
    addRow("no byte", "84 01 '+' 00", ByteBlock, 0, "a block of 0 bytes where 1 were expected");
    addRow("3 bytes", "84 01 '+' 03 00 00 00", Int32Block, 0,
        "a block of 3 bytes where 4 were expected");
    addRow("7 bytes", "84 01 '+' 07 00 00 00 00 00 00 00", DoubleBlock, 0,
        "a block of 7 bytes where 8 were expected");
    addRow("15 bytes", "84 01 '+' 0F" + QByteArray("00").repeated(15), FloatsBlock, 0,
        "a block of 15 bytes where 16 were expected");
}

void addClassRows()
{
    addRow("a nil class", "84 01 '@' 84 85 86", Text, 4, "a nil class");
    addRow("a nil class name", "84 01 '@' 84 84 85 00 85", Text, 5, "a nil class name");
    addRow("a class name not yet met", "84 01 '@' 84 84 93 00 85", Text, 5,
        "a reference to a class name not yet met");
    addRow("an unknown class", "84 01 '@' 84 84 84 03 'Odd' 00 85 86", Text, 4,
        "class \"Odd\" where \"NSString\" was expected");
    addRow("a class without a name", "84 01 '@' 84 84 84 00 00 85 86", Text, 4,
        "class \"\" where \"NSString\" was expected");
    addRow("a kind of text", "84 01 '@' 84 84 84 03 'Odd' 00 84 84 08 'NSString' 01 85 86", Text, 4,
        "class \"Odd\" where \"NSString\" was expected");
    addRow("an object for its own class", "84 01 '@' 84 92", Text, 4,
        "a reference to an object that is still being read");
    addRow("a class above itself", "84 01 '@' 84 84 84 08 'NSString' 01 93", Text, 16,
        "a reference to an object that is still being read");
    addRow("a text for a class", TextBegun + "00 86 92 84 92", TextTwice, 24,
        "a reference to an object of the wrong kind");
    addRow(
        "a class not yet met", "84 01 '@' 84 93", Text, 4, "a reference to an object not yet met");
    addRow("no version", "84 01 '@' 84 84 84 08 'NSString' 86", Text, 15,
        "byte 0x86 where an integer was expected");
    QByteArray chain = "84 01 '@' 84 84 84 08 'NSString' 01"_ba;
    for (int i = 0; i < 16; ++i)
        chain += "84 84 01 'A' 00";
    addRow("seventeen classes", chain + "85", Text, 16 + 15 * 5, "too many superclasses");
}

void addReferenceRows()
{
    addRow(
        "an object not yet met", "84 01 '@' 92", Text, 3, "a reference to an object not yet met");
    addRow("an object before the first", TextBegun + "00 86 92 81 91 FF", TextTwice, 23,
        "a reference to an object not yet met");
    addRow("a class for a text", TextBegun + "00 86 92 93", TextTwice, 23,
        "a reference to an object of the wrong kind");
    addRow("a text for a record", TextBegun + "00 86 92 92", TextThenRecord, 23,
        "a reference to an object of the wrong kind");
    addRow("a record for a dictionary", RecordBegun + "92 85 86 92 92", RecordThenTexts, 23,
        "a reference to an object of the wrong kind");
    addRow("a record for one of another class", RecordBegun + "92 85 86 92 92", GroupThenColumn, 4,
        "class \"GroupEntry\" where \"ColumnEntry\" was expected");
    addRow("a record inside itself", RecordBegun + "92 92 86", Nested, 20,
        "a reference to an object that is still being read");
    addRow(
        "an end for an object", "84 01 '@' 86", Text, 3, "byte 0x86 where an integer was expected");
}

void addObjectRows()
{
    addRow("a text with more", TextBegun + "01 'a' 94 00 86", Text, 22,
        "more where the end of an object was expected");
    addRow("a text without characters", "84 01 '@' 84 84 84 08 'NSString' 01 85 86", Text, 17,
        "byte 0x86 where an integer was expected");
    addRow("a record with more", RecordBegun + "92 85 92 85 86", Record, 21,
        "more where the end of an object was expected");
    addRow("a record with less", RecordBegun + "86", Record, 19,
        "byte 0x86 where an integer was expected");
    addRow("a record with another group", RecordBegun + "84 01 '+' 00 86", Record, 19,
        "type \"+\" where \"@\" was expected");
    addRow("a record of a class without a name", "84 01 '@' 84 84 84 00 00 85 92 85 86", Record, 4,
        "class \"\" where \"GroupEntry\" was expected");
    addRow("a record of another class", "84 01 '@' 84 84 84 0B 'ColumnEntry' 00 85 92 85 86",
        Record, 4, "class \"ColumnEntry\" where \"GroupEntry\" was expected");
}

void addCountRows()
{
    addRow("a negative count", "84 01 'i' FF", Count, 0, "a negative count");
    addRow(
        "a negative count of four bytes", "84 01 'I' 82 FF FF FF FF", Count, 0, "a negative count");
    addRow("a count of bytes beyond the end", "84 01 'i' 02 00", Count, 0,
        "a count of 2 with 1 bytes left");
    addRow("a count beyond the end", "84 01 'i' 02 00 00 00 00 00 00 00", CountOfFours, 0,
        "a count of 2 with 7 bytes left");
    for (const char* const type : {"+", "@", "f", "d", "c", "B", "*", "ii"}) {
        const QByteArray name = QByteArray("a count of the type ") + type;
        const QByteArray problem = QByteArray("type \"") + type + "\" where a count was expected";
        addRow(name.constData(),
            QByteArray("84 0") + (type[1] != 0 ? "2 '" : "1 '") + type + "' 00", Count, 0,
            problem.constData());
    }
    addRow("more entries than can be",
        "84 01 '@' 84 84 84 0C 'NSDictionary' 00 85 84 01 'i' 02"
        "92 85 92 85 86",
        Texts, 21, "a count of 2 with 5 bytes left");
    addRow("fewer entries than there are",
        "84 01 '@' 84 84 84 0C 'NSDictionary' 00 85 84 01 'i' 00"
        "92 85 92 85 86",
        Texts, 25, "more where the end of an object was expected");
}

void addDataRows()
{
    addRow("another length in the type", DataBegun + "04 84 04 '[5c]' 'abcd' 86", Data, 19,
        "type \"[5c]\" for 4 bytes");
    for (const char* const type : {"[-4c]", "[ 4c]", "[4C]", "[4]", "[c]", "4c", "c]", "[4c", "+",
             "[18446744073709551620c]"}) {
        const QByteArray name = QByteArray("bytes of the type ") + type;
        const QByteArray length = QByteArray(1, char(qstrlen(type))).toHex();
        const QByteArray problem = QByteArray("type \"") + type + "\" for 4 bytes";
        addRow(name.constData(), DataBegun + "04 84" + length + '\'' + type + "' 'abcd' 86", Data,
            19, problem.constData());
    }
    addRow("a nil type of bytes", DataBegun + "00 85 86", Data, 19, "a nil type");
    addRow("fewer bytes", DataBegun + "04 84 01 '+'", Data, 15, "a count of 4 with 3 bytes left");
    addRow("too few bytes at the end", DataBegun + "05 84 04 '[5c]' 'ab'", Data, 25,
        "a value of 5 bytes with 2 bytes left");
    addRow("data with more", DataBegun + "00 84 04 '[0c]' 'a' 86", Data, 25,
        "more where the end of an object was expected");
}

void addNumberRows()
{
    addRow("nil", "84 01 '@' 85", Number, 0, "nil where a number was expected");
    addRow("no type", NumberBegun + "84 01 '*' 85 92 00 86", Number, 20, "a nil number type");
    addRow(
        "a nil C string", NumberBegun + "84 01 '*' 84 85 92 00 86", Number, 21, "a nil C string");
    addRow("a class for a C string", NumberBegun + "84 01 '*' 93", Number, 20,
        "a reference to an object of the wrong kind");
    addRow("an own number for a C string", NumberBegun + "84 01 '*' 92", Number, 20,
        "a reference to an object that is still being read");
    addRow("another type than said", NumberBegun + "84 01 '*' 84 84 01 'i' 84 01 'q' 00 86", Number,
        24, "type \"q\" for a number of type \"i\"");
    addRow("a nil number", NumberBegun + "84 01 '*' 84 84 01 'i' 85 86", Number, 24, "a nil type");
    const auto ofType = [](const char* type) {
        return NumberBegun + "84 01 '*' 84 84 01 '" + type + "' 95 ";
    };
    addRow(
        "an unknown type", ofType("#") + "00 86", Number, 25, "a number of the unknown type \"#\"");
    addRow("an object for a number", ofType("@") + "85 86", Number, 25,
        "a number of the unknown type \"@\"");
    addRow("nil for an integer", ofType("i") + "85 86", Number, 25,
        "byte 0x85 where an integer was expected");
    addRow("a real for an integer", ofType("i") + "83 00 00 28 42 86", Number, 25,
        "byte 0x83 where an integer was expected");
    addRow("a negative unsigned number", ofType("I") + "FF 86", Number, 25,
        "a negative number of an unsigned type");
    addRow("a fraction", ofType("d") + "83 00 00 00 00 00 00 F8 3F 86", Number, 25,
        "a real that is no whole number");
    addRow("infinity", ofType("f") + "83 00 00 80 7F 86", Number, 25,
        "a real that is no whole number");
    addRow("not a number", ofType("f") + "83 00 00 C0 7F 86", Number, 25,
        "a real that is no whole number");
    addRow("too large a real", ofType("d") + "83 00 00 00 00 00 00 E0 43 86", Number, 25,
        "a real that is no whole number");
    addRow("a number with more", ofType("i") + "00 95 00 86", Number, 26,
        "more where the end of an object was expected");
}

} // namespace

class UnarchiverDamageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refuses_data();
    void refuses();
    void refusesEveryTruncation_data();
    void refusesEveryTruncation();
    void survivesBitsTurnedOver_data();
    void survivesBitsTurnedOver();
    void limitsWhatIsReadAgain();
    void saysWhatAndWhere();
};

void UnarchiverDamageTest::refuses_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<Reading>("read");
    QTest::addColumn<QString>("message");
    addHeaderRows();
    addTypeRows();
    addIntegerRows();
    addBlockRows();
    addClassRows();
    addReferenceRows();
    addObjectRows();
    addCountRows();
    addDataRows();
    addNumberRows();
}

void UnarchiverDamageTest::refuses()
{
    QFETCH(QByteArray, stream);
    QFETCH(Reading, read);
    QFETCH(QString, message);
    QCOMPARE(errorOf(stream, read), message);
}

void UnarchiverDamageTest::refusesEveryTruncation_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<Reading>("read");
    QTest::newRow("one string") << samples::oneString() << Text;
    QTest::newRow("the beginning of a file") << samples::beginningOfFile() << BeginningOfFile;
    QTest::newRow("a whole stream") << samples::wholeStream() << WholeStream;
}

void UnarchiverDamageTest::refusesEveryTruncation()
{
    QFETCH(QByteArray, stream);
    QFETCH(Reading, read);
    for (qsizetype size = 0; size < stream.size(); ++size) {
        // A copy of its own, so that a tool that watches memory sees a byte read beyond it.
        const QByteArray cut(stream.constData(), size);
        QVERIFY2(!errorOf(cut, read).isEmpty(), qPrintable(u"cut to %1 bytes"_s.arg(size)));
    }
}

void UnarchiverDamageTest::survivesBitsTurnedOver_data()
{
    refusesEveryTruncation_data();
}

void UnarchiverDamageTest::survivesBitsTurnedOver()
{
    QFETCH(QByteArray, stream);
    QFETCH(Reading, read);
    int errors = 0;
    for (qsizetype bit = 0; bit < stream.size() * 8; ++bit) {
        QByteArray damaged = stream;
        damaged[bit / 8] = char(damaged[bit / 8] ^ (1 << (bit % 8)));
        const QString error = errorOf(damaged, read);
        QVERIFY(!error.startsWith("an error outside"_L1));
        errors += error.isEmpty() ? 0 : 1;
    }
    // Most bits say what follows; those of texts, blocks and versions only change a value.
    QVERIFY(errors > stream.size() * 8 / 3);
}

void UnarchiverDamageTest::limitsWhatIsReadAgain()
{
    constexpr int blockSize = 100000;
    const auto readOne = [](Unarchiver& unarchiver) {
        unarchiver.decodeObject("GroupEntry"_L1, [&] { unarchiver.decodeBytes(); });
    };
    Archiver archiver;
    archiver.beginObject("GroupEntry"_L1);
    archiver.encodeBytes(QByteArray(blockSize, 'x'));
    archiver.endObject();
    const QByteArray bytes = archiver.takeData() + samples::fromHex("92 92 92 92");
    Unarchiver unarchiver(bytes);
    readOne(unarchiver);
    readOne(unarchiver);
    try {
        readOne(unarchiver);
        QFAIL("a third reading of the same bytes");
    } catch (const ArchiveError& error) {
        QCOMPARE(error.offset(), bytes.size() - 2);
        QCOMPARE(error.problem(), u"too many references to large objects"_s);
    }
}

void UnarchiverDamageTest::saysWhatAndWhere()
{
    const ArchiveError error(123, u"a nil class name"_s);
    QCOMPARE(error.offset(), 123);
    QCOMPARE(error.problem(), u"a nil class name"_s);
    QCOMPARE(error.message(), u"a nil class name at offset 123"_s);
    QCOMPARE(error.what(), "a nil class name at offset 123");
}

QTEST_APPLESS_MAIN(UnarchiverDamageTest)
#include "UnarchiverDamageTest.moc"
