#include "listwindow/engine/BookFilter.h"

#include "tests/support/BookSamples.h"

#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QList<qint32> textKeys{0, 2, 26, 34, 36, 38, 40, 42, 44, 46, 48, 50, 52, 54, 82};
const QList<qint32> dateKeys{8, 10, 12, 14, 16, 56, 58, 60, 80};
const QList<qint32> flagKeys{18, 20, 22, 24, 62, 64, 66, 68, 70, 72, 74, 76};

BookFilter filterBy(qint32 key)
{
    BookFilter filter;
    filter.m_nSelectedFilter = key;
    return filter;
}

struct NamedDate {
    char name;
    qint32 month;
    const char* year;
};

// Every combination of a missing, smaller, equal and larger month and year, seen from 6/2001.
constexpr std::array dates =
    std::to_array<NamedDate>({{'A', 0, ""}, {'B', 3, ""}, {'C', 6, ""}, {'D', 9, ""},
        {'E', 0, "2000"}, {'F', 0, "2001"}, {'G', 0, "2002"}, {'H', 6, "2000"}, {'I', 3, "2001"},
        {'J', 6, "2001"}, {'K', 9, "2001"}, {'L', 6, "2002"}, {'M', 9, "2000"}, {'N', 3, "2002"}});
constexpr auto allDates = "ABCDEFGHIJKLMN";

/// The names of the dates that pass, or what is wrong when the date columns do not agree.
QString passing(BookFilter filter)
{
    QString names;
    for (const NamedDate& date : dates) {
        int passed = 0;
        for (const qint32 key : dateKeys) {
            BookEntry book;
            monthField(key)->setInteger(book, date.month);
            fieldOfColumn(key)->setText(book, QString::fromLatin1(date.year));
            filter.m_nSelectedFilter = key;
            passed += filter.passesFilter(book) ? 1 : 0;
        }
        if (passed != 0 && passed != dateKeys.size())
            return u"the date columns differ"_s;
        if (passed != 0)
            names += QLatin1Char(date.name);
    }
    return names;
}

struct NamedNumber {
    char name;
    double value;
};

constexpr std::array numbers = std::to_array<NamedNumber>({{'A', 0.0}, {'B', -0.0}, {'C', -1.0},
    {'D', 4.99}, {'E', 5.0}, {'F', 5.01}, {'G', std::numeric_limits<double>::quiet_NaN()},
    {'H', std::numeric_limits<double>::infinity()}});

} // namespace

class BookFilterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsEverythingAtFirst();
    void findsTextsInTheirColumnAlone_data();
    void findsTextsInTheirColumnAlone();
    void passesEveryTextWithoutASearchText();
    void findsTextsIgnoringCaseAndNothingElse_data();
    void findsTextsIgnoringCaseAndNothingElse();
    void findsAuthorOrTitle();
    void testsFlags_data();
    void testsFlags();
    void testsImages_data();
    void testsImages();
    void testsGroups_data();
    void testsGroups();
    void testsRatingAndType_data();
    void testsRatingAndType();
    void testsNumbers_data();
    void testsNumbers();
    void testsPages_data();
    void testsPages();
    void testsNoNumberWithoutAValue();
    void testsDates_data();
    void testsDates();
    void substitutesTheMonthAtTheEdges_data();
    void substitutesTheMonthAtTheEdges();
    void readsYearsLeniently_data();
    void readsYearsLeniently();
    void hidesEveryBookForOtherKeys_data();
    void hidesEveryBookForOtherKeys();
    void testsTheGroupToo();
    void tellsTextFilters();
};

void BookFilterTest::showsEverythingAtFirst()
{
    BookFilter filter;
    QCOMPARE(filter.m_nSelectedGroupKey, 0);
    QCOMPARE(filter.m_nSelectedFilter, 0);
    QVERIFY(filter.m_strFilter.isEmpty());
    QVERIFY(!filter.m_bFilter_NumericHasValue);
    QVERIFY(filter.passes(BookEntry()));
    QVERIFY(filter.passes(samples::fullBook()));
    filter.m_nSelectedFilter = -1;
    QVERIFY(filter.passes(BookEntry()));
    QVERIFY(filter.passes(samples::fullBook()));
}

