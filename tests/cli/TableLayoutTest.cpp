#include "cli/TableLayout.h"
#include "cli/DisplayWidth.h"
#include "cli/Output.h"
#include "cli/PlainText.h"

#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QByteArrayList linesOf(const TableLayout& table, int width)
{
    QTemporaryFile file;
    if (!file.open())
        return {};
    {
        Output output(file.handle());
        table.write(output, width);
    }
    file.seek(0);
    QByteArrayList lines = file.readAll().split('\n');
    lines.removeLast();
    return lines;
}

} // namespace

class TableLayoutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void measuresTexts_data();
    void measuresTexts();
    void fitsTexts_data();
    void fitsTexts();
    void keepsTextsOnOneLine();
    void takesFromTheWidestColumns();
    void leavesColumnsOut();
    void alignsCells();
    void neverExceedsTheWidth();
    void showsThatColumnsAreMissing();
};

void TableLayoutTest::measuresTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("ASCII") << u"Emma"_s << 4;
    QTest::newRow("Latin") << u"Žižek"_s << 5;
    QTest::newRow("combining") << u"e\u0301te\u0301"_s << 3;
    QTest::newRow("Japanese") << u"吾輩は猫である"_s << 14;
    QTest::newRow("half-width kana") << u"ｱｲ"_s << 2;
    QTest::newRow("full-width letters") << u"ＡＢ"_s << 4;
    QTest::newRow("Hangul") << u"책"_s << 2;
    QTest::newRow("Hangul letters") << u"\u110E\u1162\u11A8"_s << 2;
    QTest::newRow("extension B") << u"𠀋"_s << 2;
    QTest::newRow("pictograph") << u"📚"_s << 2;
    QTest::newRow("zero width joiner") << u"a\u200Db"_s << 2;
    QTest::newRow("soft hyphen") << u"a\u00ADb"_s << 3;
    QTest::newRow("lone surrogate") << QString(QChar(0xD800)) << 1;
    QTest::newRow("Arabic") << u"كتاب"_s << 4;
}

void TableLayoutTest::measuresTexts()
{
    QFETCH(const QString, text);
    QFETCH(const int, width);
    QCOMPARE(displayWidth(text), width);
}

void TableLayoutTest::fitsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("fitted");
    QTest::newRow("fits") << u"Emma"_s << 4 << u"Emma"_s;
    QTest::newRow("cut") << u"Emma"_s << 3 << u"Em…"_s;
    QTest::newRow("narrowest") << u"Emma"_s << 1 << u"…"_s;
    QTest::newRow("wide fits") << u"吾輩は"_s << 6 << u"吾輩は"_s;
    QTest::newRow("wide cut") << u"吾輩は"_s << 5 << u"吾輩…"_s;
    QTest::newRow("half a wide character") << u"吾輩は"_s << 4 << u"吾…"_s;
    QTest::newRow("marks stay") << u"e\u0301te\u0301"_s << 2 << u"e\u0301…"_s;
    QTest::newRow("pairs stay whole") << u"a📚b"_s << 3 << u"a…"_s;
}

void TableLayoutTest::fitsTexts()
{
    QFETCH(const QString, text);
    QFETCH(const int, width);
    QFETCH(const QString, fitted);
    QCOMPARE(fittedTo(text, width), fitted);
    QVERIFY(displayWidth(fitted) <= width);
}

void TableLayoutTest::keepsTextsOnOneLine()
{
    QCOMPARE(onOneLine(u"a\tb\nc\rd\u001B[2Je\u0085f\u2028g\u2029h"_s), u"a b c d [2Je f g h"_s);
    QCOMPARE(onOneLine(u"a\u00A0ä"_s), u"a\u00A0ä"_s);
}

void TableLayoutTest::takesFromTheWidestColumns()
{
    using Widths = std::vector<int>;
    QCOMPARE(fittedWidths({10, 20}, 30), Widths({10, 20}));
    QCOMPARE(fittedWidths({10, 20}, 25), Widths({10, 15}));
    QCOMPARE(fittedWidths({10, 20}, 12), Widths({6, 6}));
    QCOMPARE(fittedWidths({10, 20}, 13), Widths({7, 6}));
    QCOMPARE(fittedWidths({3, 50, 40}, 43), Widths({3, 20, 20}));
    QCOMPARE(fittedWidths({}, 10), Widths());
}

void TableLayoutTest::leavesColumnsOut()
{
    // Of 20 characters, the mark for the others takes 3 and two separators take 4.
    const int separators = 2 * 9;
    const std::vector<int> widths = fittedWidths(std::vector<int>(10, 8), 20 - separators);
    QCOMPARE(widths, std::vector<int>({5, 4, 4}));
}

void TableLayoutTest::alignsCells()
{
    TableLayout table({{u"Title"_s, Alignment::Left}, {u"Pages"_s, Alignment::Right},
        {u"Own"_s, Alignment::Centre}, {u"Notes"_s, Alignment::Left}});
    table.addRow({u"Emma"_s, u"474"_s, u"X"_s, u"a\nb"_s});
    table.addRow({u"吾輩は猫"_s, QString(), u" "_s, QString()});
    const QByteArrayList lines = linesOf(table, 100);
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines[0], "Title     Pages  Own  Notes"_ba);
    QCOMPARE(lines[1], "--------  -----  ---  -----"_ba);
    QCOMPARE(lines[2], "Emma        474   X   a b"_ba);
    QCOMPARE(lines[3], "吾輩は猫"_ba);
}

void TableLayoutTest::neverExceedsTheWidth()
{
    for (const int columns : {1, 2, 5, 42}) {
        std::vector<TableColumn> headings;
        QStringList cells;
        for (int i = 0; i < columns; ++i) {
            headings.push_back({u"Heading %1"_s.arg(i), Alignment(i % 3)});
            cells.append(QString(qsizetype{5} * (i % 7), u'漢'));
        }
        TableLayout table(headings);
        table.addRow(cells);
        for (int width = 8; width < 140; ++width) {
            for (const QByteArray& line : linesOf(table, width))
                QVERIFY2(displayWidth(QString::fromUtf8(line)) <= width, line.constData());
        }
    }
}

void TableLayoutTest::showsThatColumnsAreMissing()
{
    TableLayout table(std::vector<TableColumn>(10, {u"Heading"_s}));
    table.addRow(QStringList(10, u"cell"_s));
    for (const QByteArray& line : linesOf(table, 30))
        QVERIFY2(line.endsWith("  …"), line.constData());
    for (const QByteArray& line : linesOf(table, 100))
        QVERIFY2(!line.endsWith("  …"), line.constData());
}

QTEST_APPLESS_MAIN(TableLayoutTest)

#include "TableLayoutTest.moc"
