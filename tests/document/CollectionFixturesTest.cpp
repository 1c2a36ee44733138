// Opens the files of tests/fixtures, which make-fixtures there writes by itself, without the
// program's own archiver.

#include "model/BookField.h"
#include "tests/support/BytesDocument.h"
#include "tests/support/ContentsText.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QString fixturePath(const QString& name)
{
    return QStringLiteral(TOMELY_SOURCE_DIR "/tests/fixtures/") + name;
}

QByteArray fixture(const QString& name)
{
    QFile file(fixturePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray pictureBytes()
{
    QByteArray bytes("\xFF\xD8\xFF\xE0");
    for (int value = 0; value < 256; ++value)
        bytes.append(static_cast<char>(value));
    return bytes + "\xFF\xD9";
}

void setDates(BookEntry& book)
{
    book.setMonthPublished(1);
    book.setYearPublished(u"1991"_s);
    book.setMonthEstValue(2);
    book.setYearEstValue(u"1992"_s);
    book.setMonthLent(3);
    book.setYearLent(u"1993"_s);
    book.setMonthPurchased(4);
    book.setYearPurchased(u"1994"_s);
    book.setMonthFirstRead(5);
    book.setYearFirstRead(u"1995"_s);
    book.setMonthLastRead(6);
    book.setYearLastRead(u"1996"_s);
    book.setMonthCopyright(7);
    book.setYearCopyright(u"1997"_s);
}

void setCustomValues(BookEntry& book)
{
    book.setCustomField1(u"Custom text 1"_s);
    book.setCustomField2(u"Custom text 2"_s);
    book.setCustomField3(u"Custom text 3"_s);
    book.setCustomField4(u"Custom text 4"_s);
    book.setCustomField5(u"Custom text 5"_s);
    book.setCustomField6(u"Custom text 6"_s);
    book.setCustomField7(u"Custom text 7"_s);
    book.setCustomYear1(u"2011"_s);
    book.setCustomYear2(u"2012"_s);
    book.setCustomYear3(u"2013"_s);
    book.setCustomMonth1(9);
    book.setCustomMonth2(10);
    book.setCustomMonth3(11);
    book.setCustomSwitch3(true);
    book.setCustomSwitch6(true);
}

void setEmptyCustomTexts(BookEntry& book)
{
    for (const BookField& field : bookFields()) {
        const bool isText = field.kind == FieldKind::Text || field.kind == FieldKind::Year;
        if (isText && field.columnKey >= 42 && field.columnKey <= 60)
            field.setText(book, u""_s);
    }
}

/// What a file of that version says of book 3.
BookEntry fullBook(qint32 version)
{
    BookEntry book;
    book.setTitle(u"The Full Book"_s);
    book.setAuthor(u"Éva Ország"_s);
    book.setNotes(u"First line\nSecond line"_s);
    book.setPricePaid(12.5);
    book.setPricePaidFrom(u"Corner Shop"_s);
    book.setISBN(u"978-3-16-148410-0"_s);
    book.setPages(300);
    book.setEstValue(99.95);
    book.setLocation(u"Shelf 1"_s);
    book.setLentTo(u"Ann"_s);
    setDates(book);
    book.setOwn(true);
    book.setFirstEdition(true);
    book.setType(2);
    book.setRating(5);
    book.setPublisher(version >= 1 ? u"Corner Shop"_s : u""_s);
    if (version >= 2)
        setCustomValues(book);
    else
        setEmptyCustomTexts(book);
    if (version >= 3) {
        book.setImageData(1, pictureBytes());
        book.setImageData(3, QByteArray(""));
        book.setImageData(5, pictureBytes());
    }
    book.addToGroup(u"12"_s);
    book.addToGroup(u"2"_s);
    return book;
}

/// The same of book 7, which has nearly nothing, and a group that does not exist.
BookEntry sparseBook(qint32 version)
{
    BookEntry book;
    book.setTitle(u"Ann"_s);
    book.setPages(-1);
    if (version < 1)
        book.setPublisher(u""_s);
    if (version < 2)
        setEmptyCustomTexts(book);
    book.addToGroup(u"1"_s);
    if (version >= 4)
        book.addToGroup(u"99"_s);
    return book;
}

} // namespace

class CollectionFixturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findsTheFixtures();
    void readsTheBooks_data();
    void readsTheBooks();
    void readsGroupsAndCounters_data();
    void readsGroupsAndCounters();
    void readsLabels_data();
    void readsLabels();
    void readsColumnsAndSortField_data();
    void readsColumnsAndSortField();
    void readsFrames_data();
    void readsFrames();
    void readsBothByteOrdersAlike_data();
    void readsBothByteOrdersAlike();
    void savesWhatItReads_data();
    void savesWhatItReads();
    void dropsGroupingMarksEverywhere_data();
    void dropsGroupingMarksEverywhere();
    void takesARecordReferredToTwiceAsTwoBooks();
    void refusesALabelThatNoColumnCanHave();
    void refusesANewerVersion();

private:
    void addFiles();
};