void BookFilterTest::findsTextsInTheirColumnAlone_data()
{
    QTest::addColumn<qint32>("key");
    for (const qint32 key : textKeys)
        QTest::newRow(QByteArray::number(key)) << key;
}

void BookFilterTest::findsTextsInTheirColumnAlone()
{
    QFETCH(const qint32, key);
    BookFilter filter = filterBy(key);
    filter.m_strFilter = u"eedl"_s;
    BookEntry only;
    fieldOfColumn(key)->setText(only, u"Needle"_s);
    QVERIFY(filter.passes(only));
    BookEntry others;
    for (const qint32 other : textKeys) {
        if (other != key)
            fieldOfColumn(other)->setText(others, u"Needle"_s);
    }
    QVERIFY(!filter.passes(others));
    QVERIFY(!filter.passes(BookEntry()));
}

void BookFilterTest::passesEveryTextWithoutASearchText()
{
    for (const qint32 key : textKeys) {
        BookFilter filter = filterBy(key);
        QVERIFY(filter.passes(BookEntry()));
        filter.m_strFilter = u""_s;
        QVERIFY(filter.passes(samples::fullBook()));
    }
}

void BookFilterTest::findsTextsIgnoringCaseAndNothingElse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<bool>("found");
    QTest::newRow("case") << u"The HOBBIT"_s << u"hobbit"_s << true;
    QTest::newRow("case of accents") << u"École"_s << u"éCOLE"_s << true;
    QTest::newRow("no accents dropped") << u"École"_s << u"ecole"_s << false;
    QTest::newRow("words in another order") << u"The Hobbit"_s << u"hobbit the"_s << false;
    QTest::newRow("inside a word") << u"The Hobbit"_s << u"obb"_s << true;
    QTest::newRow("a blank") << u"The Hobbit"_s << u" "_s << true;
    QTest::newRow("blanks are not trimmed") << u"Hobbit"_s << u" hobbit"_s << false;
    QTest::newRow("sharp s") << u"Straße"_s << u"STRASSE"_s << false;
}

void BookFilterTest::findsTextsIgnoringCaseAndNothingElse()
{
    QFETCH(const QString, text);
    QFETCH(const QString, wanted);
    BookFilter filter = filterBy(ColumnKey::Title);
    filter.m_strFilter = wanted;
    QTEST(filter.passes(*samples::makeBook(text)), "found");
}

void BookFilterTest::findsAuthorOrTitle()
{
    BookFilter filter = filterBy(ColumnKey::AuthorAndTitle);
    filter.m_strFilter = u"king"_s;
    QVERIFY(filter.passes(*samples::makeBook(u"It"_s, u"Stephen King"_s)));
    QVERIFY(filter.passes(*samples::makeBook(u"The Once and Future King"_s, u"T. H. White"_s)));
    QVERIFY(!filter.passes(*samples::makeBook(u"Dune"_s, u"Frank Herbert"_s)));
    QVERIFY(!filter.passes(*samples::makeBook(u"ng"_s, u"ki"_s)));
    QVERIFY(!filter.passes(*samples::makeBook(u"ki"_s, u"ng"_s)));
}

void BookFilterTest::testsFlags_data()
{
    QTest::addColumn<qint32>("key");
    QTest::addColumn<qint32>("selection");
    QTest::addColumn<bool>("passesSet");
    QTest::addColumn<bool>("passesUnset");
    for (const qint32 key : flagKeys) {
        const QByteArray name = QByteArray::number(key);
        QTest::newRow(name + " all") << key << 0 << true << true;
        QTest::newRow(name + " only set") << key << 1 << true << false;
        QTest::newRow(name + " only unset") << key << 2 << false << true;
        QTest::newRow(name + " another") << key << 3 << false << false;
        QTest::newRow(name + " below") << key << -1 << false << false;
    }
}

void BookFilterTest::testsFlags()
{
    QFETCH(const qint32, key);
    QFETCH(const qint32, selection);
    BookFilter filter = filterBy(key);
    filter.m_nFilterSelectionForChecks = TriState(selection);
    filter.m_nFilterSelectionForImages = TriState(7);
    filter.m_nFilterSelectionForGroup = TriState(7);
    BookEntry set;
    fieldOfColumn(key)->setFlag(set, true);
    BookEntry others;
    for (const qint32 other : flagKeys)
        fieldOfColumn(other)->setFlag(others, other != key);
    QTEST(filter.passes(set), "passesSet");
    QTEST(filter.passes(BookEntry()), "passesUnset");
    QTEST(filter.passes(others), "passesUnset");
}

