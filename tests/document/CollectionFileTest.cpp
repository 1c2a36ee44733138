#include "document/CollectionFile.h"

#include "platform/ArchiveError.h"
#include "platform/Archiver.h"
#include "tests/support/BookSamples.h"
#include "tests/support/BytesDocument.h"
#include "tests/support/ContentsText.h"

#include <QTemporaryDir>
#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// The books, groups and columns of a file by their dictionary keys, written item by item.
struct Items {
    qint32 version = 4;
    qint32 lastGroupKey = 0;
    QList<std::pair<QString, QString>> groups; // key and name
    qint32 lastBookNumber = 0;
    QList<std::pair<QString, QString>> books; // key and title
    QList<std::pair<QString, qint32>> columns; // key and width
};

void writeRecord(Archiver& archiver, const QString& key, QLatin1StringView className,
    const std::function<void()>& write)
{
    archiver.encodeString(key);
    archiver.beginObject(className);
    write();
    archiver.endObject();
}

void writeGroups(Archiver& archiver, const Items& items)
{
    archiver.beginDictionary(items.groups.size());
    for (const auto& [key, name] : items.groups) {
        GroupEntry group;
        group.setKeyText(u"record's own"_s);
        group.setGroupName(name);
        writeRecord(archiver, key, "GroupEntry"_L1, [&] { group.encodeWithCoder(archiver); });
    }
    archiver.endObject();
}

void writeBooks(Archiver& archiver, const Items& items)
{
    archiver.beginDictionary(items.books.size());
    for (const auto& [key, title] : items.books) {
        const auto book = samples::makeBook(title);
        book->setKeyText(u"record's own"_s);
        writeRecord(archiver, key, "BookEntry"_L1, [&] { book->encodeWithCoder(archiver); });
    }
    archiver.endObject();
}

void writeColumns(Archiver& archiver, const Items& items)
{
    archiver.beginDictionary(items.columns.size());
    for (const auto& [key, width] : items.columns) {
        ColumnEntry column;
        column.setWidth(width);
        writeRecord(archiver, key, "ColumnEntry"_L1, [&] { column.encodeWithCoder(archiver); });
    }
    archiver.endObject();
}

/// Books have the current layout whatever the version: use 3 or 4 with any.
QByteArray written(const Items& items)
{
    Archiver archiver;
    archiver.encodeInt32Block(items.version);
    archiver.encodeInt32Block(items.lastGroupKey);
    writeGroups(archiver, items);
    archiver.encodeNil(); // labels
    archiver.encodeInt32Block(items.lastBookNumber);
    writeBooks(archiver, items);
    archiver.encodeFloatsBlock({});
    archiver.encodeInt32Block(0);
    writeColumns(archiver, items);
    for (int frame = 0; frame < 6; ++frame)
        archiver.encodeFloatsBlock({});
    return archiver.takeData();
}

/// A file without labels, whose three other dictionaries are all written by `write`.
QByteArray withDictionaries(const std::function<void(Archiver&)>& write)
{
    Archiver archiver;
    archiver.encodeInt32Block(4);
    archiver.encodeInt32Block(3);
    write(archiver);
    archiver.encodeNil();
    archiver.encodeInt32Block(2);
    write(archiver);
    archiver.encodeFloatsBlock({});
    archiver.encodeInt32Block(0);
    write(archiver);
    for (int frame = 0; frame < 6; ++frame)
        archiver.encodeFloatsBlock({});
    return archiver.takeData();
}

QStringList titles(const CollectionContents& contents)
{
    QStringList titles;
    for (const auto& [key, book] : contents.books)
        titles.append(key + u' ' + book->getKey() + u' ' + book->getTitle());
    return titles;
}

QStringList groupNames(const CollectionContents& contents)
{
    QStringList names;
    for (const auto& [key, group] : contents.groups.byKey())
        names.append(key + u' ' + group.getKey() + u' ' + group.getGroupName());
    return names;
}

