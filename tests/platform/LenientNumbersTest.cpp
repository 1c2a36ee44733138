#include <cmath>
#include <limits>

#include <QTest>

#include "platform/LenientNumbers.h"

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr qint32 largest32 = std::numeric_limits<qint32>::max();
constexpr qint32 smallest32 = std::numeric_limits<qint32>::min();
constexpr qint64 largest64 = std::numeric_limits<qint64>::max();
constexpr qint64 smallest64 = std::numeric_limits<qint64>::min();

} // namespace

class LenientNumbersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsIntegers_data();
    void readsIntegers();
    void readsDecimals_data();
    void readsDecimals();
    void readsEveryDoubleBack();
    void skipsExactlyAsciiWhiteSpace();
    void readsPartOfALargerText();
};

void LenientNumbersTest::readsIntegers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint32>("in32");
    QTest::addColumn<qint64>("in64");
    const auto row = [](const char* name, const QString& text, qint32 in32, qint64 in64) {
        QTest::newRow(name) << text << in32 << in64;
    };
    const auto same = [&row](const char* name, const QString& text, qint32 value) {
        row(name, text, value, value);
    };
    same("null", QString(), 0);
    same("empty", u""_s, 0);
    same("blank", u" \t\n"_s, 0);
    same("zero", u"0"_s, 0);
    same("leading zeros", u"000042"_s, 42);
    same("trailing mark", u"1999?"_s, 1999);
    same("leading blanks", u"  12abc"_s, 12);
    same("every blank", u" \t\n\v\f\r7"_s, 7);
    same("word first", u"about 12"_s, 0);
    same("hexadecimal", u"0x10"_s, 0);
    same("octal is decimal", u"010"_s, 10);
    same("plus", u"+5"_s, 5);
    same("minus", u"-5"_s, -5);
    same("two signs", u"--5"_s, 0);
    same("mixed signs", u"+-5"_s, 0);
    same("lone sign", u"-"_s, 0);
    same("blank after sign", u"- 5"_s, 0);
    same("minus zero", u"-0"_s, 0);
    same("fraction", u"3.99"_s, 3);
    same("comma", u"1,234"_s, 1);
    same("exponent", u"1e3"_s, 1);
    same("nan", u"nan"_s, 0);
    same("largest 32", u"2147483647"_s, largest32);
    same("smallest 32", u"-2147483648"_s, smallest32);
    row("above 32", u"2147483648"_s, largest32, 2147483648);
    row("below 32", u"-2147483649"_s, smallest32, -2147483649);
    row("far above 32", u"4294967297"_s, largest32, 4294967297);
    row("far below 32", u"-99999999999"_s, smallest32, -99999999999);
    row("largest 64", u"9223372036854775807"_s, largest32, largest64);
    row("smallest 64", u"-9223372036854775808"_s, smallest32, smallest64);
    row("above 64", u"9223372036854775808"_s, largest32, largest64);
    row("below 64", u"-9223372036854775809"_s, smallest32, smallest64);
    row("endless", QString(5000, u'9'), largest32, largest64);
    row("endless minus", u'-' + QString(5000, u'9'), smallest32, smallest64);
    same("full-width digits", u"\uFF11\uFF12"_s, 0);
    same("Arabic digits", u"\u0661\u0662"_s, 0);
    same("Arabic digits after", u"1\u0662"_s, 1);
    same("minus sign of typesetters", u"\u22125"_s, 0);
    same("no-break space first", u"\u00A05"_s, 0);
    same("NUL first", QString(QChar(u'\0')) + u'5', 0);
    same("NUL after", u'5' + QString(QChar(u'\0')) + u'6', 5);
}

void LenientNumbersTest::readsIntegers()
{
    QFETCH(const QString, text);
    QFETCH(const qint32, in32);
    QFETCH(const qint64, in64);
    QCOMPARE(leadingInt(text), in32);
    QCOMPARE(leadingInt64(text), in64);
}

