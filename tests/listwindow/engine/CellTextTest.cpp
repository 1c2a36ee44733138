#include "listwindow/engine/CellText.h"

#include "listwindow/engine/ColumnKind.h"
#include "model/MonthNames.h"
#include "tests/support/BookSamples.h"

#include <QLocale>
#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

class CellTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsTexts_data();
    void showsTexts();
    void numbersRows();
    void showsIntegers_data();
    void showsIntegers();
    void showsPrices_data();
    void showsPrices();
    void showsPricesAlikeInEveryLocale();
    void showsFlags_data();
    void showsFlags();
    void showsDates_data();
    void showsDates();
    void namesMonths();
    void joinsMonthAndYear_data();
    void joinsMonthAndYear();
    void showsTypes_data();
    void showsTypes();
    void showsNothingForOtherKeys_data();
    void showsNothingForOtherKeys();
    void showsANewBook();
};

void CellTextTest::showsTexts_data()
{
    QTest::addColumn<qint32>("key");
    for (const qint32 key : {0, 2, 26, 34, 36, 38, 40, 42, 44, 46, 48, 50, 52, 54, 82})
        QTest::newRow(QByteArray::number(key)) << key;
}

void CellTextTest::showsTexts()
{
    QFETCH(const qint32, key);
    BookEntry book = samples::fullBook();
    const QString stored = u"  as\nstored "_s;
    fieldOfColumn(key)->storeText(book, stored);
    QCOMPARE(cellText(book, key, 0), stored);
    fieldOfColumn(key)->storeText(book, QString());
    QCOMPARE(cellText(book, key, 0), u""_s);
}

void CellTextTest::numbersRows()
{
    QCOMPARE(cellText(BookEntry(), 4, 0), u"1"_s);
    QCOMPARE(cellText(BookEntry(), 4, 11), u"12"_s);
    QCOMPARE(cellText(BookEntry(), 4, 99999), u"100000"_s);
}

void CellTextTest::showsIntegers_data()
{
    QTest::addColumn<qint32>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0 << u""_s;
    QTest::newRow("one") << 1 << u"1"_s;
    QTest::newRow("thousands") << 1234 << u"1234"_s;
    QTest::newRow("negative") << -1 << u"-1"_s;
    QTest::newRow("smallest") << std::numeric_limits<qint32>::min() << u"-2147483648"_s;
}

void CellTextTest::showsIntegers()
{
    QFETCH(const qint32, value);
    BookEntry book;
    book.setPages(value);
    QTEST(cellText(book, 28, 5), "text");
    QCOMPARE(cellText(book, 6, 5), u""_s);
    book.setPages(0);
    book.setRating(value);
    QTEST(cellText(book, 6, 5), "text");
    QCOMPARE(cellText(book, 28, 5), u""_s);
}

void CellTextTest::showsPrices_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << u""_s;
    QTest::newRow("minus zero") << -0.0 << u""_s;
    QTest::newRow("whole") << 3.0 << u"3.00"_s;
    QTest::newRow("cents") << 12.5 << u"12.50"_s;
    QTest::newRow("no grouping") << 1234567.89 << u"1234567.89"_s;
    QTest::newRow("negative") << -1.5 << u"-1.50"_s;
    QTest::newRow("rounded down") << 1.994 << u"1.99"_s;
    QTest::newRow("rounded up") << 1.996 << u"2.00"_s;
    QTest::newRow("not quite a tie") << 1.005 << u"1.00"_s;
    QTest::newRow("tie to even below") << 0.125 << u"0.12"_s;
    QTest::newRow("tie to even above") << 0.375 << u"0.38"_s;
    QTest::newRow("large tie") << 12345.125 << u"12345.12"_s;
    QTest::newRow("less than a cent") << 0.001 << u"0.00"_s;
    QTest::newRow("large") << 1e15 << u"1000000000000000.00"_s;
    QTest::newRow("largest") << std::numeric_limits<double>::lowest()
                             << QString::number(std::numeric_limits<double>::lowest(), 'f', 2);
}

void CellTextTest::showsPrices()
{
    QFETCH(const double, value);
    BookEntry book;
    book.setPricePaid(value);
    QTEST(cellText(book, 30, 0), "text");
    QCOMPARE(cellText(book, 32, 0), u""_s);
    book.setPricePaid(0);
    book.setEstValue(value);
    QTEST(cellText(book, 32, 0), "text");
    QCOMPARE(cellText(book, 30, 0), u""_s);
}

void CellTextTest::showsPricesAlikeInEveryLocale()
{
    BookEntry book;
    book.setPricePaid(1234.5);
    book.setPages(1234);
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QStringList texts{cellText(book, 30, 0), cellText(book, 28, 0), cellText(book, 4, 1233)};
    QLocale::setDefault(before);
    QCOMPARE(texts, QStringList({u"1234.50"_s, u"1234"_s, u"1234"_s}));
}

