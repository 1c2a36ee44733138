#include "model/BookEntry.h"
#include "platform/ArchiveError.h"
#include "platform/Archiver.h"
#include "platform/Unarchiver.h"
#include "tests/support/BookSamples.h"

#include <QtTest>

#include <bit>
#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

constexpr qint32 currentVersion = 4;

QByteArray archived(const std::function<void(Archiver&)>& write)
{
    Archiver archiver;
    write(archiver);
    return archiver.takeData();
}

QByteArray archived(const BookEntry& book)
{
    return archived([&book](Archiver& archiver) { book.encodeWithCoder(archiver); });
}

BookEntry unarchived(const QByteArray& bytes, qint32 version)
{
    Unarchiver unarchiver(bytes);
    return BookEntry::initWithCoder(unarchiver, version);
}

// The record, item by item, as files of each version hold it.

void writeFirstItems(Archiver& archiver, const BookEntry& book)
{
    for (const QString& text : {book.getKey(), book.getTitle(), book.getAuthor(), book.getNotes()})
        archiver.encodeString(text);
    archiver.encodeDoubleBlock(book.getPricePaid());
    archiver.encodeString(book.getPricePaidFrom());
    archiver.encodeString(book.getISBN());
    archiver.encodeInt32Block(book.getPages());
    archiver.encodeDoubleBlock(book.getEstValue());
    archiver.encodeString(book.getLocation());
    archiver.encodeString(book.getLentTo());
    for (const qint32 month : {book.getMonthPublished(), book.getMonthEstValue(),
             book.getMonthLent(), book.getMonthPurchased(), book.getMonthFirstRead(),
             book.getMonthLastRead(), book.getMonthCopyright()})
        archiver.encodeInt32Block(month);
    for (const QString& year : {book.getYearPublished(), book.getYearEstValue(), book.getYearLent(),
             book.getYearPurchased(), book.getYearFirstRead(), book.getYearLastRead(),
             book.getYearCopyright()})
        archiver.encodeString(year);
    for (const bool flag : {book.own(), book.isSigned(), book.isFirstEdition(), book.haveRead()})
        archiver.encodeByteBlock(flag ? 1 : 0);
    archiver.encodeInt32Block(book.getType());
    archiver.encodeInt32Block(book.getRating());
}

void writeCustomItems(Archiver& archiver, const BookEntry& book)
{
    for (const QString& text : {book.getCustomField1(), book.getCustomField2(),
             book.getCustomField3(), book.getCustomField4(), book.getCustomField5(),
             book.getCustomField6(), book.getCustomField7()})
        archiver.encodeString(text);
    for (const QString& year :
        {book.getCustomYear1(), book.getCustomYear2(), book.getCustomYear3()})
        archiver.encodeString(year);
    for (const qint32 month :
        {book.getCustomMonth1(), book.getCustomMonth2(), book.getCustomMonth3()})
        archiver.encodeInt32Block(month);
    for (const bool flag : {book.isCustomSwitch1(), book.isCustomSwitch2(), book.isCustomSwitch3(),
             book.isCustomSwitch4(), book.isCustomSwitch5(), book.isCustomSwitch6(),
             book.isCustomSwitch7(), book.isCustomSwitch8()})
        archiver.encodeByteBlock(flag ? 1 : 0);
}

void writeItems(Archiver& archiver, const BookEntry& book, qint32 version)
{
    writeFirstItems(archiver, book);
    if (version >= 1)
        archiver.encodeString(book.getPublisher());
    if (version >= 2)
        writeCustomItems(archiver, book);
    for (int slot = 1; version >= 3 && slot <= BookEntry::ImageCount; ++slot)
        archiver.encodeData(book.getImageData(slot));
    archiver.encodeCount(book.getSelectedGroups().size());
    for (const GroupMembership::Entry& group : book.getSelectedGroups()) {
        archiver.encodeString(group.key);
        archiver.encodeString(group.value);
    }
}

QByteArray archivedAs(const BookEntry& book, qint32 version)
{
    return archived([&](Archiver& archiver) { writeItems(archiver, book, version); });
}

