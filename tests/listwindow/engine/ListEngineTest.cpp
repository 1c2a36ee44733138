#include "listwindow/engine/ListEngine.h"

#include "document/BookListDocument.h"
#include "listwindow/engine/BookOrder.h"
#include "tests/support/BookSamples.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::makeBook;

namespace {

QStringList titles(const std::vector<BookEntry*>& books)
{
    QStringList titles;
    for (const BookEntry* const book : books)
        titles.append(book->getTitle());
    return titles;
}

QStringList keys(const std::vector<BookEntry*>& books)
{
    QStringList keys;
    for (const BookEntry* const book : books)
        keys.append(book->getKey());
    return keys;
}

/// Random books from few values, so that ties, matches and empty fields are frequent.
class RandomLibrary {
public:
    explicit RandomLibrary(quint32 seed) : m_random(seed) { }

    int below(int bound) { return m_random.bounded(bound); }

    QString text()
    {
        static const QStringList words{u""_s, QString(), u"a"_s, u"A"_s, u"The Road"_s,
            u"the road"_s, u"The Road to Nowhere"_s, u"The Road to Wigan"_s, u"Éclair"_s,
            u"éclair"_s, u"Straße"_s, u"strasse"_s, u"10"_s, u"9"_s, u"\U0001F600"_s, u"\uFFFD"_s,
            u"Zebra"_s, u"zebra crossing"_s, u"_"_s};
        return words.at(below(int(words.size())));
    }

    void change(BookEntry& book, const BookField& field)
    {
        static const QStringList years{
            u""_s, QString(), u"1999"_s, u"2000"_s, u"2001"_s, u"2001?"_s, u"-5"_s, u"x"_s};
        static const QList<double> prices{0.0, -0.0, 4.99, 5, 5.01, -1, 1e300,
            std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()};
        switch (field.kind) {
        case FieldKind::Text:
            field.setText(book, text());
            break;
        case FieldKind::Year:
            field.setText(book, years.at(below(int(years.size()))));
            break;
        case FieldKind::Month:
            field.setInteger(book, below(14) - 1);
            break;
        case FieldKind::Integer:
        case FieldKind::Rating:
        case FieldKind::Type:
            field.setInteger(book, below(8) - 1);
            break;
        case FieldKind::Real:
            field.setReal(book, prices.at(below(int(prices.size()))));
            break;
        case FieldKind::Flag:
            field.setFlag(book, below(2) == 0);
            break;
        }
    }

    std::unique_ptr<BookEntry> book()
    {
        auto book = std::make_unique<BookEntry>();
        for (const BookField& field : bookFields())
            change(*book, field);
        changeGroups(*book);
        if (below(3) == 0)
            book->setImageData(1 + below(5), "x");
        return book;
    }

    void changeGroups(BookEntry& book)
    {
        const QString key = QString::number(1 + below(3));
        if (below(2) == 0)
            book.addToGroup(key);
        else
            book.removeFromGroup(key);
    }

    /// Edits, adds and removes some books, as a person does between two looks at the list.
    void disturb(BookListDocument& document)
    {
        const std::vector<BookEntry*> books = document.allValues();
        for (int count = below(12); count > 0; --count) {
            BookEntry& book = *books.at(std::size_t(below(int(books.size()))));
            const auto fields = bookFields();
            if (below(8) == 0)
                book.setTitle(text());
            else if (below(6) == 0)
                changeGroups(book);
            else
                change(book, fields[std::size_t(below(int(fields.size())))]);
        }
        for (int count = below(4) == 0 ? below(4) : 0; count > 0; --count)
            document.addBook(book());
        if (below(5) == 0)
            document.deleteBook(books.at(std::size_t(below(int(books.size()))))->getKey());
        if (below(9) == 0) // its memory is likely to be used again for the next one
            document.deleteBook(document.allKeys().constLast());
        if (below(3) == 0)
            document.addBook(book());
    }