void LenientNumbersTest::readsDecimals_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    const auto row = [](const char* name, const QString& text, double value) {
        QTest::newRow(name) << text << value;
    };
    row("null", QString(), 0);
    row("blank", u" \t"_s, 0);
    row("integer", u"12"_s, 12);
    row("price", u"12.50"_s, 12.5);
    row("leading blanks", u"  12abc"_s, 12);
    row("every blank", u" \t\n\v\f\r7"_s, 7);
    row("trailing mark", u"1999?"_s, 1999);
    row("currency first", u"$12"_s, 0);
    row("currency last", u"12 EUR"_s, 12);
    row("plus", u"+5"_s, 5);
    row("minus", u"-2.5"_s, -2.5);
    row("two signs", u"--5"_s, 0);
    row("blank after sign", u"- 5"_s, 0);
    row("only a fraction", u".5"_s, 0.5);
    row("minus only a fraction", u"-.5"_s, -0.5);
    row("point at the end", u"5."_s, 5);
    row("lone point", u"."_s, 0);
    row("lone signed point", u"-."_s, 0);
    row("point and exponent", u".e5"_s, 0);
    row("point at the end and exponent", u"5.e2"_s, 500);
    row("two points", u"1.2.3"_s, 1.2);
    row("comma", u"1,5"_s, 1);
    row("exponent", u"1e3"_s, 1000);
    row("capital exponent", u"1E3"_s, 1000);
    row("exponent with plus", u"1e+3"_s, 1000);
    row("exponent with minus", u"25e-1"_s, 2.5);
    row("exponent without digits", u"1e"_s, 1);
    row("exponent with lone sign", u"1e+"_s, 1);
    row("exponent and word", u"1em"_s, 1);
    row("exponent with two signs", u"1e--3"_s, 1);
    row("exponent alone", u"e5"_s, 0);
    row("fraction in exponent", u"1e1.5"_s, 10);
    row("hexadecimal", u"0x10"_s, 0);
    row("hexadecimal float", u"0x1p4"_s, 0);
    row("nan", u"nan"_s, 0);
    row("inf", u"inf"_s, 0);
    row("minus infinity", u"-infinity"_s, 0);
    row("full-width digits", u"\uFF11"_s, 0);
    row("Arabic digits", u"\u0661"_s, 0);
    row("Arabic digits in the fraction", u"1.\u0661"_s, 1);
    row("no-break space first", u"\u00A05"_s, 0);
    row("largest", u"1.7976931348623157e308"_s, std::numeric_limits<double>::max());
    row("too large", u"1e309"_s, infinity);
    row("too small a number", u"-1e309"_s, -infinity);
    row("endless exponent", u"1e99999999999999999999999999"_s, infinity);
    row("endless digits", QString(400, u'9'), infinity);
    row("many digits, small exponent", QString(400, u'9') + u"e-400"_s, 1);
    row("many zeros, large exponent", u"0."_s + QString(400, u'0') + u"1e401"_s, 1);
    row("smallest", u"4.9406564584124654e-324"_s, std::numeric_limits<double>::denorm_min());
    row("below the smallest", u"1e-400"_s, 0);
    row("endless minus exponent", u"1e-99999999999999999999999999"_s, 0);
    row("many zeros", u"0."_s + QString(400, u'0') + u'1', 0);
    row("zero with endless exponent", u"0.000e99999999999999999999"_s, 0);
    row("zeros", QString(5000, u'0') + u"7.5"_s, 7.5);
}

void LenientNumbersTest::readsDecimals()
{
    QFETCH(const QString, text);
    QFETCH(const double, value);
    // Bit for bit: QCOMPARE takes neighbouring doubles for equal.
    QVERIFY2(leadingDouble(text) == value,
        qPrintable(QString::number(leadingDouble(text), 'g', QLocale::FloatingPointShortest)));
}

void LenientNumbersTest::readsEveryDoubleBack()
{
    for (int power = -320; power <= 300; ++power) {
        const double value = 7.0 / 3.0 * std::pow(10.0, power);
        const QString text = QString::number(value, 'g', QLocale::FloatingPointShortest);
        QVERIFY2(leadingDouble(text) == value, qPrintable(text));
        QVERIFY2(leadingDouble(u'-' + text) == -value, qPrintable(text));
    }
}

void LenientNumbersTest::skipsExactlyAsciiWhiteSpace()
{
    const QString blanks = u" \t\n\v\f\r"_s;
    for (char16_t unit = 0; unit < 0xFFFF; ++unit) {
        if (unit >= u'0' && unit <= u'9')
            continue;
        const QString text = QString(QChar(unit)) + u'7';
        int expected = blanks.contains(QChar(unit)) || unit == u'+' ? 7 : 0;
        if (unit == u'-')
            expected = -7;
        QCOMPARE(leadingInt(text), expected);
        QVERIFY(leadingDouble(text) == (unit == u'.' ? 0.7 : expected));
    }
}

void LenientNumbersTest::readsPartOfALargerText()
{
    const QString text = u"123456"_s;
    QCOMPARE(leadingInt(QStringView(text).first(3)), 123);
    QCOMPARE(leadingDouble(QStringView(text).sliced(2, 2)), 34.0);
}

QTEST_APPLESS_MAIN(LenientNumbersTest)

#include "LenientNumbersTest.moc"