BookEntry keyedFullBook()
{
    BookEntry book = samples::fullBook();
    book.setKey(12);
    return book;
}

/// What a file of that version keeps of a book.
BookEntry asKeptBy(BookEntry book, qint32 version)
{
    for (const BookField& field : bookFields()) {
        const bool isPublisher = field.id == BookField::Id::Publisher;
        const bool isCustom = field.columnKey >= 42 && field.columnKey <= 76;
        if ((!isPublisher || version >= 1) && (!isCustom || version >= 2))
            continue;
        if (field.kind == FieldKind::Flag)
            field.setFlag(book, false);
        else if (field.kind == FieldKind::Month)
            field.setInteger(book, 0);
        else
            field.setText(book, u""_s);
    }
    for (int slot = 1; version < 3 && slot <= BookEntry::ImageCount; ++slot)
        book.setImageData(slot, {});
    return book;
}

/// A whole record of nothing but nils and zeroes, with pages 300 and price 1.5.
QByteArray goldenRecord()
{
    const auto hex = [](const char* digits) {
        return QByteArray::fromHex(digits);
    };
    const QByteArray nil = hex("92 85");
    const QByteArray zero = hex("93 04 00 00 00 00");
    const QByteArray off = hex("93 01 00");
    return hex("04 0B") + "streamtyped" + hex("81 E8 03") + hex("84 01 40 85") // key
        + nil.repeated(3) // title, author, notes
        + hex("84 01 2B 08 3F F8 00 00 00 00 00 00") // price paid
        + nil.repeated(2) // bought at, ISBN
        + hex("93 04 00 00 01 2C") // pages
        + hex("93 08 00 00 00 00 00 00 00 00") // value
        + nil.repeated(2) // location, lent to
        + zero.repeated(7) + nil.repeated(7) // months, years
        + off.repeated(4) // own, signed, first edition, read
        + zero.repeated(2) // type, rating
        + nil // publisher
        + nil.repeated(7) + nil.repeated(3) + zero.repeated(3) + off.repeated(8) // custom fields
        + nil.repeated(5) // pictures
        + hex("84 01 69 00"); // groups
}

} // namespace

class BookArchiveTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesTheGoldenBytes();
    void writesTheItemsInOrder();
    void readsEveryVersion_data();
    void readsEveryVersion();
    void leavesNothingUnread_data();
    void leavesNothingUnread();
    void keepsAnAbsentText_data();
    void keepsAnAbsentText();
    void readsEmptyTextsForItemsOfLaterVersions_data();
    void readsEmptyTextsForItemsOfLaterVersions();
    void keepsPicturesByteByByte();
    void keepsNumbers_data();
    void keepsNumbers();
    void keepsTextsUntrimmed();
    void dropsGroupingMarksFromKeys();
    void keepsAMembershipValueOfItsOwn();
    void takesAnyByteButZeroAsSet();
    void ignoresWhatABlockHoldsTooMuch();
    void refusesBlocksThatAreTooShort();
    void refusesEveryTruncation();
};

void BookArchiveTest::writesTheGoldenBytes()
{
    BookEntry book;
    book.setPages(300);
    book.setPricePaid(1.5);
    QCOMPARE(archived(book).toHex(' '), goldenRecord().toHex(' '));
}

void BookArchiveTest::writesTheItemsInOrder()
{
    const BookEntry book = keyedFullBook();
    QCOMPARE(archived(book).toHex(), archivedAs(book, currentVersion).toHex());
}

void BookArchiveTest::readsEveryVersion_data()
{
    QTest::addColumn<qint32>("version");
    for (const qint32 version : {-1, 0, 1, 2, 3, 4})
        QTest::newRow(QByteArray::number(version)) << version;
    QTest::newRow("far below 0") << std::numeric_limits<qint32>::min();
}

void BookArchiveTest::readsEveryVersion()
{
    QFETCH(const qint32, version);
    const BookEntry original = keyedFullBook();
    const BookEntry book = unarchived(archivedAs(original, version), version);
    QCOMPARE(book.getKey(), u"12"_s);
    QVERIFY(equalContents(book, asKeptBy(original, version)));
    QVERIFY(book.inGroup(2));
    QVERIFY(book.inGroup(10));
    QCOMPARE(book.hasImages(), version >= 3);
    QCOMPARE(book.getPublisher().isEmpty(), version < 1);
    QCOMPARE(book.getCustomField7().isEmpty(), version < 2);
}

