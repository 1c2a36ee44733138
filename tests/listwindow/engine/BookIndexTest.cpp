#include "listwindow/engine/BookIndex.h"

#include "document/BookListDocument.h"
#include "listwindow/engine/BookOrder.h"
#include "listwindow/engine/ColumnKind.h"
#include "tests/support/BookSamples.h"
#include "tests/support/BytesDocument.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::makeBook;

namespace {

using Rows = std::vector<BookIndex::Row>;

/// A document with the books 1 to 4, and an index that has looked at it.
struct Library {
    Library()
    {
        for (const QString& title : {u"Delta"_s, u"alpha"_s, u"Charlie"_s, u"ALPHA"_s})
            document.addBook(makeBook(title, u"author of "_s + title));
        index.sync(document);
        index.titleRanks();
    }

    BookEntry& book(const QString& key) { return *document.getBookEntry(key); }

    BytesDocument document;
    BookIndex index;
};

QStringList titles(BookIndex& index)
{
    QStringList titles;
    for (const BookEntry* const book : index.books())
        titles.append(book->getTitle());
    return titles;
}

QByteArray folded(BookIndex& index, qint32 key, quint32 row)
{
    const std::string_view text = index.folded(key).text(row);
    return {text.data(), qsizetype(text.size())};
}

} // namespace

class BookIndexTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findsEverythingAtFirst();
    void findsAnEmptyDocument();
    void findsNothingWhenNothingChanged();
    void findsChangedBooks();
    void findsAddedBooks();
    void findsAddedAndChangedBooksTogether();
    void startsAnewWhenABookIsGone();
    void startsAnewWhenAnotherFileIsLoaded();
    void findsABookInThePlaceOfADestroyedOne();
    void ignoresBooksOfOtherDocuments();
    void hasRowsInTheOrderOfTheNumbers();
    void foldsAColumnOnce();
    void keepsFoldedColumnsUpToDate();
    void ranksTitles();
    void ranksTitlesAgainWhenOneChanges();
    void ranksTitlesAgainWhenABookIsAdded();
    void ranksNoTitlesOfAnEmptyDocument();
    void ordersRowsByTitle();
    void keepsSortKeysUpToDate();
};

void BookIndexTest::findsEverythingAtFirst()
{
    BookListDocument document;
    document.addBook(makeBook(u"A"_s));
    BookIndex index;
    QCOMPARE(index.rowCount(), 0U);
    const BookIndex::Changes changes = index.sync(document);
    QVERIFY(changes.everything);
    QVERIFY(!changes.isEmpty());
    QCOMPARE(index.rowCount(), 1U);
}

void BookIndexTest::findsAnEmptyDocument()
{
    const BookListDocument document;
    BookIndex index;
    QVERIFY(index.sync(document).everything);
    QVERIFY(index.sync(document).isEmpty());
    QVERIFY(index.books().empty());
}

void BookIndexTest::findsNothingWhenNothingChanged()
{
    Library library;
    QVERIFY(library.index.sync(library.document).isEmpty());
    BookEntry elsewhere;
    elsewhere.setTitle(u"Elsewhere"_s);
    QVERIFY(library.index.sync(library.document).isEmpty());
}

void BookIndexTest::findsChangedBooks()
{
    Library library;
    library.book(u"3"_s).setPages(5);
    library.book(u"1"_s).addToGroup(u"1"_s);
    const BookIndex::Changes changes = library.index.sync(library.document);
    QVERIFY(!changes.everything);
    QVERIFY(!changes.isEmpty());
    QCOMPARE(changes.rows, Rows({0, 2}));
    QVERIFY(library.index.sync(library.document).isEmpty());
}

void BookIndexTest::findsAddedBooks()
{
    Library library;
    library.document.addBook(makeBook(u"Echo"_s));
    const BookIndex::Changes changes = library.index.sync(library.document);
    QVERIFY(!changes.everything);
    QCOMPARE(changes.rows, Rows{4});
    QCOMPARE(library.index.rowCount(), 5U);
}