void BookFilterTest::testsImages_data()
{
    QTest::addColumn<qint32>("selection");
    QTest::addColumn<bool>("passesSet");
    QTest::addColumn<bool>("passesUnset");
    QTest::newRow("all") << 0 << true << true;
    QTest::newRow("only set") << 1 << true << false;
    QTest::newRow("only unset") << 2 << false << true;
    QTest::newRow("another") << 3 << false << false;
}

void BookFilterTest::testsImages()
{
    QFETCH(const qint32, selection);
    BookFilter filter = filterBy(ColumnKey::Images);
    filter.m_nFilterSelectionForImages = TriState(selection);
    filter.m_nFilterSelectionForChecks = TriState(7);
    filter.m_nFilterSelectionForGroup = TriState(7);
    BookEntry book;
    QTEST(filter.passes(book), "passesUnset");
    book.setImageData(5, "x");
    QTEST(filter.passes(book), "passesSet");
}

void BookFilterTest::testsGroups_data()
{
    testsImages_data();
}

void BookFilterTest::testsGroups()
{
    QFETCH(const qint32, selection);
    BookFilter filter = filterBy(ColumnKey::Groups);
    filter.m_nFilterSelectionForGroup = TriState(selection);
    filter.m_nFilterSelectionForChecks = TriState(7);
    filter.m_nFilterSelectionForImages = TriState(7);
    BookEntry book;
    QTEST(filter.passes(book), "passesUnset");
    book.addToGroup(u"5"_s);
    QTEST(filter.passes(book), "passesSet");
}

void BookFilterTest::testsRatingAndType_data()
{
    QTest::addColumn<qint32>("key");
    QTest::newRow("rating") << 6;
    QTest::newRow("type") << 84;
}

void BookFilterTest::testsRatingAndType()
{
    QFETCH(const qint32, key);
    const bool isRating = key == 6;
    for (const qint32 wanted : {0, 1, 4, 5, -1}) {
        BookFilter filter = filterBy(key);
        filter.m_nFilterSelectionForBookRating = isRating ? wanted : wanted + 1;
        filter.m_nFilterSelectionForBookType = isRating ? wanted + 1 : wanted;
        for (const qint32 value : {0, 1, 2, 3, 4, 5, -1}) {
            BookEntry book;
            fieldOfColumn(key)->setInteger(book, value);
            QCOMPARE(filter.passes(book), value == wanted);
        }
    }
}

void BookFilterTest::testsNumbers_data()
{
    QTest::addColumn<qint32>("test");
    QTest::addColumn<double>("wanted");
    QTest::addColumn<QString>("passing");
    QTest::newRow("= 5") << 0 << 5.0 << u"E"_s;
    QTest::newRow("≠ 5") << 1 << 5.0 << u"ABCDFGH"_s;
    QTest::newRow("< 5") << 2 << 5.0 << u"CD"_s;
    QTest::newRow("> 5") << 3 << 5.0 << u"FH"_s;
    QTest::newRow("another") << 4 << 5.0 << u""_s;
    QTest::newRow("below") << -1 << 5.0 << u""_s;
    QTest::newRow("= 0") << 0 << 0.0 << u"AB"_s;
    QTest::newRow("≠ 0") << 1 << 0.0 << u"CDEFGH"_s;
    QTest::newRow("< 0") << 2 << 0.0 << u"C"_s;
    QTest::newRow("> 0") << 3 << 0.0 << u"DEFH"_s;
    QTest::newRow("> -1") << 3 << -1.0 << u"ABDEFH"_s;
}

void BookFilterTest::testsNumbers()
{
    QFETCH(const qint32, test);
    QFETCH(const double, wanted);
    for (const qint32 key : {30, 32}) {
        BookFilter filter = filterBy(key);
        filter.m_nFilterSelectionForNumeric = NumberTest(test);
        filter.m_dblFilter_Numeric = wanted;
        filter.m_bFilter_NumericHasValue = true;
        QString passing;
        for (const NamedNumber& number : numbers) {
            BookEntry book;
            fieldOfColumn(key)->setReal(book, number.value);
            if (filter.passes(book))
                passing += QLatin1Char(number.name);
        }
        QTEST(passing, "passing");
    }
}