void BookArchiveTest::leavesNothingUnread_data()
{
    readsEveryVersion_data();
}

void BookArchiveTest::leavesNothingUnread()
{
    QFETCH(const qint32, version);
    const QByteArray bytes = archivedAs(keyedFullBook(), version);
    Unarchiver unarchiver(bytes);
    BookEntry::initWithCoder(unarchiver, version);
    QCOMPARE(unarchiver.offset(), qint64(bytes.size()));
}

void BookArchiveTest::keepsAnAbsentText_data()
{
    QTest::addColumn<int>("id");
    for (const BookField& field : bookFields()) {
        if (field.kind == FieldKind::Text || field.kind == FieldKind::Year)
            QTest::newRow(field.name.data()) << int(field.id);
    }
}

void BookArchiveTest::keepsAnAbsentText()
{
    QFETCH(const int, id);
    const BookField& field = bookField(BookField::Id(id));
    BookEntry absent = keyedFullBook();
    field.storeText(absent, QString());
    const BookEntry readAbsent = unarchived(archived(absent), currentVersion);
    QVERIFY(field.storedText(readAbsent).isNull());
    QVERIFY(!field.text(readAbsent).isNull());
    QVERIFY(equalContents(readAbsent, absent));

    BookEntry empty = keyedFullBook();
    field.storeText(empty, u""_s);
    const BookEntry readEmpty = unarchived(archived(empty), currentVersion);
    QVERIFY(!field.storedText(readEmpty).isNull());
    QVERIFY(equalContents(readEmpty, empty));
}

void BookArchiveTest::readsEmptyTextsForItemsOfLaterVersions_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<qint32>("version");
    QTest::newRow("publisher") << int(BookField::Id::Publisher) << 0;
    QTest::newRow("custom field") << int(BookField::Id::CustomField7) << 1;
    QTest::newRow("custom year") << int(BookField::Id::CustomYear3) << 1;
}

void BookArchiveTest::readsEmptyTextsForItemsOfLaterVersions()
{
    QFETCH(const int, id);
    QFETCH(const qint32, version);
    const BookEntry book = unarchived(archivedAs(keyedFullBook(), version), version);
    const QString text = bookField(BookField::Id(id)).storedText(book);
    QVERIFY(text.isEmpty());
    QVERIFY(!text.isNull());
}