void BookIndexTest::findsAddedAndChangedBooksTogether()
{
    Library library;
    library.book(u"2"_s).setAuthor(u"New Author"_s);
    library.document.addBook(makeBook(u"Echo"_s));
    library.document.addBook(makeBook(u"Foxtrot"_s));
    QCOMPARE(library.index.sync(library.document).rows, Rows({1, 4, 5}));
}

void BookIndexTest::startsAnewWhenABookIsGone()
{
    for (const QString& key : {u"1"_s, u"2"_s, u"4"_s}) {
        Library library;
        library.document.deleteBook(key);
        QVERIFY(library.index.sync(library.document).everything);
        QCOMPARE(library.index.rowCount(), 3U);
        QVERIFY(library.index.sync(library.document).isEmpty());
    }
}

void BookIndexTest::startsAnewWhenAnotherFileIsLoaded()
{
    Library library;
    BytesDocument other;
    other.addBook(makeBook(u"Other"_s));
    const QByteArray bytes = other.save();
    library.index.sync(library.document);
    QVERIFY(!library.document.load(bytes));
    QVERIFY(!library.index.sync(library.document).isEmpty());
    QCOMPARE(titles(library.index), QStringList{u"Other"_s});
    QCOMPARE(folded(library.index, ColumnKey::Title, 0), QByteArray("other"));
    QVERIFY(!library.document.load(BytesDocument().save()));
    QVERIFY(library.index.sync(library.document).everything);
    QCOMPARE(library.index.rowCount(), 0U);
}

void BookIndexTest::findsABookInThePlaceOfADestroyedOne()
{
    Library library;
    library.index.folded(ColumnKey::Title);
    library.index.sync(library.document);
    // The last one, so that the new book's row is the old one's; its memory often is, too.
    library.document.deleteBook(u"4"_s);
    library.document.addBook(makeBook(u"Echo"_s));
    QVERIFY(!library.index.sync(library.document).isEmpty());
    QCOMPARE(folded(library.index, ColumnKey::Title, 3), QByteArray("echo"));
}

void BookIndexTest::ignoresBooksOfOtherDocuments()
{
    Library library;
    Library other;
    library.index.sync(library.document);
    other.book(u"1"_s).setTitle(u"Changed"_s);
    other.document.deleteBook(u"2"_s);
    QVERIFY(library.index.sync(library.document).isEmpty());
}

void BookIndexTest::hasRowsInTheOrderOfTheNumbers()
{
    BookListDocument document;
    for (int number = 1; number <= 11; ++number)
        document.addBook(makeBook(QString::number(number)));
    BookIndex index;
    index.sync(document);
    for (int row = 0; row < 11; ++row)
        QCOMPARE(index.books()[std::size_t(row)]->getKey(), QString::number(row + 1));
}

void BookIndexTest::foldsAColumnOnce()
{
    Library library;
    const FoldedColumn& authors = library.index.folded(ColumnKey::Author);
    QCOMPARE(authors.rowCount(), std::size_t(4));
    QCOMPARE(folded(library.index, ColumnKey::Author, 0), QByteArray("author of delta"));
    QCOMPARE(&library.index.folded(ColumnKey::Author), &authors);
    QVERIFY(&library.index.folded(ColumnKey::Title) != &authors);
}

void BookIndexTest::keepsFoldedColumnsUpToDate()
{
    Library library;
    for (const qint32 key : {0, 2, 40})
        library.index.folded(key);
    library.book(u"2"_s).setAuthor(u"NEW AUTHOR"_s);
    library.book(u"2"_s).setNotes(u"NEW NOTES"_s);
    library.document.addBook(makeBook(u"Echo"_s, u"Author of Echo"_s));
    library.index.sync(library.document);
    QCOMPARE(folded(library.index, 2, 1), QByteArray("new author"));
    QCOMPARE(folded(library.index, 40, 1), QByteArray("new notes"));
    QCOMPARE(folded(library.index, 0, 1), QByteArray("alpha"));
    QCOMPARE(folded(library.index, 2, 4), QByteArray("author of echo"));
    library.document.deleteBook(u"1"_s);
    library.index.sync(library.document);
    QCOMPARE(folded(library.index, 2, 0), QByteArray("new author"));
}