void BookFilterTest::testsPages_data()
{
    QTest::addColumn<qint32>("test");
    QTest::addColumn<double>("wanted");
    QTest::addColumn<QList<qint32>>("passing");
    QTest::newRow("=") << 0 << 300.0 << QList<qint32>{300};
    QTest::newRow("≠") << 1 << 300.0 << QList<qint32>{0, -1, 299, 301};
    QTest::newRow("<") << 2 << 300.0 << QList<qint32>{-1, 299};
    QTest::newRow(">") << 3 << 300.0 << QList<qint32>{301};
    QTest::newRow("> with a fraction") << 3 << 299.5 << QList<qint32>{300, 301};
    QTest::newRow("= with a fraction") << 0 << 300.5 << QList<qint32>{};
}

void BookFilterTest::testsPages()
{
    QFETCH(const qint32, test);
    QFETCH(const double, wanted);
    BookFilter filter = filterBy(28);
    filter.m_nFilterSelectionForNumeric = NumberTest(test);
    filter.m_dblFilter_Numeric = wanted;
    filter.m_bFilter_NumericHasValue = true;
    QList<qint32> passing;
    for (const qint32 pages : {0, -1, 299, 300, 301}) {
        BookEntry book;
        book.setPages(pages);
        if (filter.passes(book))
            passing.append(pages);
    }
    QTEST(passing, "passing");
}

void BookFilterTest::testsNoNumberWithoutAValue()
{
    for (const qint32 key : {28, 30, 32}) {
        for (const qint32 test : {0, 1, 2, 3, 4}) {
            BookFilter filter = filterBy(key);
            filter.m_nFilterSelectionForNumeric = NumberTest(test);
            filter.m_dblFilter_Numeric = 5;
            QVERIFY(filter.passes(BookEntry()));
            QVERIFY(filter.passes(samples::fullBook()));
        }
    }
}

void BookFilterTest::testsDates_data()
{
    QTest::addColumn<qint32>("month");
    QTest::addColumn<qint32>("year");
    QTest::addColumn<qint32>("test");
    QTest::addColumn<QString>("passing");
    for (const qint32 test : {0, 1, 2, 3, 4, 5, 6, -1})
        QTest::newRow("nothing asked, test " + QByteArray::number(test))
            << 0 << 0 << test << QString::fromLatin1(allDates);
    QTest::newRow("year =") << 0 << 2001 << 0 << u"FIJK"_s;
    QTest::newRow("year ≠") << 0 << 2001 << 1 << u"ABCDEGHLMN"_s;
    QTest::newRow("year <") << 0 << 2001 << 2 << u"EHM"_s;
    QTest::newRow("year >") << 0 << 2001 << 3 << u"GLN"_s;
    QTest::newRow("year ≤") << 0 << 2001 << 4 << u"EFHIJKM"_s;
    QTest::newRow("year ≥") << 0 << 2001 << 5 << u"FGIJKLN"_s;
    QTest::newRow("year, another") << 0 << 2001 << 6 << u""_s;
    QTest::newRow("month =") << 6 << 0 << 0 << u"CHJL"_s;
    QTest::newRow("month ≠") << 6 << 0 << 1 << u"ABDEFGIKMN"_s;
    QTest::newRow("month <") << 6 << 0 << 2 << u"BIN"_s;
    QTest::newRow("month >") << 6 << 0 << 3 << u"DKM"_s;
    QTest::newRow("month ≤") << 6 << 0 << 4 << u"BCHIJLN"_s;
    QTest::newRow("month ≥") << 6 << 0 << 5 << u"CDHJKLM"_s;
    QTest::newRow("month, another") << 6 << 0 << -1 << u""_s;
    QTest::newRow("both =") << 6 << 2001 << 0 << u"J"_s;
    QTest::newRow("both ≠") << 6 << 2001 << 1 << u"ABCDEGHIKLMN"_s;
    QTest::newRow("both <") << 6 << 2001 << 2 << u"EFHIM"_s;
    QTest::newRow("both >") << 6 << 2001 << 3 << u"FGKLN"_s;
    QTest::newRow("both ≤") << 6 << 2001 << 4 << u"EFHIJM"_s;
    QTest::newRow("both ≥") << 6 << 2001 << 5 << u"FGJKLN"_s;
    QTest::newRow("both, another") << 6 << 2001 << 6 << u""_s;
}