void CellTextTest::showsFlags_data()
{
    QTest::addColumn<qint32>("key");
    for (const qint32 key : {18, 20, 22, 24, 62, 64, 66, 68, 70, 72, 74, 76})
        QTest::newRow(QByteArray::number(key)) << key;
}

void CellTextTest::showsFlags()
{
    QFETCH(const qint32, key);
    BookEntry book;
    QCOMPARE(cellText(book, key, 0), u" "_s);
    fieldOfColumn(key)->setFlag(book, true);
    QCOMPARE(cellText(book, key, 0), u"X"_s);
}

void CellTextTest::showsDates_data()
{
    QTest::addColumn<qint32>("key");
    for (const qint32 key : {8, 10, 12, 14, 16, 56, 58, 60, 78, 80})
        QTest::newRow(QByteArray::number(key)) << key;
}

void CellTextTest::showsDates()
{
    QFETCH(const qint32, key);
    BookEntry book;
    QCOMPARE(cellText(book, key, 0), u""_s);
    monthField(key)->setInteger(book, 6);
    QCOMPARE(cellText(book, key, 0), u"June"_s);
    fieldOfColumn(key)->setText(book, u"2001"_s);
    QCOMPARE(cellText(book, key, 0), u"June, 2001"_s);
    monthField(key)->setInteger(book, 0);
    QCOMPARE(cellText(book, key, 0), u"2001"_s);
}

void CellTextTest::namesMonths()
{
    QStringList names;
    for (qint32 month = -1; month <= 14; ++month)
        names.append(monthName(month));
    QCOMPARE(names,
        QStringList({u""_s, u""_s, u"January"_s, u"February"_s, u"March"_s, u"April"_s, u"May"_s,
            u"June"_s, u"July"_s, u"August"_s, u"September"_s, u"October"_s, u"November"_s,
            u"December"_s, u""_s, u""_s}));
}

void CellTextTest::joinsMonthAndYear_data()
{
    QTest::addColumn<qint32>("month");
    QTest::addColumn<QString>("year");
    QTest::addColumn<QString>("text");
    QTest::newRow("year alone") << 0 << u"1999"_s << u"1999"_s;
    QTest::newRow("month alone") << 7 << u""_s << u"July"_s;
    QTest::newRow("both") << 7 << u"1999"_s << u"July, 1999"_s;
    QTest::newRow("neither") << 0 << u""_s << u""_s;
    QTest::newRow("absent year") << 7 << QString() << u"July"_s;
    QTest::newRow("year as typed") << 7 << u" c. 1999 "_s << u"July,  c. 1999 "_s;
    QTest::newRow("negative month") << -3 << u"1999"_s << u"1999"_s;
    QTest::newRow("month above 12") << 13 << u"1999"_s << u", 1999"_s;
    QTest::newRow("month above 12 alone") << 13 << u""_s << u""_s;
}

void CellTextTest::joinsMonthAndYear()
{
    QFETCH(const qint32, month);
    QFETCH(const QString, year);
    QTEST(monthYearText(month, year), "text");
}

void CellTextTest::showsTypes_data()
{
    QTest::addColumn<qint32>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << 0 << u"Hardcover"_s;
    QTest::newRow("1") << 1 << u"Paperback"_s;
    QTest::newRow("2") << 2 << u"Audio Book"_s;
    QTest::newRow("3") << 3 << u"eBook"_s;
    QTest::newRow("4") << 4 << u""_s;
    QTest::newRow("-1") << -1 << u""_s;
}

void CellTextTest::showsTypes()
{
    QFETCH(const qint32, type);
    BookEntry book;
    book.setType(type);
    QTEST(cellText(book, 84, 0), "text");
}

void CellTextTest::showsNothingForOtherKeys_data()
{
    QTest::addColumn<qint32>("key");
    for (const qint32 key : {-3, -2, -1, 1, 3, 5, 77, 79, 85, 86, 200,
             std::numeric_limits<qint32>::max(), std::numeric_limits<qint32>::min()})
        QTest::newRow(QByteArray::number(key)) << key;
}

void CellTextTest::showsNothingForOtherKeys()
{
    QFETCH(const qint32, key);
    QCOMPARE(cellText(samples::fullBook(), key, 7), u""_s);
}

void CellTextTest::showsANewBook()
{
    const BookEntry book;
    for (qint32 key = 6; key <= 82; key += 2) {
        const bool isFlag = columnKind(key) == ColumnKind::Flag;
        QCOMPARE(cellText(book, key, 0), isFlag ? u" "_s : u""_s);
    }
    QCOMPARE(cellText(book, 84, 0), u"Hardcover"_s);
}

QTEST_GUILESS_MAIN(CellTextTest)
#include "CellTextTest.moc"
