#include "document/BookListDocument.h"

#include "document/CollectionFile.h"
#include "tests/support/BookSamples.h"
#include "tests/support/BytesDocument.h"
#include "tests/support/FakeBookListWindow.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::makeBook;

namespace {

/// A document with a window and three books, not edited, and nothing told to its window yet.
struct OpenCollection {
    OpenCollection()
    {
        document.makeWindowControllers();
        for (const QString& title : {u"One"_s, u"Two"_s, u"Three"_s})
            document.addBook(makeBook(title));
    }

    FakeBookListWindow* window = nullptr;
    BytesDocument document{FakeBookListWindow::services(window)};
};

/// A document whose counters stand at the last number.
std::unique_ptr<BytesDocument> exhaustedDocument()
{
    CollectionContents contents = CollectionContents::makeNew();
    contents.lastBookIdn = std::numeric_limits<qint32>::max();
    contents.lastGroupKey = std::numeric_limits<qint32>::max();
    auto document = std::make_unique<BytesDocument>();
    document->load(writeCollection(contents));
    return document;
}

} // namespace

class BookListDocumentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsAsANewCollection();
    void startsWithoutLayoutOrLists();
    void numbersBooks();
    void neverReusesABookNumber();
    void refusesABookWhoseKeyExists();
    void takesABookWhoseKeyIsUnknown();
    void refusesABookWhenNoNumberIsLeft();
    void findsBooks();
    void listsBooksByNumber();
    void marksNothingWhenABookIsAdded();
    void deletesABook();
    void keepsADeletedBookUntilTheListIsRefreshed();
    void deletesManyBooksAtOnce();
    void survivesDeletingAnUnknownBook();
    void handsOutGroupKeys();
    void handsOutAFreeGroupKeyWhenNoNumberIsLeft();
    void removesGroupReferences();
    void removesMembershipsOfGroupsThatDoNotExist();
    void answersLabels();
    void storesLabelsTrimmedAndColumnsUntrimmed_data();
    void storesLabelsTrimmedAndColumnsUntrimmed();
    void takesTheStoredLabelIntoTheColumnOnLoading();
    void namesACustomFieldWithoutAColumn();
    void sortsTheValueLists();
    void tellsItsWindow_data();
    void tellsItsWindow();
    void marksNothingForSortFieldAndFrames();
    void worksWithoutAWindow();
    void savesTheLiveLayout();
    void keepsTheStoredLayoutWithoutAWindow();
    void tellsWhetherItWasLoaded();
};

void BookListDocumentTest::startsAsANewCollection()
{
    const BookListDocument document;
    QCOMPARE(document.getBookListSize(), 0);
    QCOMPARE(document.lastBookNumber(), 0);
    QCOMPARE(document.lastGroupKey(), 2);
    QCOMPARE(document.getGroups().size(), 2);
    QCOMPARE(document.getGroups().find(u"1")->getGroupName(), u"Fiction"_s);
    QCOMPARE(document.getGroups().find(u"2")->getGroupName(), u"Non Fiction"_s);
    QCOMPARE(document.customFieldLabels(), defaultCustomFieldLabels());
    QCOMPARE(document.getListColumns().size(), std::size_t(42));
    QCOMPARE(document.getSortField(), 0);
    QVERIFY(!document.isLoadeFromFile() && !document.isDocumentEdited());
}

void BookListDocumentTest::startsWithoutLayoutOrLists()
{
    const BookListDocument document;
    for (const QRectF& frame :
        {document.getSavedWindowPosition(), document.getCustomizeListControllerWindowPosition(),
            document.getGroupListControllerWindowPosition(),
            document.getSavedImageSplitterView1Size(), document.getSavedImageSplitterView2Size(),
            document.getSavedListSplitterView1Size(), document.getSavedListSplitterView2Size()})
        QCOMPARE(frame, QRectF());
    QVERIFY(document.getAuthors().isEmpty());
    QVERIFY(document.getLocations().isEmpty());
    QVERIFY(document.getPublishers().isEmpty());
    QVERIFY(document.getPricePaidLocations().isEmpty());
    QVERIFY(!document.getWindowController());
    QCOMPARE(document.fileVersion(), 4);
}