    BookFilter filter(qint32 key)
    {
        static const QStringList wanted{
            u""_s, u"a"_s, u"ROAD"_s, u"é"_s, u"ss"_s, u"ß"_s, u"ro"_s, u"9"_s, u"none of them"_s};
        BookFilter filter;
        filter.m_nSelectedGroupKey = below(2) == 0 ? 0 : below(5);
        filter.m_nSelectedFilter = key;
        filter.m_strFilter = wanted.at(below(int(wanted.size())));
        filter.m_nFilterSelectionForChecks = TriState(below(4));
        filter.m_nFilterSelectionForImages = TriState(below(4));
        filter.m_nFilterSelectionForGroup = TriState(below(4));
        filter.m_nFilterSelectionForBookRating = below(6);
        filter.m_nFilterSelectionForBookType = below(5);
        filter.m_nFilterSelectionForNumeric = NumberTest(below(5));
        filter.m_dblFilter_Numeric = below(3) * 2.5;
        filter.m_bFilter_NumericHasValue = below(4) != 0;
        filter.m_nFilterSelectionForDate = DateTest(below(7));
        filter.m_nFilter_DateMonth = below(2) == 0 ? 0 : 1 + below(12);
        filter.m_nFilter_DateYear = below(2) == 0 ? 0 : 1999 + below(3);
        return filter;
    }

private:
    QRandomGenerator m_random;
};

/// The same lists by the plain rules, book by book.
struct PlainLists {
    PlainLists(const BookListDocument& document, const BookFilter& filter)
        : all(document.allValues())
    {
        const qint32 sortField = document.getSortField();
        std::ranges::sort(all, [sortField](const BookEntry* left, const BookEntry* right) {
            return standsBefore(*left, *right, sortField);
        });
        std::ranges::copy_if(all, std::back_inserter(displayed),
            [&filter](const BookEntry* book) { return filter.passes(*book); });
    }

    std::vector<BookEntry*> all;
    std::vector<BookEntry*> displayed;
};

/// The distinct non-empty values of all books, in no order that matters.
QStringList distinct(const BookListDocument& document, QString (BookEntry::*get)() const)
{
    QStringList values;
    for (const BookEntry* const book : document.allValues())
        values.append((book->*get)());
    values.removeAll(QString());
    values.removeDuplicates();
    values.sort();
    return values;
}

QStringList sorted(QStringList values)
{
    values.sort();
    return values;
}

/// Three books: Ann's is in group 1.
struct SmallLibrary {
    SmallLibrary()
    {
        document.addBook(makeBook(u"Banana"_s, u"Ann"_s));
        document.addBook(makeBook(u"apple"_s, u"Bob"_s));
        document.addBook(makeBook(u"Cherry"_s, u"Cid"_s));
        book(u"1").addToGroup(u"1"_s);
    }

    BookEntry& book(QStringView key) { return *document.getBookEntry(key); }

    BookListDocument document;
    ListEngine engine{document};
};

} // namespace

class ListEngineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listsEverythingByTitleAtFirst();
    void listsAnEmptyDocument();
    void filtersByGroupAndText();
    void sortsAllBooksAndShowsSome();
    void followsTheSortField();
    void followsEditedBooks();
    void followsAssignedBooks();
    void followsGroupsOfBooks();
    void followsAddedAndDeletedBooks();
    void hidesEverythingForOtherFilters();
    void collectsTheValueLists();
    void collectsTheValueListsOnlyWhenBooksChanged();
    void collectsTheValueListsOfHiddenBooks();
    void handsOverTheValueListsBeforeTheGroupTest();
    void keepsTheValueListsThroughChanges_data();
    void keepsTheValueListsThroughChanges();
    void agreesWithThePlainRules_data();
    void agreesWithThePlainRules();
    void agreesForEveryFilter_data();
    void agreesForEveryFilter();
};

void ListEngineTest::listsEverythingByTitleAtFirst()
{
    SmallLibrary library;
    QVERIFY(library.engine.getDisplayedBooks().empty());
    library.engine.loadBookKeys();
    QCOMPARE(titles(library.engine.getDisplayedBooks()),
        QStringList({u"apple"_s, u"Banana"_s, u"Cherry"_s}));
    QCOMPARE(library.engine.getAllBooks(), library.engine.getDisplayedBooks());
}