void CollectionFixturesTest::addFiles()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<qint32>("version");
    for (const qint32 version : {-1, 0, 1, 2, 3, 4}) {
        for (const QString& order : {u"little"_s, u"big"_s}) {
            for (const QString& style : {u"references"_s, u"repetition"_s}) {
                const QString name = u"version%1-%2-%3.books"_s.arg(version).arg(order, style);
                QTest::newRow(qPrintable(name)) << name << version;
            }
        }
    }
    for (const QString& name : {u"mutable-classes.books"_s, u"mutable-classes-big.books"_s})
        QTest::newRow(qPrintable(name)) << name << 4;
}

void CollectionFixturesTest::findsTheFixtures()
{
    const QDir folder(fixturePath({}));
    QCOMPARE(folder.entryList({u"*.books"_s}, QDir::Files).size(), 31);
}

void CollectionFixturesTest::readsTheBooks_data()
{
    addFiles();
}

void CollectionFixturesTest::readsTheBooks()
{
    QFETCH(const QString, name);
    QFETCH(const qint32, version);
    BookListDocument document;
    const auto failure = document.readFromFile(fixturePath(name));
    QVERIFY2(!failure, failure ? qPrintable(failure->reason) : "");
    QCOMPARE(document.fileVersion(), version);
    QVERIFY(document.isLoadeFromFile());
    QCOMPARE(document.allKeys(), QStringList({u"3"_s, u"7"_s}));
    QCOMPARE(document.getBookEntry(u"3")->getKey(), u"3"_s);
    QCOMPARE(samples::linesOf(*document.getBookEntry(u"3")), samples::linesOf(fullBook(version)));
    QCOMPARE(samples::linesOf(*document.getBookEntry(u"7")), samples::linesOf(sparseBook(version)));
}

void CollectionFixturesTest::readsGroupsAndCounters_data()
{
    addFiles();
}

void CollectionFixturesTest::readsGroupsAndCounters()
{
    QFETCH(const QString, name);
    BytesDocument document;
    QVERIFY(!document.load(fixture(name)));
    QCOMPARE(document.lastGroupKey(), 12);
    QCOMPARE(document.lastBookNumber(), 9);
    QStringList groups;
    for (const auto& [key, group] : document.getGroups().byKey())
        groups.append(key + u' ' + group.getKey() + u' ' + group.getGroupName());
    QCOMPARE(groups, QStringList({u"1 1 Fiction"_s, u"2 2 Non Fiction"_s, u"12 12 Poésie"_s}));
}

void CollectionFixturesTest::readsLabels_data()
{
    addFiles();
}

void CollectionFixturesTest::readsLabels()
{
    QFETCH(const QString, name);
    QFETCH(const qint32, version);
    BytesDocument document;
    QVERIFY(!document.load(fixture(name)));
    const LabelDictionary labels{{42, u"Condition"_s}, {56, u"Bound"_s}, {62, u"Dust jacket"_s}};
    QCOMPARE(document.customFieldLabels(), version >= 2 ? labels : defaultCustomFieldLabels());
    QCOMPARE(document.getListColumns().at(u"62"_s).getColumnName(),
        version >= 2 ? u"Dust jacket"_s : u"Custom Switch 1"_s);
    QVERIFY(document.getListColumns().at(u"62"_s).getCentered());
    QCOMPARE(document.getListColumns().contains(u"44"_s), version < 2);
}

void CollectionFixturesTest::readsColumnsAndSortField_data()
{
    addFiles();
}

void CollectionFixturesTest::readsColumnsAndSortField()
{
    QFETCH(const QString, name);
    BytesDocument document;
    QVERIFY(!document.load(fixture(name)));
    QCOMPARE(document.getSortField(), 29);
    const ColumnDictionary& columns = document.getListColumns();
    QCOMPARE(
        samples::linesOf(columns.at(u"0"_s)), QStringList{uR"("0" "Title" "Title" 1 300 0 no)"_s});
    QCOMPARE(samples::linesOf(columns.at(u"40"_s)),
        QStringList{uR"("40" "Notes" "Notes" 0 180 0 no)"_s});
    QCOMPARE(samples::linesOf(columns.at(u"200"_s)),
        QStringList{uR"("200" "Elsewhere" "Elsewhere" 2 50 -1 no)"_s});
    QCOMPARE(
        samples::linesOf(columns.at(u"84"_s)), QStringList{uR"("84" "Type" "Type" -1 100 4 no)"_s});
}

void CollectionFixturesTest::readsFrames_data()
{
    addFiles();
}

void CollectionFixturesTest::readsFrames()
{
    QFETCH(const QString, name);
    QFETCH(const qint32, version);
    BytesDocument document;
    QVERIFY(!document.load(fixture(name)));
    QCOMPARE(document.getSavedWindowPosition(), QRectF(10.5, 20.25, 800, 600));
    const QList<QRectF> frames{document.getCustomizeListControllerWindowPosition(),
        document.getGroupListControllerWindowPosition(), document.getSavedImageSplitterView1Size(),
        document.getSavedImageSplitterView2Size(), document.getSavedListSplitterView1Size(),
        document.getSavedListSplitterView2Size()};
    for (int index = 0; index < frames.size(); ++index) {
        const QRectF stored(index + 0.5, double(100.3F), 200.0 + index, 300);
        QCOMPARE(
            samples::quoted(frames.at(index)), samples::quoted(version >= 3 ? stored : QRectF()));
    }
}

