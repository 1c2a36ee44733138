#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include <QLocale>
#include <QTest>

#include "platform/LocalNumbers.h"

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

quint64 bitsOf(double number)
{
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

QList<QLocale> someLocales()
{
    QList<QLocale> locales{QLocale::c()};
    for (const char16_t* name :
        {u"en_US", u"fr_FR", u"de_DE", u"de_CH", u"ar_EG", u"fa_IR", u"hi_IN"})
        locales.append(QLocale(QString::fromUtf16(name)));
    return locales;
}

} // namespace

class LocalNumbersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsTheMarkOfTheLocale_data();
    void readsTheMarkOfTheLocale();
    void readsEitherMarkInEveryLocale();
    void showsNumbersWithTheMarkOfTheLocale_data();
    void showsNumbersWithTheMarkOfTheLocale();
    void showsNoGroupsAndOnlyAsciiDigits();
    void readsBackWhatItShows();
    void showsWhatIsNoNumber();
};

void LocalNumbersTest::readsTheMarkOfTheLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    const auto row = [](const char* name, const QString& locale, const QString& text,
                         double value) {
        QTest::newRow(name) << locale << text << value;
    };
    row("null", u"fr_FR"_s, {}, 0);
    row("word", u"fr_FR"_s, u"cher"_s, 0);
    row("comma", u"fr_FR"_s, u"12,5"_s, 12.5);
    row("point", u"fr_FR"_s, u"12.5"_s, 12.5);
    row("German", u"de_DE"_s, u"12,5 EUR"_s, 12.5);
    row("blanks and a sign", u"de_DE"_s, u" \t-12,5"_s, -12.5);
    row("only a fraction", u"de_DE"_s, u",5"_s, 0.5);
    row("minus only a fraction", u"de_DE"_s, u"-,5"_s, -0.5);
    row("mark at the end", u"de_DE"_s, u"12,"_s, 12);
    row("lone mark", u"de_DE"_s, u","_s, 0);
    row("two marks", u"de_DE"_s, u",,5"_s, 0);
    row("comma, then point", u"de_DE"_s, u"1,5.7"_s, 1.5);
    row("point, then comma", u"de_DE"_s, u"1.234,5"_s, 1.234);
    row("two commas", u"de_DE"_s, u"1,5,7"_s, 1.5);
    row("exponent", u"de_DE"_s, u"1,5e3"_s, 1500);
    row("comma behind the exponent", u"de_DE"_s, u"15e2,9"_s, 1500);
    row("comma behind a word", u"de_DE"_s, u"about 3,5"_s, 0);
    row("comma is no mark", u"en_US"_s, u"1,234.5"_s, 1);
    row("English", u"en_US"_s, u"12.5"_s, 12.5);
    row("Persian mark", u"fa_IR"_s, u"12\u066B5"_s, 12.5);
}

void LocalNumbersTest::readsTheMarkOfTheLocale()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, text);
    QFETCH(const double, value);
    QCOMPARE(localDouble(text, QLocale(locale)), value);
}

void LocalNumbersTest::readsEitherMarkInEveryLocale()
{
    for (const QLocale& locale : someLocales()) {
        QCOMPARE(localDouble(u"12.5"_s, locale), 12.5);
        QCOMPARE(localDouble(u"-12"_s + locale.decimalPoint() + u"5x"_s, locale), -12.5);
    }
}

void LocalNumbersTest::showsNumbersWithTheMarkOfTheLocale_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("inC");
    QTest::addColumn<QString>("inFrench");
    const auto row = [](double number, const QString& inC, const QString& inFrench) {
        QTest::newRow(qPrintable(inC)) << number << inC << inFrench;
    };
    row(0, u"0"_s, u"0"_s);
    row(-0.0, u"-0"_s, u"-0"_s);
    row(12, u"12"_s, u"12"_s);
    row(12.5, u"12.5"_s, u"12,5"_s);
    row(-12.5, u"-12.5"_s, u"-12,5"_s);
    row(0.1, u"0.1"_s, u"0,1"_s);
    row(0.1 + 0.2, u"0.30000000000000004"_s, u"0,30000000000000004"_s);
    row(0.00025, u"0.00025"_s, u"0,00025"_s);
    row(1000000, u"1000000"_s, u"1000000"_s);
    row(1234567.25, u"1234567.25"_s, u"1234567,25"_s);
    row(999999999999999, u"999999999999999"_s, u"999999999999999"_s);
    row(1e300, u"1e+300"_s, u"1e+300"_s);
    row(1.5e-300, u"1.5e-300"_s, u"1,5e-300"_s);
}

void LocalNumbersTest::showsNumbersWithTheMarkOfTheLocale()
{
    QFETCH(const double, number);
    QFETCH(const QString, inC);
    QFETCH(const QString, inFrench);
    QCOMPARE(numberText(number, QLocale::c()), inC);
    QCOMPARE(numberText(number, QLocale(u"fr_FR"_s)), inFrench);
}

void LocalNumbersTest::showsNoGroupsAndOnlyAsciiDigits()
{
    for (const QLocale& locale : someLocales()) {
        QString text = numberText(-1234567.25, locale);
        QCOMPARE(text.count(locale.decimalPoint()), 1);
        QCOMPARE(text.replace(locale.decimalPoint(), u"."_s), u"-1234567.25"_s);
    }
}

void LocalNumbersTest::readsBackWhatItShows()
{
    std::mt19937_64 random(20'240'229);
    QList<double> numbers{std::numeric_limits<double>::max(), std::numeric_limits<double>::min(),
        std::numeric_limits<double>::denorm_min(), 1e15, 1e16, 1e-5, 9.9999e-6, 0.0, -0.0};
    for (int round = 0; round < 20'000; ++round) {
        const quint64 bits = random();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        if (std::isfinite(number))
            numbers.append(number);
        // Prices and values, which random bits hardly ever are.
        numbers.append(static_cast<double>(random() % 10'000'000) / 100);
    }
    for (const QLocale& locale : someLocales()) {
        for (const double number : numbers) {
            const QString text = numberText(number, locale);
            QVERIFY2(bitsOf(localDouble(text, locale)) == bitsOf(number), qPrintable(text));
        }
    }
}

void LocalNumbersTest::showsWhatIsNoNumber()
{
    for (const double number : {infinity, -infinity, std::numeric_limits<double>::quiet_NaN()}) {
        const QString text = numberText(number, QLocale::c());
        QVERIFY(!text.isEmpty());
        QCOMPARE(localDouble(text, QLocale::c()), 0.0);
    }
}

QTEST_APPLESS_MAIN(LocalNumbersTest)

#include "LocalNumbersTest.moc"