void ListEngineTest::listsAnEmptyDocument()
{
    BookListDocument document;
    ListEngine engine(document);
    engine.loadBookKeys();
    engine.loadBookKeys();
    QVERIFY(engine.getDisplayedBooks().empty());
    QVERIFY(engine.getAllBooks().empty());
    document.addBook(makeBook(u"A"_s));
    engine.loadBookKeys();
    QCOMPARE(titles(engine.getDisplayedBooks()), QStringList{u"A"_s});
}

void ListEngineTest::filtersByGroupAndText()
{
    SmallLibrary library;
    BookFilter& filter = library.engine.filter();
    filter.m_nSelectedGroupKey = 1;
    library.engine.loadBookKeys();
    QCOMPARE(keys(library.engine.getDisplayedBooks()), QStringList{u"1"_s});
    filter.m_nSelectedGroupKey = 0;
    filter.m_nSelectedFilter = -1;
    filter.m_strFilter = u"B"_s;
    library.engine.loadBookKeys();
    QCOMPARE(keys(library.engine.getDisplayedBooks()), QStringList({u"2"_s, u"1"_s}));
    filter.m_nSelectedFilter = 2;
    library.engine.loadBookKeys();
    QCOMPARE(keys(library.engine.getDisplayedBooks()), QStringList{u"2"_s});
    filter.m_nSelectedGroupKey = 1;
    library.engine.loadBookKeys();
    QVERIFY(library.engine.getDisplayedBooks().empty());
    QCOMPARE(library.engine.filter().m_strFilter, u"B"_s);
}

void ListEngineTest::sortsAllBooksAndShowsSome()
{
    SmallLibrary library;
    library.engine.filter().m_nSelectedGroupKey = 1;
    library.engine.loadBookKeys();
    QCOMPARE(keys(library.engine.getAllBooks()), QStringList({u"2"_s, u"1"_s, u"3"_s}));
    QCOMPARE(library.engine.getDisplayedBooks().size(), std::size_t(1));
}

void ListEngineTest::followsTheSortField()
{
    SmallLibrary library;
    library.engine.loadBookKeys();
    library.document.setSortField(1);
    library.engine.loadBookKeys();
    QCOMPARE(keys(library.engine.getDisplayedBooks()), QStringList({u"3"_s, u"1"_s, u"2"_s}));
    library.document.setSortField(2);
    library.engine.loadBookKeys();
    QCOMPARE(keys(library.engine.getDisplayedBooks()), QStringList({u"1"_s, u"2"_s, u"3"_s}));
}

void ListEngineTest::followsEditedBooks()
{
    SmallLibrary library;
    library.engine.filter().m_strFilter = u"berry"_s;
    library.engine.loadBookKeys();
    QVERIFY(library.engine.getDisplayedBooks().empty());
    library.book(u"2").setTitle(u"Strawberry"_s);
    library.engine.loadBookKeys();
    QCOMPARE(keys(library.engine.getDisplayedBooks()), QStringList{u"2"_s});
    QCOMPARE(keys(library.engine.getAllBooks()), QStringList({u"1"_s, u"3"_s, u"2"_s}));
}

void ListEngineTest::followsAssignedBooks()
{
    SmallLibrary library;
    const BookEntry original = library.book(u"2");
    library.book(u"2").setTitle(u"Zebra"_s);
    library.engine.loadBookKeys();
    library.book(u"2") = original;
    library.engine.loadBookKeys();
    QCOMPARE(keys(library.engine.getAllBooks()), QStringList({u"2"_s, u"1"_s, u"3"_s}));
}

void ListEngineTest::followsGroupsOfBooks()
{
    SmallLibrary library;
    library.engine.filter().m_nSelectedGroupKey = 1;
    library.engine.loadBookKeys();
    library.book(u"3").addToGroup(u"1"_s);
    library.engine.loadBookKeys();
    QCOMPARE(keys(library.engine.getDisplayedBooks()), QStringList({u"1"_s, u"3"_s}));
    library.document.removeBookGroupReferences({u"1"_s});
    library.engine.loadBookKeys();
    QVERIFY(library.engine.getDisplayedBooks().empty());
}