/// A document in which everything differs from a new one.
void fill(BytesDocument& document)
{
    for (int number = 0; number < 11; ++number)
        document.addBook(std::make_unique<BookEntry>(samples::fullBook()));
    document.deleteBooks({u"2"_s, u"11"_s});
    document.getBookEntry(u"3")->setISBN(QString());
    document.getBookEntry(u"4")->setTitle(u"  "_s);
    GroupEntry group;
    group.setKey(document.getNextGroupKey());
    group.setGroupName(u"Poésie"_s);
    document.getGroups().insert(group);
    document.getNextGroupKey();
    document.getGroups().remove(u"1"_s);
    document.setCustomFieldLabel(u"Condition"_s, 42);
    document.setSortField(31);
    document.getListColumns().at(u"40"_s).setPosition(0);
    document.getListColumns().at(u"40"_s).setWidth(180);
    document.getListColumns().at(u"2"_s).setPosition(ColumnEntry::hidden);
    document.setCustomizeListControllerWindowPosition({1.5, -2.25, 300, 400});
    document.setGroupListControllerWindowPosition({-5, 6, 70, 80});
}

} // namespace

class CollectionFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void beginsWithVersionAndGroups();
    void writesTheItemsInOrder();
    void isReadAsWritten();
    void givesTheSameBytesForTheSameContents();
    void writesDictionariesByNumber();
    void narrowsFramesToSinglePrecision();
    void removesMembershipsOfDeletedGroupsFromOldFiles_data();
    void removesMembershipsOfDeletedGroupsFromOldFiles();
    void takesTheDictionaryKeyForTheRecord();
    void keepsBooksOfTheSameKey_data();
    void keepsBooksOfTheSameKey();
    void keepsGroupsOfTheSameKey_data();
    void keepsGroupsOfTheSameKey();
    void raisesCounters_data();
    void raisesCounters();
    void raisesNoBookNumberForAKeyThatIsNone();
    void keepsEntriesWhenNoNumberIsLeft();
    void keepsColumnsOfUnknownKeys();
    void readsAbsentDictionariesAsEmpty();
    void dropsEntriesWithoutARecord();
    void ignoresWhatFollows();
    void refusesNewerVersions_data();
    void refusesNewerVersions();
    void reportsProgress();
    void canBeLeft();
    void tellsWhatIsNoCollection();
};

void CollectionFileTest::beginsWithVersionAndGroups()
{
    const QByteArray bytes = writeCollection(CollectionContents::makeNew());
    const auto hex = [](const char* digits) {
        return QByteArray::fromHex(digits);
    };
    QVERIFY(bytes.startsWith(hex("04 0B") + "streamtyped"
        + hex("81 E8 03 84 01 2B 04 00 00 00 04 92 04 00 00 00 02 84 01 40 84 84 84 13")
        + "NSMutableDictionary" + hex("00 84 84 0C") + "NSDictionary" + hex("00 84 84 08")
        + "NSObject" + hex("00 85 84 01 69 02 93 84 84 84 08") + "NSString"
        + hex("01 95 92 01 31 86")));
}

void CollectionFileTest::writesTheItemsInOrder()
{
    CollectionContents contents;
    contents.lastGroupKey = 12;
    contents.labels[42] = u"Condition"_s;
    contents.lastBookIdn = 34;
    contents.sortField = 29;
    contents.windowFrame = {1, 2, 3, 4};
    contents.customizeListFrame = {5, 6, 7, 8};
    contents.groupManagerFrame = {9, 10, 11, 12};
    contents.imageSplitter = {QRectF(13, 14, 15, 16), QRectF(17, 18, 19, 20)};
    contents.listSplitter = {QRectF(21, 22, 23, 24), QRectF(25, 26, 27, 28)};
    Archiver expected;
    const auto emptyDictionary = [&expected] {
        expected.beginDictionary(0);
        expected.endObject();
    };
    expected.encodeInt32Block(4);
    expected.encodeInt32Block(12);
    emptyDictionary();
    expected.beginDictionary(1);
    expected.encodeNumber(42);
    expected.encodeString(u"Condition"_s);
    expected.endObject();
    expected.encodeInt32Block(34);
    emptyDictionary();
    expected.encodeFloatsBlock({1, 2, 3, 4});
    expected.encodeInt32Block(29);
    emptyDictionary();
    for (int first = 5; first <= 25; first += 4)
        expected.encodeFloatsBlock({first + 0.0, first + 1.0, first + 2.0, first + 3.0});
    QCOMPARE(writeCollection(contents).toHex(), expected.takeData().toHex());
}

