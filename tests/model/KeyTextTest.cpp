#include "model/KeyText.h"

#include <QLocale>
#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

class KeyTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesPlainDigitsInEveryLocale_data();
    void writesPlainDigitsInEveryLocale();
    void readsNumbers_data();
    void readsNumbers();
    void refusesWhatIsNoNumber_data();
    void refusesWhatIsNoNumber();
    void normalizesKeys_data();
    void normalizesKeys();
    void keepsANullKeyNull();
    void ordersByNumber_data();
    void ordersByNumber();
    void enumeratesADictionaryByNumber();
};

void KeyTextTest::writesPlainDigitsInEveryLocale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("C") << QLocale::c();
    QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedStates);
    QTest::newRow("French") << QLocale(QLocale::French, QLocale::France);
    QTest::newRow("Arabic") << QLocale(QLocale::Arabic, QLocale::Egypt);
}

void KeyTextTest::writesPlainDigitsInEveryLocale()
{
    QFETCH(const QLocale, locale);
    const QLocale before;
    QLocale::setDefault(locale);
    const QStringList texts{keyText(5), keyText(1000), keyText(1234567), keyText(-1), keyText(0)};
    QLocale::setDefault(before);
    QCOMPARE(texts, QStringList({u"5"_s, u"1000"_s, u"1234567"_s, u"-1"_s, u"0"_s}));
}

void KeyTextTest::readsNumbers_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<qint32>("number");
    QTest::newRow("zero") << u"0"_s << 0;
    QTest::newRow("one digit") << u"7"_s << 7;
    QTest::newRow("four digits") << u"1000"_s << 1000;
    QTest::newRow("negative") << u"-12"_s << -12;
    QTest::newRow("largest") << u"2147483647"_s << std::numeric_limits<qint32>::max();
    QTest::newRow("smallest") << u"-2147483648"_s << std::numeric_limits<qint32>::min();
}

void KeyTextTest::readsNumbers()
{
    QFETCH(const QString, key);
    QFETCH(const qint32, number);
    QCOMPARE(keyNumber(key), std::optional<qint32>(number));
    QCOMPARE(keyText(number), key);
}

void KeyTextTest::refusesWhatIsNoNumber_data()
{
    QTest::addColumn<QString>("key");
    for (const QStringView key : std::initializer_list<QStringView>{u"", u"-", u"+1", u" 1", u"1 ",
             u"01", u"00", u"1,000", u"1.0", u"1a", u"a", u"--1", u"2147483648", u"-2147483649",
             u"99999999999", u"99999999999999999999", u"\u0661"})
        QTest::newRow(qPrintable(u'"' + key.toString() + u'"')) << key.toString();
    QTest::newRow("null") << QString();
}

void KeyTextTest::refusesWhatIsNoNumber()
{
    QFETCH(const QString, key);
    QVERIFY(!keyNumber(key));
}

void KeyTextTest::normalizesKeys_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("normalized");
    QTest::newRow("plain") << u"1000"_s << u"1000"_s;
    QTest::newRow("comma") << u"1,000"_s << u"1000"_s;
    QTest::newRow("full stop") << u"1.234.567"_s << u"1234567"_s;
    QTest::newRow("space") << u"1 000"_s << u"1000"_s;
    QTest::newRow("no-break space") << u"1\u00A0000"_s << u"1000"_s;
    QTest::newRow("narrow no-break space") << u"1\u202F000"_s << u"1000"_s;
    QTest::newRow("thin space") << u"1\u2009000"_s << u"1000"_s;
    QTest::newRow("apostrophe") << u"1'000"_s << u"1000"_s;
    QTest::newRow("typographic apostrophe") << u"1\u2019000"_s << u"1000"_s;
    QTest::newRow("Indian groups") << u"12,34,567"_s << u"1234567"_s;
    QTest::newRow("Arabic digits") << u"\u0661\u066C\u0662\u0663\u0664"_s << u"1234"_s;
    QTest::newRow("Devanagari digits") << u"\u0967,\u0968\u0969\u096A"_s << u"1234"_s;
    QTest::newRow("direction mark") << u"\u200E1,000"_s << u"1000"_s;
    QTest::newRow("negative") << u"-1,000"_s << u"-1000"_s;
    QTest::newRow("superscript digit") << u"1²"_s << u"1²"_s;
    QTest::newRow("a name") << u"Fiction"_s << u"Fiction"_s;
    QTest::newRow("a number and a letter") << u"1,000a"_s << u"1,000a"_s;
    QTest::newRow("minus behind") << u"1-000"_s << u"1-000"_s;
    QTest::newRow("marks alone") << u",."_s << u",."_s;
    QTest::newRow("longest") << QString(64, u'a') << QString(64, u'a');
    QTest::newRow("too long") << QString(65, u'a') << QString(64, u'a');
    QTest::newRow("empty") << u""_s << u""_s;
}

void KeyTextTest::normalizesKeys()
{
    QFETCH(const QString, key);
    QFETCH(const QString, normalized);
    QCOMPARE(normalizedKey(key), normalized);
    QCOMPARE(normalizedKey(normalized), normalized);
}

void KeyTextTest::keepsANullKeyNull()
{
    QVERIFY(normalizedKey(QString()).isNull());
}

void KeyTextTest::ordersByNumber_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("digits") << u"1"_s << u"2"_s;
    QTest::newRow("length") << u"9"_s << u"10"_s;
    QTest::newRow("zero") << u"0"_s << u"1"_s;
    QTest::newRow("beyond 64 bits") << u"99999999999999999999"_s << u"100000000000000000000"_s;
    QTest::newRow("texts follow") << u"999"_s << u"1a"_s;
    QTest::newRow("texts among themselves") << u"A"_s << u"a"_s;
    QTest::newRow("leading zeros are no number") << u"2"_s << u"01"_s;
    QTest::newRow("empty follows numbers") << u"5"_s << u""_s;
    QTest::newRow("empty before other texts") << u""_s << u"a"_s;
}

void KeyTextTest::ordersByNumber()
{
    QFETCH(const QString, first);
    QFETCH(const QString, second);
    const KeyOrder before;
    QVERIFY(before(first, second));
    QVERIFY(!before(second, first));
    QVERIFY(!before(first, first));
    QVERIFY(!before(second, second));
}

void KeyTextTest::enumeratesADictionaryByNumber()
{
    KeyDictionary<int> dictionary;
    for (const int number : {10, 1, 100, 9, 2})
        dictionary[keyText(number)] = number;
    QList<int> numbers;
    for (const auto& [key, number] : dictionary)
        numbers.append(number);
    QCOMPARE(numbers, QList<int>({1, 2, 9, 10, 100}));
}

QTEST_GUILESS_MAIN(KeyTextTest)
#include "KeyTextTest.moc"
