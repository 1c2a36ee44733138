#include "listwindow/engine/BookOrder.h"

#include "listwindow/engine/ColumnKind.h"
#include "tests/support/BookSamples.h"

#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

using Change = std::function<void(BookEntry&)>;

/// A book that is changed, of a title and a number that put it behind or in front of others.
BookEntry bookWith(const QString& title, qint32 number, const Change& change)
{
    BookEntry book = *samples::makeBook(title);
    book.setKey(number);
    change(book);
    return book;
}

Change integer(qint32 key, qint32 value)
{
    return [=](BookEntry& book) {
        fieldOfColumn(key)->setInteger(book, value);
    };
}

Change real(qint32 key, double value)
{
    return [=](BookEntry& book) {
        fieldOfColumn(key)->setReal(book, value);
    };
}

Change text(qint32 key, const QString& value)
{
    return [=](BookEntry& book) {
        fieldOfColumn(key)->setText(book, value);
    };
}

Change date(qint32 key, qint32 month, const QString& year)
{
    return [=](BookEntry& book) {
        monthField(key)->setInteger(book, month);
        fieldOfColumn(key)->setText(book, year);
    };
}

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

} // namespace

class BookOrderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void takesSortFieldsApart_data();
    void takesSortFieldsApart();
    void ordersByColumn_data();
    void ordersByColumn();
    void takesAsEqual_data();
    void takesAsEqual();
    void ordersEqualBooksByTitleAscendingAlways_data();
    void ordersEqualBooksByTitleAscendingAlways();
    void ordersEqualTitlesByNumber_data();
    void ordersEqualTitlesByNumber();
    void isAStrictOrder_data();
    void isAStrictOrder();

private:
    void addRow(const char* name, qint32 key, const Change& first, const Change& second);
};

void BookOrderTest::takesSortFieldsApart_data()
{
    QTest::addColumn<qint32>("sortField");
    QTest::addColumn<qint32>("columnKey");
    QTest::addColumn<bool>("descending");
    QTest::newRow("0") << 0 << 0 << false;
    QTest::newRow("1") << 1 << 0 << true;
    QTest::newRow("28") << 28 << 28 << false;
    QTest::newRow("29") << 29 << 28 << true;
    QTest::newRow("-1") << -1 << 0 << true;
    QTest::newRow("-2") << -2 << -2 << false;
    QTest::newRow("-3") << -3 << -2 << true;
    QTest::newRow("smallest") << std::numeric_limits<qint32>::min()
                              << std::numeric_limits<qint32>::min() << false;
}

void BookOrderTest::takesSortFieldsApart()
{
    QFETCH(const qint32, sortField);
    QTEST(SortField::of(sortField).columnKey, "columnKey");
    QTEST(SortField::of(sortField).descending, "descending");
}

void BookOrderTest::addRow(const char* name, qint32 key, const Change& first, const Change& second)
{
    QTest::newRow(qPrintable(u"%1 %2"_s.arg(key).arg(QString::fromUtf8(name))))
        << key << first << second;
}

void BookOrderTest::ordersByColumn_data()
{
    QTest::addColumn<qint32>("key");
    QTest::addColumn<Change>("first"); // in ascending order
    QTest::addColumn<Change>("second");
    for (const qint32 key : {0, 2, 26, 34, 36, 38, 40, 42, 44, 46, 48, 50, 52, 54, 82}) {
        addRow("text", key, text(key, u"apple"_s), text(key, u"Banana"_s));
        addRow("empty text", key, text(key, u""_s), text(key, u"a"_s));
        addRow("shorter text", key, text(key, u"A common beginning"_s),
            text(key, u"a COMMON beginning of"_s));
        addRow("accent", key, text(key, u"Zebra"_s), text(key, u"Éclair"_s));
        addRow("digits", key, text(key, u"10"_s), text(key, u"9"_s));
    }
    for (const qint32 key : {8, 10, 12, 14, 16, 56, 58, 60, 78, 80}) {
        addRow("year", key, date(key, 12, u"1999"_s), date(key, 1, u"2000"_s));
        addRow("month", key, date(key, 2, u"1999"_s), date(key, 10, u"1999"_s));
        addRow("no month", key, date(key, 0, u"1999"_s), date(key, 1, u"1999"_s));
        addRow("no year", key, date(key, 12, u""_s), date(key, 0, u"1"_s));
        addRow("lenient year", key, date(key, 0, u" 1999?"_s), date(key, 0, u"2000 or so"_s));
        addRow("negative year", key, date(key, 5, u"-44"_s), date(key, 5, u""_s));
        addRow("year beyond 32 bits", key, date(key, 1, u"2000"_s), date(key, 0, u"99999999999"_s));
    }
    for (const qint32 key : {18, 20, 22, 24, 62, 64, 66, 68, 70, 72, 74, 76}) {
        addRow(
            "set first", key, [=](BookEntry& book) { fieldOfColumn(key)->setFlag(book, true); },
            [](BookEntry&) {});
    }
    addRow("highest first", 6, integer(6, 5), integer(6, 1));
    addRow("zero behind", 6, integer(6, 1), integer(6, 0));
    addRow("negative last", 6, integer(6, 0), integer(6, -1));
    addRow("pages", 28, integer(28, 9), integer(28, 10));
    addRow("negative pages", 28, integer(28, -1), integer(28, 0));
    for (const qint32 key : {30, 32}) {
        addRow("price", key, real(key, 9.99), real(key, 10));
        addRow("zero", key, real(key, 0), real(key, 0.01));
        addRow("negative", key, real(key, -2), real(key, -1));
        addRow("negative and minus zero", key, real(key, -1), real(key, -0.0));
        addRow("infinite", key, real(key, 1e308), real(key, infinite));
        addRow("negative infinite", key, real(key, -infinite), real(key, -1e308));
        addRow("not a number last", key, real(key, infinite), real(key, notANumber));
    }
    addRow("by name", 84, integer(84, 2), integer(84, 3)); // Audio Book, eBook
    addRow("by name", 84, integer(84, 3), integer(84, 0)); // eBook, Hardcover
    addRow("by name", 84, integer(84, 0), integer(84, 1)); // Hardcover, Paperback
    addRow("no name first", 84, integer(84, 4), integer(84, 2));
    addRow("unknown first", 84, integer(84, -1), integer(84, 2));
}

