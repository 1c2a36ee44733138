#include "listwindow/engine/ListOrder.h"

#include "document/BookListDocument.h"
#include "listwindow/engine/BookOrder.h"
#include "tests/support/BookSamples.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::makeBook;

namespace {

struct Library {
    BookEntry& add(const QString& title, qint32 pages = 0, const QString& author = {})
    {
        auto book = makeBook(title, author);
        BookEntry& added = *book;
        book->setPages(pages);
        document.addBook(std::move(book));
        return added;
    }

    bool update(qint32 sortField) { return order.update(index, index.sync(document), sortField); }

    QStringList keys() const
    {
        QStringList keys;
        for (const ListOrder::Record& record : order.records())
            keys.append(index.books()[record.row]->getKey());
        return keys;
    }

    BookListDocument document;
    BookIndex index;
    ListOrder order;
};

} // namespace

class ListOrderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sortsByTitleAndNumber();
    void sortsDescendingWithTiesAscending();
    void looksAtTextsBehindTheirFirstBytes();
    void doesNothingWhenNothingChanged();
    void sortsAgainForAnotherSortField();
    void movesChangedBooks();
    void movesBooksBehindAChangedTitle();
    void placesAddedBooks();
    void sortsAgainWhenABookIsGone();
    void sortsNoBooks();
};

void ListOrderTest::sortsByTitleAndNumber()
{
    Library library;
    for (const QString& title : {u"b"_s, u"A"_s, u"B"_s, u"a"_s, u""_s})
        library.add(title);
    QVERIFY(library.update(0));
    QCOMPARE(library.keys(), QStringList({u"5"_s, u"2"_s, u"4"_s, u"1"_s, u"3"_s}));
    QVERIFY(library.update(1));
    QCOMPARE(library.keys(), QStringList({u"1"_s, u"3"_s, u"2"_s, u"4"_s, u"5"_s}));
}

void ListOrderTest::sortsDescendingWithTiesAscending()
{
    Library library;
    library.add(u"B"_s, 10);
    library.add(u"A"_s, 10);
    library.add(u"C"_s, 20);
    library.update(28);
    QCOMPARE(library.keys(), QStringList({u"2"_s, u"1"_s, u"3"_s}));
    library.update(29);
    QCOMPARE(library.keys(), QStringList({u"3"_s, u"2"_s, u"1"_s}));
}

void ListOrderTest::looksAtTextsBehindTheirFirstBytes()
{
    Library library;
    library.add(u"1"_s, 0, u"The same beginning, then Z"_s);
    library.add(u"2"_s, 0, u"the same beginning, then a"_s);
    library.add(u"3"_s, 0, u"THE SAME BEGINNING"_s);
    library.update(2);
    QCOMPARE(library.keys(), QStringList({u"3"_s, u"2"_s, u"1"_s}));
    library.update(3);
    QCOMPARE(library.keys(), QStringList({u"1"_s, u"2"_s, u"3"_s}));
}

void ListOrderTest::doesNothingWhenNothingChanged()
{
    Library library;
    library.add(u"A"_s);
    QVERIFY(library.update(0));
    QVERIFY(!library.update(0));
}

void ListOrderTest::sortsAgainForAnotherSortField()
{
    Library library;
    library.add(u"A"_s, 2);
    library.add(u"B"_s, 1);
    QVERIFY(library.update(0));
    QVERIFY(library.update(28));
    QCOMPARE(library.keys(), QStringList({u"2"_s, u"1"_s}));
    QVERIFY(!library.update(28));
}

void ListOrderTest::movesChangedBooks()
{
    Library library;
    BookEntry& first = library.add(u"A"_s, 1);
    library.add(u"B"_s, 2);
    library.add(u"C"_s, 3);
    library.update(28);
    first.setPages(5);
    QVERIFY(library.update(28));
    QCOMPARE(library.keys(), QStringList({u"2"_s, u"3"_s, u"1"_s}));
    first.setPages(2);
    QVERIFY(library.update(28));
    QCOMPARE(library.keys(), QStringList({u"1"_s, u"2"_s, u"3"_s}));
}

void ListOrderTest::movesBooksBehindAChangedTitle()
{
    Library library;
    BookEntry& first = library.add(u"A"_s, 1);
    library.add(u"B"_s, 1);
    library.add(u"C"_s, 1);
    library.update(28);
    first.setTitle(u"D"_s);
    library.update(28);
    QCOMPARE(library.keys(), QStringList({u"2"_s, u"3"_s, u"1"_s}));
    library.update(0);
    first.setTitle(u"Bb"_s);
    library.update(0);
    QCOMPARE(library.keys(), QStringList({u"2"_s, u"1"_s, u"3"_s}));
}

void ListOrderTest::placesAddedBooks()
{
    Library library;
    library.add(u"B"_s, 2);
    library.add(u"D"_s, 4);
    library.update(28);
    library.add(u"C"_s, 3);
    library.add(u"A"_s, 2);
    QVERIFY(library.update(28));
    QCOMPARE(library.keys(), QStringList({u"4"_s, u"1"_s, u"3"_s, u"2"_s}));
}

void ListOrderTest::sortsAgainWhenABookIsGone()
{
    Library library;
    for (const QString& title : {u"C"_s, u"B"_s, u"A"_s})
        library.add(title);
    library.update(0);
    library.document.deleteBook(u"2"_s);
    QVERIFY(library.update(0));
    QCOMPARE(library.keys(), QStringList({u"3"_s, u"1"_s}));
}

void ListOrderTest::sortsNoBooks()
{
    Library library;
    QVERIFY(library.update(0));
    QVERIFY(library.order.records().empty());
    library.add(u"A"_s);
    QVERIFY(library.update(0));
    QCOMPARE(library.keys(), QStringList{u"1"_s});
}

QTEST_GUILESS_MAIN(ListOrderTest)
#include "ListOrderTest.moc"
