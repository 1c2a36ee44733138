#include "listwindow/engine/FoldedColumn.h"

#include "model/CaseFolding.h"

#include <QRandomGenerator>
#include <QStringList>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

FoldedColumn columnOf(const QStringList& texts)
{
    FoldedColumn column;
    column.clear(std::size_t(texts.size()));
    for (const QString& text : texts)
        column.append(text);
    return column;
}

QByteArray textOf(const FoldedColumn& column, quint32 row)
{
    const std::string_view text = column.text(row);
    return {text.data(), qsizetype(text.size())};
}

QList<int> matches(const FoldedColumn& column, const QString& part)
{
    std::vector<char> folded;
    appendFolded(part, folded);
    std::vector<quint8> passes(column.rowCount(), 0);
    column.markMatches(std::string_view(folded.data(), folded.size()), passes);
    QList<int> rows;
    for (std::size_t row = 0; row < passes.size(); ++row) {
        if (passes[row] != 0)
            rows.append(int(row));
    }
    return rows;
}

} // namespace

class FoldedColumnTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsFoldedTexts();
    void marksMatches();
    void marksEveryRowForAnEmptyText();
    void leavesOtherMarksAlone();
    void matchesNothingAcrossRows();
    void replacesTexts();
    void tellsWhetherAReplacedTextDiffers();
    void forgetsReplacedTexts();
    void appendsBehindReplacedTexts();
    void ordersPrefixesAsTexts();
    void forgetsEverythingWhenCleared();
    void staysRightThroughManyReplacements();
};

void FoldedColumnTest::keepsFoldedTexts()
{
    const FoldedColumn column = columnOf({u"Dune"_s, u""_s, u"ÉCOLE"_s, QString()});
    QCOMPARE(column.rowCount(), std::size_t(4));
    QCOMPARE(textOf(column, 0), QByteArray("dune"));
    QCOMPARE(textOf(column, 1), QByteArray(""));
    QCOMPARE(textOf(column, 2), QByteArray("école"));
    QCOMPARE(textOf(column, 3), QByteArray(""));
}

void FoldedColumnTest::marksMatches()
{
    const FoldedColumn column =
        columnOf({u"Dune"_s, u""_s, u"Dunes of dune"_s, u"June"_s, u"une"_s});
    QCOMPARE(matches(column, u"DUNE"_s), QList<int>({0, 2}));
    QCOMPARE(matches(column, u"une"_s), QList<int>({0, 2, 3, 4}));
    QCOMPARE(matches(column, u"e"_s), QList<int>({0, 2, 3, 4}));
    QCOMPARE(matches(column, u"dunes of dune!"_s), QList<int>());
    QCOMPARE(matches(columnOf({}), u"x"_s), QList<int>());
}

void FoldedColumnTest::marksEveryRowForAnEmptyText()
{
    QCOMPARE(matches(columnOf({u"a"_s, u""_s, u"b"_s}), u""_s), QList<int>({0, 1, 2}));
}

void FoldedColumnTest::leavesOtherMarksAlone()
{
    const FoldedColumn column = columnOf({u"a"_s, u"b"_s, u"a"_s});
    std::vector<quint8> passes{0, 1, 0};
    column.markMatches("a", passes);
    QCOMPARE(passes, std::vector<quint8>({1, 1, 1}));
}

void FoldedColumnTest::matchesNothingAcrossRows()
{
    const FoldedColumn column = columnOf({u"ab"_s, u"cd"_s, QString(QChar(0xFF)), u""_s});
    QCOMPARE(matches(column, u"bc"_s), QList<int>());
    QCOMPARE(matches(column, u"abcd"_s), QList<int>());
    QCOMPARE(matches(column, QString(QChar(0xFF))), QList<int>{2});
}