void CollectionFileTest::isReadAsWritten()
{
    BytesDocument document;
    fill(document);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"library.books"_s);
    QVERIFY(!document.writeToFile(path));
    BookListDocument reopened;
    QVERIFY(!reopened.readFromFile(path));
    QCOMPARE(samples::linesOf(reopened), samples::linesOf(document));
    QCOMPARE(reopened.lastBookNumber(), 11);
    QCOMPARE(reopened.lastGroupKey(), 4);
    QCOMPARE(reopened.allKeys(),
        QStringList({u"1"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s}));
    for (const QString& key : reopened.allKeys())
        QVERIFY(equalContents(*reopened.getBookEntry(key), *document.getBookEntry(key)));
    QCOMPARE(reopened.getListColumns().at(u"2"_s).getPosition(), -2);
}

void CollectionFileTest::givesTheSameBytesForTheSameContents()
{
    BytesDocument first;
    fill(first);
    BytesDocument second;
    fill(second);
    const QByteArray bytes = first.save();
    QCOMPARE(second.save(), bytes);
    BytesDocument reopened;
    QVERIFY(!reopened.load(bytes));
    QCOMPARE(reopened.save(), bytes);
}

void CollectionFileTest::writesDictionariesByNumber()
{
    Items items{.groups = {{u"10"_s, u"group ten"_s}, {u"9"_s, u"group nine"_s}},
        .books = {{u"10"_s, u"book ten"_s}, {u"x"_s, u"book x"_s}, {u"9"_s, u"book nine"_s}},
        .columns = {}};
    const QByteArray bytes = writeCollection(readCollection(written(items)));
    QVERIFY(bytes.indexOf("group nine") < bytes.indexOf("group ten"));
    QVERIFY(bytes.indexOf("book nine") < bytes.indexOf("book ten"));
    QVERIFY(bytes.indexOf("book ten") < bytes.indexOf("book x"));
}

void CollectionFileTest::narrowsFramesToSinglePrecision()
{
    CollectionContents contents = CollectionContents::makeNew();
    contents.customizeListFrame = {100.3, -0.1, 1e10, 0.5};
    const CollectionContents read = readCollection(writeCollection(contents));
    QCOMPARE(samples::quoted(read.customizeListFrame),
        samples::quoted(QRectF(double(100.3F), double(-0.1F), double(1e10F), 0.5)));
    QVERIFY(read.customizeListFrame.x() > 100.3);
}

void CollectionFileTest::removesMembershipsOfDeletedGroupsFromOldFiles_data()
{
    QTest::addColumn<qint32>("version");
    QTest::addColumn<bool>("isKept");
    QTest::newRow("3") << 3 << false;
    QTest::newRow("4") << 4 << true;
}

void CollectionFileTest::removesMembershipsOfDeletedGroupsFromOldFiles()
{
    QFETCH(const qint32, version);
    QFETCH(const bool, isKept);
    CollectionContents contents = CollectionContents::makeNew();
    auto book = samples::makeBook(u"A"_s);
    book->addToGroup(u"2"_s);
    book->addToGroup(u"7"_s);
    contents.books.emplace(u"1"_s, std::move(book));
    QByteArray bytes = writeCollection(contents);
    bytes[bytes.indexOf(QByteArray::fromHex("04 00 00 00 04")) + 4] = static_cast<char>(version);
    const CollectionContents read = readCollection(bytes);
    QCOMPARE(read.fileVersion, version);
    QVERIFY(read.books.at(u"1"_s)->inGroup(2));
    QCOMPARE(read.books.at(u"1"_s)->inGroup(7), isKept);
}