void BookListDocumentTest::numbersBooks()
{
    BookListDocument document;
    for (int number = 1; number <= 3; ++number) {
        auto book = makeBook(u"Book"_s);
        const BookEntry* const added = book.get();
        QVERIFY(document.addBook(std::move(book)));
        QCOMPARE(added->getKey(), QString::number(number));
        QCOMPARE(document.getBookEntry(QString::number(number)), added);
    }
    QCOMPARE(document.lastBookNumber(), 3);
}

void BookListDocumentTest::neverReusesABookNumber()
{
    BookListDocument document;
    for (int count = 0; count < 3; ++count)
        document.addBook(makeBook(u"Book"_s));
    document.deleteBook(u"2"_s);
    document.addBook(makeBook(u"Book"_s));
    QCOMPARE(document.allKeys(), QStringList({u"1"_s, u"3"_s, u"4"_s}));
    document.deleteBook(u"4"_s);
    document.addBook(makeBook(u"Book"_s));
    QCOMPARE(document.allKeys(), QStringList({u"1"_s, u"3"_s, u"5"_s}));
}

void BookListDocumentTest::refusesABookWhoseKeyExists()
{
    BookListDocument document;
    document.addBook(makeBook(u"First"_s));
    auto again = makeBook(u"Second"_s);
    again->setKey(1);
    QVERIFY(!document.addBook(std::move(again)));
    QCOMPARE(document.getBookListSize(), 1);
    QCOMPARE(document.getBookEntry(u"1")->getTitle(), u"First"_s);
    QCOMPARE(document.lastBookNumber(), 1);
}

void BookListDocumentTest::takesABookWhoseKeyIsUnknown()
{
    BookListDocument document;
    auto book = makeBook(u"From elsewhere"_s);
    book->setKey(77);
    QVERIFY(document.addBook(std::move(book)));
    QCOMPARE(document.allKeys(), QStringList{u"1"_s});
    QCOMPARE(document.getBookEntry(u"1")->getKey(), u"1"_s);
}

void BookListDocumentTest::refusesABookWhenNoNumberIsLeft()
{
    const auto document = exhaustedDocument();
    QCOMPARE(document->lastBookNumber(), std::numeric_limits<qint32>::max());
    QVERIFY(!document->addBook(makeBook(u"One too many"_s)));
    QCOMPARE(document->getBookListSize(), 0);
}

void BookListDocumentTest::findsBooks()
{
    OpenCollection open;
    QCOMPARE(open.document.getBookEntry(u"2")->getTitle(), u"Two"_s);
    QVERIFY(!open.document.getBookEntry(u"4"));
    QVERIFY(!open.document.getBookEntry(u""));
    QVERIFY(!open.document.getBookEntry(QStringView()));
}

void BookListDocumentTest::listsBooksByNumber()
{
    BookListDocument document;
    for (int count = 0; count < 11; ++count)
        document.addBook(makeBook(u"Book"_s));
    QCOMPARE(document.getBookListSize(), 11);
    int number = 0;
    for (const BookEntry* const book : document.allValues())
        QCOMPARE(book->getKey(), QString::number(++number));
    QCOMPARE(number, 11);
    QCOMPARE(document.allKeys().at(9), u"10"_s);
}

void BookListDocumentTest::marksNothingWhenABookIsAdded()
{
    const OpenCollection open;
    QVERIFY(!open.document.isDocumentEdited());
    QCOMPARE(open.window->calls, QStringList());
}

void BookListDocumentTest::deletesABook()
{
    OpenCollection open;
    QVERIFY(open.document.deleteBook(u"2"_s));
    QCOMPARE(open.document.allKeys(), QStringList({u"1"_s, u"3"_s}));
    QCOMPARE(open.window->calls, QStringList({u"setBooksChanged"_s, u"refresh"_s}));
    QVERIFY(open.document.isDocumentEdited());
}