void FoldedColumnTest::replacesTexts()
{
    FoldedColumn column = columnOf({u"one"_s, u"two"_s, u"three"_s});
    QVERIFY(column.replace(1, u"A longer TEXT"));
    QCOMPARE(textOf(column, 0), QByteArray("one"));
    QCOMPARE(textOf(column, 1), QByteArray("a longer text"));
    QCOMPARE(textOf(column, 2), QByteArray("three"));
    QCOMPARE(matches(column, u"text"_s), QList<int>{1});
    QVERIFY(column.replace(1, u""));
    QCOMPARE(textOf(column, 1), QByteArray(""));
    QCOMPARE(matches(column, u"t"_s), QList<int>{2});
    QVERIFY(column.replace(1, u"t"));
    QCOMPARE(matches(column, u"t"_s), QList<int>({1, 2}));
}

void FoldedColumnTest::tellsWhetherAReplacedTextDiffers()
{
    FoldedColumn column = columnOf({u"Dune"_s});
    QVERIFY(!column.replace(0, u"Dune"));
    QVERIFY(!column.replace(0, u"DUNE"));
    QVERIFY(column.replace(0, u"Dune "));
    QCOMPARE(textOf(column, 0), QByteArray("dune "));
}

void FoldedColumnTest::forgetsReplacedTexts()
{
    FoldedColumn column = columnOf({u"one"_s, u"two"_s});
    QVERIFY(column.replace(0, u"three"));
    QCOMPARE(matches(column, u"one"_s), QList<int>());
    QCOMPARE(matches(column, u"two"_s), QList<int>{1});
}

void FoldedColumnTest::appendsBehindReplacedTexts()
{
    FoldedColumn column = columnOf({u"one"_s, u"two"_s});
    QVERIFY(column.replace(0, u"three"));
    column.append(u"four");
    QCOMPARE(column.rowCount(), std::size_t(3));
    QCOMPARE(textOf(column, 2), QByteArray("four"));
    QCOMPARE(matches(column, u"o"_s), QList<int>({1, 2}));
}

void FoldedColumnTest::ordersPrefixesAsTexts()
{
    const QStringList texts{u""_s, QString(QChar(u'\0')), u"a"_s, u"ab"_s, u"abcdefgh"_s,
        u"abcdefghi"_s, u"abcdefgz"_s, u"b"_s, u"é"_s, u"\uFFFD"_s, u"\U0001F600"_s};
    const FoldedColumn column = columnOf(texts);
    for (quint32 row = 1; row < column.rowCount(); ++row) {
        QVERIFY(column.text(row - 1) < column.text(row));
        QVERIFY(column.prefix(row - 1) <= column.prefix(row));
    }
    QCOMPARE(column.prefix(2), quint64(0x6100'0000'0000'0000));
    QCOMPARE(column.prefix(4), quint64(0x6162'6364'6566'6768));
    QCOMPARE(column.prefix(5), column.prefix(4));
    QVERIFY(column.prefix(6) > column.prefix(5));
}

void FoldedColumnTest::forgetsEverythingWhenCleared()
{
    FoldedColumn column = columnOf({u"one"_s, u"two"_s});
    column.replace(0, u"three");
    column.clear(1);
    QCOMPARE(column.rowCount(), std::size_t(0));
    column.append(u"four");
    QCOMPARE(matches(column, u"o"_s), QList<int>{0});
    QCOMPARE(matches(column, u"e"_s), QList<int>());
}

void FoldedColumnTest::staysRightThroughManyReplacements()
{
    QRandomGenerator random(42);
    QStringList texts{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s};
    FoldedColumn column = columnOf(texts);
    for (int round = 0; round < 1000; ++round) {
        const int row = random.bounded(int(texts.size()));
        texts[row] = QString(random.bounded(5), QChar(u'A' + random.bounded(3)));
        column.replace(quint32(row), texts.at(row));
        if (round % 100 == 50) {
            texts.append(u"bbb"_s);
            column.append(u"bbb");
        }
        QList<int> expected;
        for (int index = 0; index < texts.size(); ++index) {
            QCOMPARE(textOf(column, quint32(index)), texts.at(index).toLower().toUtf8());
            if (texts.at(index).contains(u"bb"_s, Qt::CaseInsensitive))
                expected.append(index);
        }
        QCOMPARE(matches(column, u"BB"_s), expected);
    }
}

QTEST_GUILESS_MAIN(FoldedColumnTest)
#include "FoldedColumnTest.moc"
