#include "model/CaseFolding.h"

#include <QtTest>

#include <algorithm>
#include <array>
#include <string_view>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QByteArray folded(QStringView text)
{
    std::vector<char> bytes;
    appendFolded(text, bytes);
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

int signOf(int value)
{
    return (value > 0) - (value < 0);
}

QString loneHighSurrogate()
{
    return QString(QChar(0xD83D));
}

} // namespace

class CaseFoldingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void foldsCharacters_data();
    void foldsCharacters();
    void appendsBehindWhatIsThere();
    void comparesTexts_data();
    void comparesTexts();
    void comparesAsTheFoldedBytesDo();
    void findsParts_data();
    void findsParts();
    void tellsWhatStandsBefore();
};

void CaseFoldingTest::foldsCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("capitals") << u"AZ"_s << QByteArray("az");
    QTest::newRow("small letters") << u"az"_s << QByteArray("az");
    QTest::newRow("beside the capitals") << u"@[`{"_s << QByteArray("@[`{");
    QTest::newRow("digits and blanks") << u"0 9\t"_s << QByteArray("0 9\t");
    QTest::newRow("two bytes") << u"É"_s << QByteArray("é");
    QTest::newRow("accents stay") << u"é"_s << QByteArray("é");
    QTest::newRow("German sharp s") << u"ß"_s << QByteArray("ß");
    QTest::newRow("ligature") << u"\uFB01"_s << QByteArray("\xEF\xAC\x81");
    QTest::newRow("Greek final sigma") << u"Σς"_s << QByteArray("σσ");
    QTest::newRow("Cyrillic") << u"ЖЯ"_s << QByteArray("жя");
    QTest::newRow("dotless i") << u"ı"_s << QByteArray("ı");
    QTest::newRow("I has a dot everywhere") << u"I"_s << QByteArray("i");
    QTest::newRow("Kelvin sign") << u"\u212A"_s << QByteArray("k");
    QTest::newRow("beyond 16 bits") << u"\U00010400"_s << QByteArray("\xF0\x90\x90\xA8");
    QTest::newRow("emoji") << u"\U0001F600"_s << QByteArray("\xF0\x9F\x98\x80");
    QTest::newRow("lone surrogate") << loneHighSurrogate() << QByteArray("\xED\xA0\xBD");
    QTest::newRow("NUL") << QString(QChar(u'\0')) << QByteArray(1, '\0');
    QTest::newRow("null") << QString() << QByteArray("");
}

void CaseFoldingTest::foldsCharacters()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, bytes);
    QCOMPARE(folded(text), bytes);
}

void CaseFoldingTest::appendsBehindWhatIsThere()
{
    std::vector<char> bytes{'x'};
    appendFolded(u"AB", bytes);
    QCOMPARE(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())), QByteArray("xab"));
}

void CaseFoldingTest::comparesTexts_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<int>("sign");
    QTest::newRow("same") << u"a"_s << u"a"_s << 0;
    QTest::newRow("case") << u"The HOBBY"_s << u"the hobby"_s << 0;
    QTest::newRow("case of accented letters") << u"ÉCOLE"_s << u"école"_s << 0;
    QTest::newRow("first difference") << u"abd"_s << u"abcz"_s << 1;
    QTest::newRow("shorter first") << u"ab"_s << u"abc"_s << -1;
    QTest::newRow("empty first") << u""_s << u"a"_s << -1;
    QTest::newRow("null is empty") << QString() << u""_s << 0;
    QTest::newRow("no collation of accents") << u"é"_s << u"z"_s << 1;
    QTest::newRow("no word order") << u"The A"_s << u"B"_s << 1;
    QTest::newRow("no numeric order") << u"10"_s << u"9"_s << -1;
    QTest::newRow("underscore stands before letters") << u"_"_s << u"A"_s << -1;
    QTest::newRow("sharp s is not ss") << u"Strasse"_s << u"Straße"_s << -1;
    QTest::newRow("by character, not by unit") << u"\U0001F600"_s << u"\uFF21"_s << 1;
    QTest::newRow("lone surrogate below the rest") << loneHighSurrogate() << u"\uE000"_s << -1;
}

void CaseFoldingTest::comparesTexts()
{
    QFETCH(const QString, left);
    QFETCH(const QString, right);
    QFETCH(const int, sign);
    QCOMPARE(signOf(compareIgnoringCase(left, right)), sign);
    QCOMPARE(signOf(compareIgnoringCase(right, left)), -sign);
}

void CaseFoldingTest::comparesAsTheFoldedBytesDo()
{
    QStringList texts{u""_s, u"a"_s, u"B"_s, u"aB"_s, u"é"_s, u"ß"_s, u"ss"_s, u"Ω"_s, u"\uFFFD"_s,
        u"\U00010400"_s, u"\U0001F600"_s, loneHighSurrogate(), loneHighSurrogate() + u'a',
        QString(QChar(u'\0')), u"a"_s + QChar(u'\0')};
    for (const QString& left : texts) {
        for (const QString& right : texts) {
            const QByteArray leftBytes = folded(left);
            const QByteArray rightBytes = folded(right);
            const int byBytes =
                std::string_view(leftBytes.data(), std::size_t(leftBytes.size()))
                    .compare(std::string_view(rightBytes.data(), std::size_t(rightBytes.size())));
            QCOMPARE(signOf(compareIgnoringCase(left, right)), signOf(byBytes));
        }
    }
}

void CaseFoldingTest::findsParts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("part");
    QTest::addColumn<bool>("found");
    QTest::newRow("empty part") << u"abc"_s << u""_s << true;
    QTest::newRow("empty part in an empty text") << QString() << QString() << true;
    QTest::newRow("empty text") << u""_s << u"a"_s << false;
    QTest::newRow("beginning") << u"Dune"_s << u"du"_s << true;
    QTest::newRow("middle") << u"Dune"_s << u"UN"_s << true;
    QTest::newRow("end") << u"Dune"_s << u"NE"_s << true;
    QTest::newRow("whole") << u"Dune"_s << u"dUNE"_s << true;
    QTest::newRow("longer") << u"Dune"_s << u"dunes"_s << false;
    QTest::newRow("not in one piece") << u"Dune"_s << u"de"_s << false;
    QTest::newRow("no diacritic folding") << u"École"_s << u"ecole"_s << false;
    QTest::newRow("case of accented letters") << u"École"_s << u"éCO"_s << true;
    QTest::newRow("sharp s is not ss") << u"Straße"_s << u"ss"_s << false;
    QTest::newRow("blanks count") << u"a  b"_s << u"a b"_s << false;
    QTest::newRow("no pattern") << u"abc"_s << u"a.c"_s << false;
    QTest::newRow("half of a character") << u"\U0001F600"_s << loneHighSurrogate() << false;
    QTest::newRow("overlapping tries") << u"aaab"_s << u"aab"_s << true;
}

void CaseFoldingTest::findsParts()
{
    QFETCH(const QString, text);
    QFETCH(const QString, part);
    QTEST(containsIgnoringCase(text, part), "found");
}

void CaseFoldingTest::tellsWhatStandsBefore()
{
    QVERIFY(lessIgnoringCase(u"Apple", u"banana"));
    QVERIFY(!lessIgnoringCase(u"banana", u"Apple"));
    QVERIFY(!lessIgnoringCase(u"apple", u"APPLE"));
}

QTEST_GUILESS_MAIN(CaseFoldingTest)
#include "CaseFoldingTest.moc"