void ListEngineTest::followsAddedAndDeletedBooks()
{
    SmallLibrary library;
    library.engine.loadBookKeys();
    library.document.addBook(makeBook(u"Avocado"_s));
    library.engine.loadBookKeys();
    QCOMPARE(
        keys(library.engine.getDisplayedBooks()), QStringList({u"2"_s, u"4"_s, u"1"_s, u"3"_s}));
    library.document.deleteBooks({u"2"_s, u"3"_s});
    library.engine.loadBookKeys();
    QCOMPARE(keys(library.engine.getDisplayedBooks()), QStringList({u"4"_s, u"1"_s}));
    QCOMPARE(keys(library.engine.getAllBooks()), QStringList({u"4"_s, u"1"_s}));
}

void ListEngineTest::hidesEverythingForOtherFilters()
{
    SmallLibrary library;
    for (const qint32 key : {78, 4, 1, -4, 86}) {
        library.engine.filter().m_nSelectedFilter = key;
        library.engine.loadBookKeys();
        QVERIFY(library.engine.getDisplayedBooks().empty());
        QCOMPARE(library.engine.getAllBooks().size(), std::size_t(3));
    }
}

void ListEngineTest::collectsTheValueLists()
{
    BookListDocument document;
    for (const QString& value : {u"pear"_s, u"Apple"_s, u"pear"_s, u""_s, QString()}) {
        auto book = makeBook(u"Book"_s, value);
        book->setLocation(value.isEmpty() ? value : u"at "_s + value);
        book->setPublisher(value.isEmpty() ? value : u"by "_s + value);
        book->setPricePaidFrom(value.isEmpty() ? value : u"from "_s + value);
        document.addBook(std::move(book));
    }
    ListEngine engine(document);
    engine.loadBookKeys();
    QCOMPARE(document.getAuthors(), QStringList({u"Apple"_s, u"pear"_s}));
    QCOMPARE(document.getLocations(), QStringList({u"at Apple"_s, u"at pear"_s}));
    QCOMPARE(document.getPublishers(), QStringList({u"by Apple"_s, u"by pear"_s}));
    QCOMPARE(document.getPricePaidLocations(), QStringList({u"from Apple"_s, u"from pear"_s}));
    QVERIFY(!document.isDocumentEdited());
}

void ListEngineTest::collectsTheValueListsOnlyWhenBooksChanged()
{
    SmallLibrary library;
    library.engine.loadBookKeys();
    library.book(u"1").setAuthor(u"Zoe"_s);
    library.document.setSortField(2);
    library.engine.loadBookKeys();
    QCOMPARE(library.document.getAuthors(), QStringList({u"Ann"_s, u"Bob"_s, u"Cid"_s}));
    library.engine.setBooksChanged();
    QCOMPARE(library.document.getAuthors(), QStringList({u"Ann"_s, u"Bob"_s, u"Cid"_s}));
    library.engine.loadBookKeys();
    QCOMPARE(library.document.getAuthors(), QStringList({u"Bob"_s, u"Cid"_s, u"Zoe"_s}));
    library.document.setAuthors({u"kept"_s});
    library.engine.loadBookKeys();
    QCOMPARE(library.document.getAuthors(), QStringList{u"kept"_s});
}

void ListEngineTest::collectsTheValueListsOfHiddenBooks()
{
    SmallLibrary library;
    library.engine.filter().m_nSelectedFilter = 78;
    library.engine.loadBookKeys();
    QVERIFY(library.engine.getDisplayedBooks().empty());
    QCOMPARE(library.document.getAuthors(), QStringList({u"Ann"_s, u"Bob"_s, u"Cid"_s}));
}

void ListEngineTest::handsOverTheValueListsBeforeTheGroupTest()
{
    SmallLibrary library;
    library.engine.filter().m_nSelectedGroupKey = 1;
    library.engine.loadBookKeys();
    QCOMPARE(library.engine.getDisplayedBooks().size(), std::size_t(1));
    QCOMPARE(library.document.getAuthors(), QStringList({u"Ann"_s, u"Bob"_s, u"Cid"_s}));
    library.engine.filter().m_nSelectedGroupKey = 99;
    library.book(u"2").setAuthor(u"Zoe"_s);
    library.engine.setBooksChanged();
    library.engine.loadBookKeys();
    QVERIFY(library.engine.getDisplayedBooks().empty());
    QCOMPARE(library.document.getAuthors(), QStringList({u"Ann"_s, u"Cid"_s, u"Zoe"_s}));
}