void CollectionFileTest::takesTheDictionaryKeyForTheRecord()
{
    const CollectionContents read = readCollection(written(
        {.groups = {{u"2"_s, u"G"_s}}, .books = {{u"5"_s, u"B"_s}}, .columns = {{u"40"_s, 9}}}));
    QCOMPARE(titles(read), QStringList{u"5 5 B"_s});
    QCOMPARE(groupNames(read), QStringList{u"2 2 G"_s});
    QCOMPARE(read.columns.at(u"40"_s).getKey(), u"40"_s);
    QCOMPARE(read.columns.at(u"40"_s).getWidth(), 9);
}

void CollectionFileTest::keepsBooksOfTheSameKey_data()
{
    QTest::addColumn<qint32>("counter");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QStringList>("read");
    QTest::newRow("grouping marks") << 2000 << QStringList{u"1,000"_s, u"1000"_s}
                                    << QStringList{u"1000 1000 0"_s, u"2001 2001 1"_s};
    QTest::newRow("counter behind") << 0 << QStringList{u"1"_s, u"1"_s, u"2"_s}
                                    << QStringList{u"1 1 0"_s, u"2 2 2"_s, u"3 3 1"_s};
    QTest::newRow("absent and empty") << 4 << QStringList{QString(), u""_s, u"2"_s}
                                      << QStringList{u"2 2 2"_s, u"5 5 0"_s, u"6 6 1"_s};
    QTest::newRow("three of one key") << 1 << QStringList{u"1"_s, u"1"_s, u"1"_s}
                                      << QStringList{u"1 1 0"_s, u"2 2 1"_s, u"3 3 2"_s};
    QTest::newRow("no number") << 1 << QStringList{u"x"_s, u"x"_s}
                               << QStringList{u"2 2 1"_s, u"x x 0"_s};
}

void CollectionFileTest::keepsBooksOfTheSameKey()
{
    QFETCH(const qint32, counter);
    QFETCH(const QStringList, keys);
    QFETCH(const QStringList, read);
    Items items;
    items.lastBookNumber = counter;
    for (int index = 0; index < keys.size(); ++index)
        items.books.append({keys.at(index), QString::number(index)});
    QCOMPARE(titles(readCollection(written(items))), read);
}

void CollectionFileTest::keepsGroupsOfTheSameKey_data()
{
    QTest::addColumn<qint32>("counter");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QStringList>("read");
    QTest::newRow("grouping marks") << 2000 << QStringList{u"1,000"_s, u"1000"_s}
                                    << QStringList{u"1000 1000 0"_s, u"2001 2001 1"_s};
    QTest::newRow("counter behind") << 0 << QStringList{u"1"_s, u"1"_s, u"2"_s}
                                    << QStringList{u"1 1 0"_s, u"2 2 2"_s, u"3 3 1"_s};
    QTest::newRow("absent and empty") << 4 << QStringList{QString(), u""_s, u"2"_s}
                                      << QStringList{u"2 2 2"_s, u"5 5 0"_s, u"6 6 1"_s};
    QTest::newRow("no number") << 1 << QStringList{u"x"_s, u"x"_s}
                               << QStringList{u"2 2 0"_s, u"3 3 1"_s};
    QTest::newRow("the library's number and below")
        << 4 << QStringList{u"0"_s, u"-1"_s, u"4"_s}
        << QStringList{u"4 4 2"_s, u"5 5 0"_s, u"6 6 1"_s};
}

