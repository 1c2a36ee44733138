#include "listwindow/engine/FilterInput.h"

#include "listwindow/engine/BookFilter.h"

#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

class FilterInputTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsNumbers_data();
    void readsNumbers();
    void readsNumbersOfALocale_data();
    void readsNumbersOfALocale();
    void keepsTheNumberThatItCannotReplace_data();
    void keepsTheNumberThatItCannotReplace();
    void forgetsTheNumberOfAnEmptyField_data();
    void forgetsTheNumberOfAnEmptyField();
    void readsYears_data();
    void readsYears();
    void takesTextsOfAnyLength();
};

void FilterInputTest::readsNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");
    QTest::newRow("integer") << u"12"_s << 12.0;
    QTest::newRow("zero") << u"0"_s << 0.0;
    QTest::newRow("decimal") << u"12.5"_s << 12.5;
    QTest::newRow("letters behind") << u"12abc"_s << 12.0;
    QTest::newRow("letters between") << u"1a2"_s << 12.0;
    QTest::newRow("minus") << u"-5"_s << 5.0;
    QTest::newRow("exponent") << u"1e5"_s << 15.0;
    QTest::newRow("currency and spaces") << u" $ 4.99 "_s << 4.99;
    QTest::newRow("thousands") << u"1,234.5"_s << 1234.5;
    QTest::newRow("comma out of place") << u"1,5"_s << 1.0;
    QTest::newRow("two points") << u"12.5.7"_s << 12.5;
    QTest::newRow("point behind") << u"12."_s << 12.0;
    QTest::newRow("point in front") << u".5"_s << 0.5;
    QTest::newRow("digits of other scripts") << u"\u0661\uFF127"_s << 7.0;
}

void FilterInputTest::readsNumbers()
{
    QFETCH(const QString, text);
    QFETCH(const double, number);
    BookFilter filter;
    filter.m_dblFilter_Numeric = 99;
    setFilterNumber(filter, text, QLocale::c());
    QVERIFY(filter.m_bFilter_NumericHasValue);
    QCOMPARE(filter.m_dblFilter_Numeric, number);
}

void FilterInputTest::readsNumbersOfALocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");
    QTest::newRow("German comma") << u"de_DE"_s << u"1,5"_s << 1.5;
    QTest::newRow("German thousands") << u"de_DE"_s << u"1.234,5"_s << 1234.5;
    QTest::newRow("German point") << u"de_DE"_s << u"1.5"_s << 1.5;
    QTest::newRow("two German commas") << u"de_DE"_s << u"1,5,7"_s << 1.5;
    QTest::newRow("French thousands") << u"fr_FR"_s << u"1\u202F234,5"_s << 1234.5;
    QTest::newRow("Swiss thousands") << u"de_CH"_s << u"1\u2019234.5"_s << 1234.5;
    QTest::newRow("English comma") << u"en_US"_s << u"1,500"_s << 1500.0;
    QTest::newRow("Egyptian") << u"ar_EG"_s << u"12.5"_s << 12.5;
}

void FilterInputTest::readsNumbersOfALocale()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, text);
    QFETCH(const double, number);
    BookFilter filter;
    setFilterNumber(filter, text, QLocale(locale));
    QVERIFY(filter.m_bFilter_NumericHasValue);
    QCOMPARE(filter.m_dblFilter_Numeric, number);
}

void FilterInputTest::keepsTheNumberThatItCannotReplace_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("point") << u"."_s;
    QTest::newRow("comma") << u","_s;
    QTest::newRow("marks and letters") << u"a.,b."_s;
    QTest::newRow("too large") << QString(900, u'9');
}

void FilterInputTest::keepsTheNumberThatItCannotReplace()
{
    QFETCH(const QString, text);
    BookFilter filter;
    filter.m_dblFilter_Numeric = 12.5;
    setFilterNumber(filter, text, QLocale::c());
    QVERIFY(filter.m_bFilter_NumericHasValue);
    QCOMPARE(filter.m_dblFilter_Numeric, 12.5);
}

void FilterInputTest::forgetsTheNumberOfAnEmptyField_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("nothing that belongs") << u"- abc"_s;
    QTest::newRow("digits of another script") << u"\u0661"_s;
}

void FilterInputTest::forgetsTheNumberOfAnEmptyField()
{
    QFETCH(const QString, text);
    BookFilter filter;
    setFilterNumber(filter, u"12", QLocale::c());
    setFilterNumber(filter, text, QLocale::c());
    QVERIFY(!filter.m_bFilter_NumericHasValue);
    QCOMPARE(filter.m_dblFilter_Numeric, 0.0);
    // So there is no older number that a lone point could bring back.
    setFilterNumber(filter, u".", QLocale::c());
    QCOMPARE(filter.m_dblFilter_Numeric, 0.0);
}

void FilterInputTest::readsYears_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint32>("year");
    QTest::newRow("plain") << u"1999"_s << 1999;
    QTest::newRow("letter inside") << u"19x9"_s << 199;
    QTest::newRow("marks") << u"1,9.9 9"_s << 1999;
    QTest::newRow("minus") << u"-44"_s << 44;
    QTest::newRow("zeros in front") << u"0066"_s << 66;
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("letters") << u"year"_s << 0;
    QTest::newRow("digits of another script") << u"\u0661"_s << 0;
    QTest::newRow("the largest") << u"2147483647"_s << std::numeric_limits<qint32>::max();
    QTest::newRow("too large") << u"2147483648"_s << std::numeric_limits<qint32>::max();
    QTest::newRow("far too large") << QString(900, u'9') << std::numeric_limits<qint32>::max();
}

void FilterInputTest::readsYears()
{
    QFETCH(const QString, text);
    QFETCH(const qint32, year);
    BookFilter filter;
    filter.m_nFilter_DateYear = 1066;
    setFilterYear(filter, text);
    QCOMPARE(filter.m_nFilter_DateYear, year);
}

void FilterInputTest::takesTextsOfAnyLength()
{
    const QString text = u"12.5"_s + QString(10'000'000, u'.');
    BookFilter filter;
    setFilterNumber(filter, text, QLocale::c());
    QCOMPARE(filter.m_dblFilter_Numeric, 12.5);
    setFilterYear(filter, text);
    QCOMPARE(filter.m_nFilter_DateYear, 125);
}

QTEST_APPLESS_MAIN(FilterInputTest)
#include "FilterInputTest.moc"