void BookListDocumentTest::keepsADeletedBookUntilTheListIsRefreshed()
{
    OpenCollection open;
    const BookEntry* const book = open.document.getBookEntry(u"2");
    QStringList titles;
    open.window->onCall = [&](const QString&) {
        titles.append(book->getTitle());
        QVERIFY(!open.document.getBookEntry(u"2"));
    };
    open.document.deleteBook(u"2"_s);
    QCOMPARE(titles, QStringList({u"Two"_s, u"Two"_s}));
}

void BookListDocumentTest::deletesManyBooksAtOnce()
{
    OpenCollection open;
    open.document.deleteBooks({u"3"_s, u"9"_s, u"1"_s, u"1"_s});
    QCOMPARE(open.document.allKeys(), QStringList{u"2"_s});
    QCOMPARE(open.window->calls, QStringList({u"setBooksChanged"_s, u"refresh"_s}));
}

void BookListDocumentTest::survivesDeletingAnUnknownBook()
{
    OpenCollection open;
    QVERIFY(open.document.deleteBook(u"9"_s));
    QVERIFY(open.document.deleteBook(QString()));
    QCOMPARE(open.document.getBookListSize(), 3);
}

void BookListDocumentTest::handsOutGroupKeys()
{
    BookListDocument document;
    QCOMPARE(document.getNextGroupKey(), 3);
    QCOMPARE(document.getNextGroupKey(), 4);
    QCOMPARE(document.lastGroupKey(), 4);
    QVERIFY(!document.isDocumentEdited());
    document.getGroups().remove(u"2"_s);
    QCOMPARE(document.getNextGroupKey(), 5);
}

void BookListDocumentTest::handsOutAFreeGroupKeyWhenNoNumberIsLeft()
{
    const auto document = exhaustedDocument();
    QCOMPARE(document->getNextGroupKey(), 3);
    QCOMPARE(document->lastGroupKey(), std::numeric_limits<qint32>::max());
}

void BookListDocumentTest::removesGroupReferences()
{
    OpenCollection open;
    for (BookEntry* const book : open.document.allValues()) {
        for (const QString& key : {u"1"_s, u"2"_s, u"10"_s})
            book->addToGroup(key);
    }
    open.document.removeBookGroupReferences({u"1"_s, u"10"_s, u"11"_s});
    for (const BookEntry* const book : open.document.allValues()) {
        QCOMPARE(book->getSelectedGroups().size(), 1);
        QVERIFY(book->inGroup(2));
    }
    QVERIFY(!open.document.isDocumentEdited());
    QCOMPARE(open.window->calls, QStringList());
}

void BookListDocumentTest::removesMembershipsOfGroupsThatDoNotExist()
{
    OpenCollection open;
    open.document.getBookEntry(u"1")->addToGroup(u"7"_s);
    open.document.getBookEntry(u"2")->addToGroup(u"2"_s);
    open.document.getBookEntry(u"2")->addToGroup(u"x"_s);
    open.document.removeNonExistentGroup();
    QVERIFY(!open.document.getBookEntry(u"1")->inAnyGroup());
    QCOMPARE(open.document.getBookEntry(u"2")->getSelectedGroups().size(), 1);
    QVERIFY(open.document.getBookEntry(u"2")->inGroup(2));
    QVERIFY(!open.document.isDocumentEdited());
}

void BookListDocumentTest::answersLabels()
{
    const BookListDocument document;
    QCOMPARE(document.getCustomFieldLabel(42), u"Custom Field 1"_s);
    QCOMPARE(document.getCustomFieldLabel(76), u"Custom Switch 8"_s);
    QVERIFY(document.getCustomFieldLabel(40).isNull());
}

void BookListDocumentTest::storesLabelsTrimmedAndColumnsUntrimmed_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("stored");
    QTest::newRow("colon and spaces") << u"  Signed by:  "_s << u"Signed by"_s;
    QTest::newRow("colons and spaces alone") << u": : "_s << u""_s;
    QTest::newRow("nothing to trim") << u"Condition"_s << u"Condition"_s;
}