void ListEngineTest::keepsTheValueListsThroughChanges_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 10; ++seed)
        QTest::newRow(QByteArray::number(seed)) << seed;
}

void ListEngineTest::keepsTheValueListsThroughChanges()
{
    QFETCH(const int, seed);
    RandomLibrary random{quint32(seed)};
    BookListDocument document;
    for (int count = 0; count < 12; ++count)
        document.addBook(random.book());
    ListEngine engine(document);
    for (int round = 0; round < 60; ++round) {
        engine.filter().m_nSelectedGroupKey = random.below(4);
        if (random.below(4) == 0)
            engine.loadBookKeys(); // which is not told of the changes
        engine.setBooksChanged();
        engine.loadBookKeys();
        QCOMPARE(sorted(document.getAuthors()), distinct(document, &BookEntry::getAuthor));
        QCOMPARE(sorted(document.getLocations()), distinct(document, &BookEntry::getLocation));
        QCOMPARE(sorted(document.getPublishers()), distinct(document, &BookEntry::getPublisher));
        QCOMPARE(sorted(document.getPricePaidLocations()),
            distinct(document, &BookEntry::getPricePaidFrom));
        random.disturb(document);
        for (BookEntry* const book : document.allValues()) {
            if (random.below(3) == 0)
                book->setAuthor(random.text());
        }
    }
}

void ListEngineTest::agreesWithThePlainRules_data()
{
    QTest::addColumn<qint32>("sortField");
    for (qint32 key = 0; key <= 86; key += 2) {
        QTest::newRow(QByteArray::number(key) + " ascending") << key;
        QTest::newRow(QByteArray::number(key) + " descending") << key + 1;
    }
    QTest::newRow("negative") << -1;
}

void ListEngineTest::agreesWithThePlainRules()
{
    QFETCH(const qint32, sortField);
    RandomLibrary random(quint32(1000 + sortField));
    BookListDocument document;
    for (int count = 0; count < 250; ++count)
        document.addBook(random.book());
    document.setSortField(sortField);
    ListEngine engine(document);
    for (int round = 0; round < 24; ++round) {
        engine.filter() =
            random.filter(random.below(3) == 0 ? sortField : random.below(46) * 2 - 3);
        engine.loadBookKeys();
        const PlainLists plain(document, engine.filter());
        QCOMPARE(keys(engine.getAllBooks()), keys(plain.all));
        QVERIFY(engine.getAllBooks() == plain.all);
        QCOMPARE(keys(engine.getDisplayedBooks()), keys(plain.displayed));
        if (round % 6 == 5) // another column for a while, then this one again
            document.setSortField(round % 12 == 5 ? random.below(88) : sortField);
        if (round % 4 != 3) // and once in a while nothing changes
            random.disturb(document);
    }
}

void ListEngineTest::agreesForEveryFilter_data()
{
    QTest::addColumn<qint32>("key");
    for (qint32 key = -4; key <= 87; ++key)
        QTest::newRow(QByteArray::number(key)) << key;
}

void ListEngineTest::agreesForEveryFilter()
{
    QFETCH(const qint32, key);
    RandomLibrary random(quint32(5000 + key));
    BookListDocument document;
    for (int count = 0; count < 120; ++count)
        document.addBook(random.book());
    ListEngine engine(document);
    for (int round = 0; round < 20; ++round) {
        engine.filter() = random.filter(key);
        engine.loadBookKeys();
        QCOMPARE(keys(engine.getDisplayedBooks()),
            keys(PlainLists(document, engine.filter()).displayed));
        random.disturb(document);
        if (round % 5 == 4)
            document.setSortField(random.below(88));
    }
}

QTEST_GUILESS_MAIN(ListEngineTest)
#include "ListEngineTest.moc"