void BookIndexTest::ranksTitles()
{
    Library library;
    QCOMPARE(library.index.titleRanks(), std::vector<quint32>({3, 0, 2, 1}));
    QCOMPARE(library.index.titleClasses(), std::vector<quint32>({2, 0, 1, 0}));
}

void BookIndexTest::ranksTitlesAgainWhenOneChanges()
{
    Library library;
    library.book(u"2"_s).setTitle(u"Zulu"_s);
    library.index.sync(library.document);
    QCOMPARE(library.index.titleRanks(), std::vector<quint32>({2, 3, 1, 0}));
    QCOMPARE(library.index.titleClasses(), std::vector<quint32>({2, 3, 1, 0}));
    library.book(u"1"_s).setTitle(u"zULU"_s);
    library.book(u"3"_s).setPages(1);
    library.index.sync(library.document);
    QCOMPARE(library.index.titleRanks(), std::vector<quint32>({2, 3, 1, 0}));
    QCOMPARE(library.index.titleClasses(), std::vector<quint32>({2, 2, 1, 0}));
}

void BookIndexTest::ranksTitlesAgainWhenABookIsAdded()
{
    Library library;
    library.document.addBook(makeBook(u"Bravo"_s));
    library.document.addBook(makeBook(u"alpha"_s));
    library.index.sync(library.document);
    QCOMPARE(library.index.titleRanks(), std::vector<quint32>({5, 0, 4, 1, 3, 2}));
    QCOMPARE(library.index.titleClasses(), std::vector<quint32>({3, 0, 2, 0, 1, 0}));
}

void BookIndexTest::ranksNoTitlesOfAnEmptyDocument()
{
    BookListDocument document;
    BookIndex index;
    index.sync(document);
    QVERIFY(index.titleRanks().empty());
    document.addBook(makeBook(u"First"_s));
    index.sync(document);
    QCOMPARE(index.titleRanks(), std::vector<quint32>{0});
    QCOMPARE(index.titleClasses(), std::vector<quint32>{0});
}

void BookIndexTest::ordersRowsByTitle()
{
    Library library;
    QCOMPARE(library.index.titleOrder(), Rows({1, 3, 2, 0}));
    library.book(u"1"_s).setTitle(u"aardvark"_s);
    library.document.addBook(makeBook(u"Bravo"_s));
    library.index.sync(library.document);
    QCOMPARE(library.index.titleOrder(), Rows({0, 1, 3, 4, 2}));
}

void BookIndexTest::keepsSortKeysUpToDate()
{
    const auto expected = [](const Library& library, qint32 key) {
        std::vector<quint64> keys;
        for (const BookEntry* const book : library.index.books())
            keys.push_back(sortKey(*book, key));
        return keys;
    };
    Library library;
    library.book(u"2"_s).setPages(300);
    library.index.sync(library.document);
    for (const qint32 key : {28, 6, 86})
        QCOMPARE(library.index.sortKeys(key), expected(library, key));
    library.book(u"3"_s).setPages(200);
    library.book(u"2"_s).setRating(5);
    library.document.addBook(makeBook(u"Echo"_s));
    library.index.sync(library.document);
    for (const qint32 key : {28, 6, 86})
        QCOMPARE(library.index.sortKeys(key), expected(library, key));
    library.document.deleteBook(u"1"_s);
    library.index.sync(library.document);
    QCOMPARE(library.index.sortKeys(28), expected(library, 28));
}

QTEST_GUILESS_MAIN(BookIndexTest)
#include "BookIndexTest.moc"