void BookListDocumentTest::storesLabelsTrimmedAndColumnsUntrimmed()
{
    QFETCH(const QString, label);
    QFETCH(const QString, stored);
    OpenCollection open;
    open.document.setCustomFieldLabel(label, 62);
    QCOMPARE(open.document.getCustomFieldLabel(62), stored);
    const ColumnEntry& column = open.document.getListColumns().at(u"62"_s);
    QCOMPARE(column.getColumnName(), label);
    QCOMPARE(column.getSelectionName(), u"Custom: "_s + label);
    QCOMPARE(open.window->calls,
        QStringList({u"updateColumnName 62 "_s + label, u"initFilterDropDown"_s}));
    QVERIFY(open.document.isDocumentEdited());
}

void BookListDocumentTest::takesTheStoredLabelIntoTheColumnOnLoading()
{
    BytesDocument document;
    document.setCustomFieldLabel(u" Signed by: "_s, 42);
    BytesDocument reopened;
    QVERIFY(!reopened.load(document.save()));
    QCOMPARE(reopened.getCustomFieldLabel(42), u"Signed by"_s);
    QCOMPARE(reopened.getListColumns().at(u"42"_s).getColumnName(), u"Signed by"_s);
    QCOMPARE(reopened.getListColumns().at(u"42"_s).getSelectionName(), u"Custom: Signed by"_s);
}

void BookListDocumentTest::namesACustomFieldWithoutAColumn()
{
    OpenCollection open;
    open.document.getListColumns().erase(u"42"_s);
    open.document.setCustomFieldLabel(u"Condition"_s, 42);
    QCOMPARE(open.document.getCustomFieldLabel(42), u"Condition"_s);
    QCOMPARE(open.window->calls, QStringList{u"initFilterDropDown"_s});
    QVERIFY(!open.document.getListColumns().contains(u"42"_s));
}

void BookListDocumentTest::sortsTheValueLists()
{
    BookListDocument document;
    const QStringList values{u"pear"_s, u"Éclair"_s, u"apple"_s, u"Orange"_s};
    const QStringList sorted{u"apple"_s, u"Orange"_s, u"pear"_s, u"Éclair"_s};
    document.setAuthors(values + QStringList{u"author"_s});
    document.setLocations(values + QStringList{u"location"_s});
    document.setPublishers(values + QStringList{u"publisher"_s});
    document.setPricePaidLocations(values);
    QCOMPARE(document.getAuthors().first(2), QStringList({u"apple"_s, u"author"_s}));
    QCOMPARE(document.getLocations().at(1), u"location"_s);
    QCOMPARE(document.getPublishers().at(3), u"publisher"_s);
    QCOMPARE(document.getPricePaidLocations(), sorted);
    QVERIFY(!document.isDocumentEdited());
}

void BookListDocumentTest::tellsItsWindow_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<bool>("edited");
    QTest::newRow("refresh") << u"refresh"_s << QStringList{u"refresh"_s} << false;
    QTest::newRow("books") << u"setBooksChanged"_s << QStringList{u"setBooksChanged"_s} << true;
    QTest::newRow("groups") << u"groupsChanged"_s << QStringList{u"groupsChanged"_s} << true;
    QTest::newRow("columns") << u"columnsSelectionChanged"_s
                             << QStringList{u"columnsSelectionChanged"_s} << true;
    QTest::newRow("layout") << u"windowLayoutChanged"_s << QStringList{} << true;
}

void BookListDocumentTest::tellsItsWindow()
{
    QFETCH(const QString, operation);
    const QMap<QString, void (BookListDocument::*)()> operations{
        {u"refresh"_s, &BookListDocument::refresh},
        {u"setBooksChanged"_s, &BookListDocument::setBooksChanged},
        {u"groupsChanged"_s, &BookListDocument::groupsChanged},
        {u"columnsSelectionChanged"_s, &BookListDocument::columnsSelectionChanged},
        {u"windowLayoutChanged"_s, &BookListDocument::windowLayoutChanged}};
    OpenCollection open;
    const QSignalSpy edited(&open.document, &Document::editedChanged);
    (open.document.*operations.value(operation))();
    QTEST(open.window->calls, "calls");
    QTEST(open.document.isDocumentEdited(), "edited");
    QTEST(edited.count() == 1, "edited");
}