void CollectionFileTest::keepsGroupsOfTheSameKey()
{
    QFETCH(const qint32, counter);
    QFETCH(const QStringList, keys);
    QFETCH(const QStringList, read);
    Items items;
    items.lastGroupKey = counter;
    for (int index = 0; index < keys.size(); ++index)
        items.groups.append({keys.at(index), QString::number(index)});
    QCOMPARE(groupNames(readCollection(written(items))), read);
}

void CollectionFileTest::raisesCounters_data()
{
    QTest::addColumn<qint32>("stored");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<qint32>("raised");
    QTest::newRow("ahead") << 20 << QStringList{u"1"_s, u"10"_s} << 20;
    QTest::newRow("behind") << 5 << QStringList{u"1"_s, u"10"_s} << 10;
    QTest::newRow("negative") << -5 << QStringList{} << 0;
    QTest::newRow("behind a key with marks") << 5 << QStringList{u"1.000"_s} << 1000;
    QTest::newRow("last number") << 5 << QStringList{u"2147483647"_s}
                                 << std::numeric_limits<qint32>::max();
}

void CollectionFileTest::raisesCounters()
{
    QFETCH(const qint32, stored);
    QFETCH(const QStringList, keys);
    QFETCH(const qint32, raised);
    Items items;
    items.lastGroupKey = stored;
    items.lastBookNumber = stored;
    for (const QString& key : keys) {
        items.groups.append({key, u"G"_s});
        items.books.append({key, u"B"_s});
    }
    const CollectionContents read = readCollection(written(items));
    QCOMPARE(read.lastGroupKey, raised);
    QCOMPARE(read.lastBookIdn, raised);
}

void CollectionFileTest::raisesNoBookNumberForAKeyThatIsNone()
{
    Items items;
    items.lastBookNumber = 5;
    items.books = {{u"x"_s, u"A"_s}, {u"99999999999"_s, u"B"_s}};
    const CollectionContents read = readCollection(written(items));
    QCOMPARE(read.lastBookIdn, 5);
    QCOMPARE(titles(read), QStringList({u"99999999999 99999999999 B"_s, u"x x A"_s}));
}

void CollectionFileTest::keepsEntriesWhenNoNumberIsLeft()
{
    Items items;
    items.lastBookNumber = std::numeric_limits<qint32>::max();
    items.lastGroupKey = std::numeric_limits<qint32>::max();
    for (const QString& key : {u"1"_s, u"1"_s, u"3"_s, u"1"_s}) {
        items.books.append({key, u"B"_s});
        items.groups.append({key, u"G"_s});
    }
    const CollectionContents read = readCollection(written(items));
    QCOMPARE(titles(read), QStringList({u"1 1 B"_s, u"2 2 B"_s, u"3 3 B"_s, u"4 4 B"_s}));
    QCOMPARE(groupNames(read), QStringList({u"1 1 G"_s, u"2 2 G"_s, u"3 3 G"_s, u"4 4 G"_s}));
}

void CollectionFileTest::keepsColumnsOfUnknownKeys()
{
    const CollectionContents read =
        readCollection(written({.groups = {}, .books = {}, .columns = {{u"200"_s, 50}}}));
    QCOMPARE(read.columns.at(u"200"_s).getWidth(), 50);
    QCOMPARE(read.columns.at(u"200"_s).getFilterType(), FilterType::NotSet);
    const CollectionContents again = readCollection(writeCollection(read));
    QCOMPARE(again.columns.at(u"200"_s).getWidth(), 50);
    QCOMPARE(again.columns.at(u"200"_s).getKey(), u"200"_s);
}

void CollectionFileTest::readsAbsentDictionariesAsEmpty()
{
    const CollectionContents read =
        readCollection(withDictionaries([](Archiver& archiver) { archiver.encodeNil(); }));
    QVERIFY(read.groups.isEmpty() && read.labels.empty() && read.books.empty());
    QCOMPARE(read.lastGroupKey, 3);
    QCOMPARE(read.lastBookIdn, 2);
    QCOMPARE(read.columns.size(), std::size_t(24));
}