void CollectionFixturesTest::readsBothByteOrdersAlike_data()
{
    QTest::addColumn<qint32>("version");
    for (const qint32 version : {-1, 0, 1, 2, 3, 4})
        QTest::newRow(QByteArray::number(version)) << version;
}

void CollectionFixturesTest::readsBothByteOrdersAlike()
{
    QFETCH(const qint32, version);
    QStringList first;
    for (const QString& order : {u"little"_s, u"big"_s}) {
        for (const QString& style : {u"references"_s, u"repetition"_s}) {
            BytesDocument document;
            const QString name = u"version%1-%2-%3.books"_s.arg(version).arg(order, style);
            QVERIFY(!document.load(fixture(name)));
            if (first.isEmpty())
                first = samples::linesOf(document);
            QCOMPARE(samples::linesOf(document), first);
        }
    }
}

void CollectionFixturesTest::savesWhatItReads_data()
{
    addFiles();
}

void CollectionFixturesTest::savesWhatItReads()
{
    QFETCH(const QString, name);
    BytesDocument document;
    QVERIFY(!document.load(fixture(name)));
    const QByteArray saved = document.save();
    BytesDocument reopened;
    QVERIFY(!reopened.load(saved));
    QCOMPARE(reopened.fileVersion(), 4);
    QCOMPARE(samples::linesOf(reopened), samples::linesOf(document));
    QCOMPARE(reopened.save(), saved);
}

void CollectionFixturesTest::dropsGroupingMarksEverywhere_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("comma") << u"comma-keys.books"_s;
    QTest::newRow("narrow no-break space") << u"space-keys.books"_s;
}

void CollectionFixturesTest::dropsGroupingMarksEverywhere()
{
    QFETCH(const QString, name);
    BytesDocument document;
    QVERIFY(!document.load(fixture(name)));
    QCOMPARE(document.allKeys(), QStringList{u"1000"_s});
    BookEntry* const book = document.getBookEntry(u"1000");
    QCOMPARE(book->getKey(), u"1000"_s);
    QCOMPARE(document.getGroups().find(u"1234")->getKey(), u"1234"_s);
    QVERIFY(book->inGroup(1234)); // a membership of version 3 that survives: its group exists
    QCOMPARE(book->getSelectedGroups().begin()->value, u"1234"_s);
    QVERIFY(document.addBook(std::make_unique<BookEntry>()));
    QCOMPARE(document.allKeys(), QStringList({u"1000"_s, u"1001"_s}));
}

void CollectionFixturesTest::takesARecordReferredToTwiceAsTwoBooks()
{
    BytesDocument document;
    QVERIFY(!document.load(fixture(u"shared-record.books"_s)));
    QCOMPARE(document.allKeys(), QStringList({u"7"_s, u"8"_s}));
    BookEntry* const first = document.getBookEntry(u"7");
    BookEntry* const second = document.getBookEntry(u"8");
    QCOMPARE(first->getKey(), u"7"_s);
    QCOMPARE(second->getKey(), u"8"_s);
    QCOMPARE(samples::linesOf(*first), samples::linesOf(sparseBook(4)));
    QVERIFY(equalContents(*first, *second));
    first->setTitle(u"Another"_s);
    QCOMPARE(second->getTitle(), u"Ann"_s);
    QCOMPARE(document.getListColumns().at(u"40"_s).getWidth(), 180);
}

void CollectionFixturesTest::refusesALabelThatNoColumnCanHave()
{
    BytesDocument document;
    const QStringList before = samples::linesOf(document);
    const auto failure = document.load(fixture(u"large-label.books"_s));
    QVERIFY(failure);
    QVERIFY2(failure->reason.contains(QRegularExpression(u"column key.* at offset \\d+$"_s)),
        qPrintable(failure->reason));
    QCOMPARE(samples::linesOf(document), before);
}

void CollectionFixturesTest::refusesANewerVersion()
{
    BookListDocument document;
    document.addBook(std::make_unique<BookEntry>());
    document.windowLayoutChanged();
    const QStringList before = samples::linesOf(document);
    const auto failure = document.readFromFile(fixturePath(u"version5.books"_s));
    QVERIFY(failure);
    QCOMPARE(failure->reason, u"Tomely cannot open files from newer versions."_s);
    QVERIFY(failure->standsAlone);
    QVERIFY(!failure->cancelled);
    QCOMPARE(samples::linesOf(document), before);
    QVERIFY(!document.isLoadeFromFile());
    QVERIFY(document.isDocumentEdited());
    QVERIFY(document.filePath().isEmpty());
}

QTEST_GUILESS_MAIN(CollectionFixturesTest)
#include "CollectionFixturesTest.moc"