void BookArchiveTest::keepsPicturesByteByByte()
{
    BookEntry book;
    book.setImageData(1, samples::pictureBytes('1'));
    book.setImageData(2, QByteArray(""));
    book.setImageData(4, QByteArray(40'000, '\x86'));
    book.setImageData(5, samples::pictureBytes('1'));
    const BookEntry read = unarchived(archived(book), currentVersion);
    QCOMPARE(read.getImageData(1), samples::pictureBytes('1'));
    QVERIFY(read.getImageData(2).isEmpty() && !read.getImageData(2).isNull());
    QVERIFY(read.getImageData(3).isNull());
    QCOMPARE(read.getImageData(4), QByteArray(40'000, '\x86'));
    QCOMPARE(read.getImageData(5), samples::pictureBytes('1'));
}

void BookArchiveTest::keepsNumbers_data()
{
    QTest::addColumn<qint32>("integer");
    QTest::addColumn<double>("real");
    using Integer = std::numeric_limits<qint32>;
    using Real = std::numeric_limits<double>;
    QTest::newRow("zero") << 0 << 0.0;
    QTest::newRow("minus zero") << -1 << -0.0;
    QTest::newRow("largest") << Integer::max() << Real::max();
    QTest::newRow("smallest") << Integer::min() << Real::lowest();
    QTest::newRow("tiny") << 128 << Real::denorm_min();
    QTest::newRow("a third") << 32768 << 1.0 / 3;
    QTest::newRow("infinite") << -111 << Real::infinity();
    QTest::newRow("not a number") << 1 << Real::quiet_NaN();
}

void BookArchiveTest::keepsNumbers()
{
    QFETCH(const qint32, integer);
    QFETCH(const double, real);
    BookEntry book;
    book.setPages(integer);
    book.setRating(integer);
    book.setMonthLent(integer);
    book.setPricePaid(real);
    book.setEstValue(real);
    const BookEntry read = unarchived(archived(book), currentVersion);
    QCOMPARE(read.getPages(), integer);
    QCOMPARE(std::bit_cast<quint64>(read.getPricePaid()), std::bit_cast<quint64>(real));
    QVERIFY(equalContents(read, book));
}

void BookArchiveTest::keepsTextsUntrimmed()
{
    BookEntry book;
    bookField(BookField::Id::Title).storeText(book, u" A Tale\n"_s);
    book.setCustomField1(QString::fromUtf8("\xF0\x9F\x93\x9A é\0x", 9));
    const BookEntry read = unarchived(archived(book), currentVersion);
    QCOMPARE(read.getTitle(), u" A Tale\n"_s);
    QVERIFY(equalContents(read, book));
}

void BookArchiveTest::dropsGroupingMarksFromKeys()
{
    BookEntry book;
    book.setKeyText(u"1,234"_s);
    book.addToGroup(u"1\u202F000"_s);
    book.addToGroup(u"1.001"_s);
    const BookEntry read = unarchived(archived(book), currentVersion);
    QCOMPARE(read.getKey(), u"1234"_s);
    QVERIFY(read.inGroup(1000));
    QVERIFY(read.inGroup(1001));
    QCOMPARE(read.getSelectedGroups().begin()->key, u"1000"_s);
    QCOMPARE(read.getSelectedGroups().begin()->value, u"1000"_s);
    QVERIFY(unarchived(archived(BookEntry()), currentVersion).getKey().isNull());
}

void BookArchiveTest::keepsAMembershipValueOfItsOwn()
{
    BookEntry book;
    GroupMembership groups;
    groups.insert(u"3"_s, u"something"_s);
    book.setSelectedGroups(groups);
    const BookEntry read = unarchived(archived(book), currentVersion);
    QVERIFY(read.getSelectedGroups() == groups);
}

void BookArchiveTest::takesAnyByteButZeroAsSet()
{
    QByteArray bytes = goldenRecord();
    const qsizetype own = bytes.indexOf(QByteArray::fromHex("93 01 00"));
    bytes[own + 2] = '\x85';
    const BookEntry book = unarchived(bytes, currentVersion);
    QVERIFY(book.own());
    QVERIFY(!book.isSigned());
}

void BookArchiveTest::ignoresWhatABlockHoldsTooMuch()
{
    QByteArray bytes = goldenRecord();
    bytes.replace(QByteArray::fromHex("93 04 00 00 01 2C"),
        QByteArray::fromHex("93 07 00 00 01 2C 85 86 84"));
    bytes.replace(QByteArray::fromHex("08 3F F8 00 00 00 00 00 00"),
        QByteArray::fromHex("09 3F F8 00 00 00 00 00 00 FF"));
    const BookEntry book = unarchived(bytes, currentVersion);
    QCOMPARE(book.getPages(), 300);
    QCOMPARE(book.getPricePaid(), 1.5);
}

void BookArchiveTest::refusesBlocksThatAreTooShort()
{
    QByteArray bytes = goldenRecord();
    bytes.replace(QByteArray::fromHex("93 04 00 00 01 2C"), QByteArray::fromHex("93 03 00 01 2C"));
    QVERIFY_THROWS_EXCEPTION(ArchiveError, unarchived(bytes, currentVersion));
}

void BookArchiveTest::refusesEveryTruncation()
{
    const QByteArray whole = archived(keyedFullBook());
    for (qsizetype size = 0; size < whole.size(); ++size)
        QVERIFY_THROWS_EXCEPTION(ArchiveError, unarchived(whole.first(size), currentVersion));
}

QTEST_GUILESS_MAIN(BookArchiveTest)
#include "BookArchiveTest.moc"