void CollectionFileTest::dropsEntriesWithoutARecord()
{
    const CollectionContents read = readCollection(withDictionaries([](Archiver& archiver) {
        archiver.beginDictionary(1);
        archiver.encodeString(u"100"_s);
        archiver.encodeNil();
        archiver.endObject();
    }));
    QVERIFY(read.groups.isEmpty() && read.books.empty());
    QCOMPARE(read.lastGroupKey, 3);
    QCOMPARE(read.lastBookIdn, 2);
    QCOMPARE(read.columns.size(), std::size_t(24));
}

void CollectionFileTest::ignoresWhatFollows()
{
    BytesDocument document;
    fill(document);
    BytesDocument reopened;
    QVERIFY(!reopened.load(document.save() + "and so on"));
    QCOMPARE(samples::linesOf(reopened), samples::linesOf(document));
}

void CollectionFileTest::refusesNewerVersions_data()
{
    QTest::addColumn<qint32>("version");
    QTest::newRow("5") << 5;
    QTest::newRow("largest") << std::numeric_limits<qint32>::max();
}

void CollectionFileTest::refusesNewerVersions()
{
    QFETCH(const qint32, version);
    Archiver archiver; // nothing but the version: the rest may look like anything
    archiver.encodeInt32Block(version);
    const QByteArray bytes = archiver.takeData();
    QVERIFY_THROWS_EXCEPTION(NewerVersionError, readCollection(bytes));
    BytesDocument document;
    const auto failure = document.load(bytes);
    QVERIFY(failure && failure->standsAlone);
    QCOMPARE(failure->reason, u"Tomely cannot open files from newer versions."_s);
    QVERIFY(!document.isLoadeFromFile());
}

void CollectionFileTest::reportsProgress()
{
    CollectionContents contents = CollectionContents::makeNew();
    for (qint32 number = 1; number <= 1200; ++number)
        contents.books.emplace(keyText(number), samples::makeBook(keyText(number)));
    QList<qint64> written;
    const QByteArray bytes = writeCollection(contents, [&written](qint64 done, qint64 total) {
        QCOMPARE(total, 1200);
        written.append(done);
    });
    QCOMPARE(written, QList<qint64>({500, 1000}));
    QList<qint64> read;
    readCollection(bytes, [&](qint64 done, qint64 total) {
        QCOMPARE(total, bytes.size());
        read.append(done);
    });
    QCOMPARE(read.size(), 2);
    QVERIFY(0 < read.at(0) && read.at(0) < read.at(1) && read.at(1) < bytes.size());
}

void CollectionFileTest::canBeLeft()
{
    BytesDocument document;
    for (int number = 0; number < 600; ++number)
        document.addBook(samples::makeBook(u"Book"_s));
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"library.books"_s);
    QVERIFY(!document.writeToFile(path));
    BookListDocument reopened;
    const QStringList before = samples::linesOf(reopened);
    int reports = 0;
    const auto failure = reopened.readFromFile(path, [&reports](qint64, qint64) {
        if (++reports == 2) // the first is of reading the bytes
            throw OperationCancelled();
    });
    QVERIFY(failure && failure->cancelled);
    QCOMPARE(reports, 2);
    QCOMPARE(samples::linesOf(reopened), before);
    QVERIFY(reopened.filePath().isEmpty() && !reopened.isLoadeFromFile());
}

void CollectionFileTest::tellsWhatIsNoCollection()
{
    BytesDocument document;
    for (const QByteArray& bytes : {QByteArray(), QByteArray("<?xml version=\"1.0\"?>"),
             QByteArray("\x04\x0Bstreamtype"), QByteArray("\x05\x0Bstreamtyped\x81\xE8\x03")}) {
        const auto failure = document.load(bytes);
        QVERIFY(failure);
        QCOMPARE(failure->reason, u"not a collection file"_s);
        QVERIFY(!failure->standsAlone && !failure->cancelled);
    }
}

QTEST_GUILESS_MAIN(CollectionFileTest)
#include "CollectionFileTest.moc"