void BookOrderTest::ordersByColumn()
{
    QFETCH(const qint32, key);
    QFETCH(const Change, first);
    QFETCH(const Change, second);
    // Title and number say the opposite, so that nothing but the column can decide.
    const BookEntry left = bookWith(u"Z"_s, 2, first);
    const BookEntry right = bookWith(u"A"_s, 1, second);
    QVERIFY(standsBefore(left, right, key));
    QVERIFY(!standsBefore(right, left, key));
    QVERIFY(standsBefore(right, left, key + 1));
    QVERIFY(!standsBefore(left, right, key + 1));
}

void BookOrderTest::takesAsEqual_data()
{
    QTest::addColumn<qint32>("key");
    QTest::addColumn<Change>("first");
    QTest::addColumn<Change>("second");
    addRow("case", 2, text(2, u"ANN"_s), text(2, u"ann"_s));
    addRow("absent and empty", 34, text(34, QString()), text(34, u""_s));
    addRow("zeroes", 30, real(30, 0.0), real(30, -0.0));
    addRow("not numbers", 32, real(32, notANumber), real(32, -notANumber));
    addRow("year with more", 10, date(10, 0, u"1999"_s), date(10, 0, u"1999 (about)"_s));
    addRow("no years", 10, date(10, 3, u""_s), date(10, 3, u"unknown"_s));
    addRow("types without a name", 84, integer(84, 4), integer(84, -1));
    addRow("row number", 4, integer(28, 1), integer(28, 2));
    addRow("a key that no column has", 86, integer(28, 1), integer(28, 2));
}

void BookOrderTest::takesAsEqual()
{
    QFETCH(const qint32, key);
    QFETCH(const Change, first);
    QFETCH(const Change, second);
    const BookEntry left = bookWith(u"a"_s, 2, first);
    const BookEntry right = bookWith(u"B"_s, 1, second);
    for (const qint32 sortField : {key, key + 1}) {
        QVERIFY(standsBefore(left, right, sortField));
        QVERIFY(!standsBefore(right, left, sortField));
    }
}

void BookOrderTest::ordersEqualBooksByTitleAscendingAlways_data()
{
    QTest::addColumn<qint32>("key");
    for (qint32 key = 2; key <= 86; key += 2)
        QTest::newRow(QByteArray::number(key)) << key;
}

void BookOrderTest::ordersEqualBooksByTitleAscendingAlways()
{
    QFETCH(const qint32, key);
    const BookEntry left = bookWith(u"apple"_s, 2, [](BookEntry&) {});
    const BookEntry right = bookWith(u"BANANA"_s, 1, [](BookEntry&) {});
    for (const qint32 sortField : {key, key + 1}) {
        QVERIFY(standsBefore(left, right, sortField));
        QVERIFY(!standsBefore(right, left, sortField));
    }
}

void BookOrderTest::ordersEqualTitlesByNumber_data()
{
    QTest::addColumn<qint32>("key");
    for (qint32 key = 0; key <= 86; key += 2)
        QTest::newRow(QByteArray::number(key)) << key;
}

void BookOrderTest::ordersEqualTitlesByNumber()
{
    QFETCH(const qint32, key);
    const BookEntry left = bookWith(u"Same"_s, 9, [](BookEntry&) {});
    const BookEntry right = bookWith(u"SAME"_s, 10, [](BookEntry&) {});
    for (const qint32 sortField : {key, key + 1}) {
        QVERIFY(standsBefore(left, right, sortField));
        QVERIFY(!standsBefore(right, left, sortField));
        QVERIFY(!standsBefore(left, left, sortField));
    }
}

void BookOrderTest::isAStrictOrder_data()
{
    QTest::addColumn<qint32>("sortField");
    for (qint32 sortField = 30; sortField <= 33; ++sortField)
        QTest::newRow(QByteArray::number(sortField)) << sortField;
}

void BookOrderTest::isAStrictOrder()
{
    QFETCH(const qint32, sortField);
    std::vector<BookEntry> books;
    for (const double price :
        {0.0, -0.0, notANumber, 1.0, -1.0, infinite, -infinite, -notANumber}) {
        BookEntry book = bookWith(u"Same"_s, qint32(books.size() + 1), real(30, price));
        book.setEstValue(price);
        books.push_back(book);
    }
    std::ranges::sort(books, [sortField](const BookEntry& left, const BookEntry& right) {
        return standsBefore(left, right, sortField);
    });
    for (std::size_t left = 0; left < books.size(); ++left) {
        for (std::size_t right = 0; right < books.size(); ++right)
            QCOMPARE(standsBefore(books[left], books[right], sortField), left < right);
    }
}

QTEST_GUILESS_MAIN(BookOrderTest)
#include "BookOrderTest.moc"