void BookFilterTest::testsDates()
{
    QFETCH(const qint32, month);
    QFETCH(const qint32, year);
    QFETCH(const qint32, test);
    BookFilter filter;
    filter.m_nFilter_DateMonth = month;
    filter.m_nFilter_DateYear = year;
    filter.m_nFilterSelectionForDate = DateTest(test);
    QTEST(passing(filter), "passing");
}

void BookFilterTest::substitutesTheMonthAtTheEdges_data()
{
    QTest::addColumn<qint32>("month");
    QTest::addColumn<qint32>("test");
    QTest::addColumn<bool>("passes");
    QTest::newRow("before January") << 1 << 2 << false;
    QTest::newRow("before February") << 2 << 2 << true;
    QTest::newRow("after December") << 12 << 3 << false;
    QTest::newRow("after November") << 11 << 3 << true;
    QTest::newRow("on or before January") << 1 << 4 << true;
    QTest::newRow("on or after December") << 12 << 5 << true;
    QTest::newRow("equal") << 1 << 0 << false;
    QTest::newRow("not equal") << 12 << 1 << false;
}

void BookFilterTest::substitutesTheMonthAtTheEdges()
{
    QFETCH(const qint32, month);
    QFETCH(const qint32, test);
    BookFilter filter = filterBy(10);
    filter.m_nFilter_DateMonth = month;
    filter.m_nFilter_DateYear = 2001;
    filter.m_nFilterSelectionForDate = DateTest(test);
    QTEST(filter.checkDateWithYear(2001, 0), "passes");
}

void BookFilterTest::readsYearsLeniently_data()
{
    QTest::addColumn<QString>("year");
    QTest::addColumn<bool>("passes");
    QTest::newRow("plain") << u"1999"_s << true;
    QTest::newRow("followed by more") << u"1999?"_s << true;
    QTest::newRow("blanks in front") << u"  1999"_s << true;
    QTest::newRow("behind a word") << u"about 1999"_s << false;
    QTest::newRow("no digits") << u"unknown"_s << false;
}

void BookFilterTest::readsYearsLeniently()
{
    QFETCH(const QString, year);
    BookFilter filter = filterBy(10);
    filter.m_nFilter_DateYear = 1999;
    BookEntry book;
    book.setYearPublished(year);
    QTEST(filter.passes(book), "passes");
}

void BookFilterTest::hidesEveryBookForOtherKeys_data()
{
    QTest::addColumn<qint32>("key");
    for (const qint32 key : {78, 4, 1, 3, 7, 41, 77, 79, 83, 85, 86, 100, -4, -5,
             std::numeric_limits<qint32>::max(), std::numeric_limits<qint32>::min()})
        QTest::newRow(QByteArray::number(key)) << key;
}

void BookFilterTest::hidesEveryBookForOtherKeys()
{
    QFETCH(const qint32, key);
    for (const qint32 month : {0, 6}) {
        BookFilter filter = filterBy(key);
        filter.m_nFilter_DateMonth = month;
        filter.m_nFilterSelectionForDate = DateTest::NotEqual;
        QVERIFY(!filter.passes(BookEntry()));
        QVERIFY(!filter.passes(samples::fullBook()));
    }
}

void BookFilterTest::testsTheGroupToo()
{
    BookEntry book = *samples::makeBook(u"Dune"_s);
    book.addToGroup(u"5"_s);
    BookFilter filter = filterBy(ColumnKey::Title);
    filter.m_strFilter = u"dune"_s;
    filter.m_nSelectedGroupKey = 5;
    QVERIFY(filter.passes(book));
    filter.m_nSelectedGroupKey = 6;
    QVERIFY(!filter.passes(book));
    QVERIFY(filter.passesFilter(book));
    filter.m_nSelectedGroupKey = 5;
    filter.m_strFilter = u"other"_s;
    QVERIFY(!filter.passes(book));
}

void BookFilterTest::tellsTextFilters()
{
    for (qint32 key = -4; key <= 90; ++key)
        QCOMPARE(filterBy(key).isTextFilter(), key == -1 || textKeys.contains(key));
}

QTEST_GUILESS_MAIN(BookFilterTest)
#include "BookFilterTest.moc"