void BookListDocumentTest::marksNothingForSortFieldAndFrames()
{
    OpenCollection open;
    open.document.setSortField(29);
    open.document.setCustomizeListControllerWindowPosition({1, 2, 3, 4});
    open.document.setGroupListControllerWindowPosition({5, 6, 7, 8});
    QCOMPARE(open.document.getSortField(), 29);
    QCOMPARE(open.document.getCustomizeListControllerWindowPosition(), QRectF(1, 2, 3, 4));
    QCOMPARE(open.document.getGroupListControllerWindowPosition(), QRectF(5, 6, 7, 8));
    QVERIFY(!open.document.isDocumentEdited());
    QCOMPARE(open.window->calls, QStringList());
}

void BookListDocumentTest::worksWithoutAWindow()
{
    BytesDocument document;
    document.makeWindowControllers();
    QVERIFY(document.windowControllers().empty());
    document.refresh();
    QVERIFY(!document.isDocumentEdited());
    document.setBooksChanged();
    document.groupsChanged();
    document.columnsSelectionChanged();
    document.windowLayoutChanged();
    document.setCustomFieldLabel(u"Condition"_s, 42);
    document.addBook(makeBook(u"Book"_s));
    document.deleteBook(u"1"_s);
    document.confirmedSetDefaultFile(0);
    QVERIFY(document.isDocumentEdited());
    QVERIFY(!document.save().isEmpty());
}

void BookListDocumentTest::savesTheLiveLayout()
{
    OpenCollection open;
    open.window->layout = {{1, 2, 3, 4}, {QRectF(5, 6, 7, 8), QRectF(9, 10, 11, 12)},
        {QRectF(13, 14, 15, 16), QRectF(17, 18, 19, 20)}};
    open.window->onCall = [&open](const QString& call) {
        if (call == u"updateCurrentColumnInfo"_s)
            open.document.getListColumns().at(u"40"_s).setWidth(321);
        if (call == u"endGroupNameEditting"_s)
            open.document.getGroups().find(u"1")->setGroupName(u"Typed"_s);
    };
    BytesDocument reopened;
    QVERIFY(!reopened.load(open.document.save()));
    QCOMPARE(reopened.getSavedWindowPosition(), QRectF(1, 2, 3, 4));
    QCOMPARE(reopened.getSavedImageSplitterView1Size(), QRectF(5, 6, 7, 8));
    QCOMPARE(reopened.getSavedImageSplitterView2Size(), QRectF(9, 10, 11, 12));
    QCOMPARE(reopened.getSavedListSplitterView1Size(), QRectF(13, 14, 15, 16));
    QCOMPARE(reopened.getSavedListSplitterView2Size(), QRectF(17, 18, 19, 20));
    QCOMPARE(reopened.getListColumns().at(u"40"_s).getWidth(), 321);
    QCOMPARE(reopened.getGroups().find(u"1")->getGroupName(), u"Typed"_s);
    QCOMPARE(open.document.getSavedWindowPosition(), QRectF(1, 2, 3, 4));
}

void BookListDocumentTest::keepsTheStoredLayoutWithoutAWindow()
{
    OpenCollection open;
    open.window->layout.windowFrame = {1, 2, 3, 4};
    BytesDocument windowless;
    QVERIFY(!windowless.load(open.document.save()));
    BytesDocument reopened;
    QVERIFY(!reopened.load(windowless.save()));
    QCOMPARE(reopened.getSavedWindowPosition(), QRectF(1, 2, 3, 4));
}

void BookListDocumentTest::tellsWhetherItWasLoaded()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"library.books"_s);
    BookListDocument document;
    document.windowLayoutChanged();
    QVERIFY(!document.writeToFile(path));
    QVERIFY(!document.isDocumentEdited());
    QVERIFY(!document.isLoadeFromFile());
    BookListDocument reopened;
    QVERIFY(!reopened.readFromFile(path));
    QVERIFY(reopened.isLoadeFromFile());
    QVERIFY(!reopened.isDocumentEdited());
    QCOMPARE(reopened.filePath(), path);
}

QTEST_GUILESS_MAIN(BookListDocumentTest)
#include "BookListDocumentTest.moc"
