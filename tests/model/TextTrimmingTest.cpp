#include "model/TextTrimming.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class TextTrimmingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void trimsTexts_data();
    void trimsTexts();
    void trimsLabels_data();
    void trimsLabels();
    void keepsNullNull();
    void leavesNothingAsAnEmptyTextAndNotAsNull();
};

void TextTrimmingTest::trimsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("trimmed");
    QTest::newRow("nothing to trim") << u"A Tale"_s << u"A Tale"_s;
    QTest::newRow("all four characters") << u"  \tA Tale\r\n"_s << u"A Tale"_s;
    QTest::newRow("any order") << u"\n\r\t A Tale \t\r\n"_s << u"A Tale"_s;
    QTest::newRow("leading only") << u"\tA"_s << u"A"_s;
    QTest::newRow("trailing only") << u"A\r"_s << u"A"_s;
    QTest::newRow("inside stays") << u" A \t\r\n B "_s << u"A \t\r\n B"_s;
    QTest::newRow("only blanks") << u" \n "_s << u""_s;
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("no-break space stays") << u"\u00A0A\u00A0"_s << u"\u00A0A\u00A0"_s;
    QTest::newRow("ideographic space stays") << u"\u3000A\u3000"_s << u"\u3000A\u3000"_s;
    QTest::newRow("vertical tab and form feed stay") << u"\vA\f"_s << u"\vA\f"_s;
    QTest::newRow("line separator stays") << u"A\u2028"_s << u"A\u2028"_s;
    QTest::newRow("NUL stays") << QString(QChar(u'\0')) + u'A' << QString(QChar(u'\0')) + u'A';
    QTest::newRow("colons stay") << u" :A: "_s << u":A:"_s;
}

void TextTrimmingTest::trimsTexts()
{
    QFETCH(const QString, text);
    QFETCH(const QString, trimmed);
    QCOMPARE(trimmedText(text), trimmed);
    QCOMPARE(trimmedView(text), trimmed);
}

void TextTrimmingTest::trimsLabels_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("trimmed");
    QTest::newRow("as typed in a form") << u"  Signed by:  "_s << u"Signed by"_s;
    QTest::newRow("colons in front") << u":: Signed by"_s << u"Signed by"_s;
    QTest::newRow("colon inside") << u"Shelf: left:"_s << u"Shelf: left"_s;
    QTest::newRow("colons between blanks") << u" : \t:\r\n"_s << u""_s;
    QTest::newRow("nothing but colons") << u"::"_s << u""_s;
    QTest::newRow("blanks alone") << u"\tA\n"_s << u"A"_s;
    QTest::newRow("full-width colon stays") << u"A\uFF1A"_s << u"A\uFF1A"_s;
}

void TextTrimmingTest::trimsLabels()
{
    QFETCH(const QString, label);
    QFETCH(const QString, trimmed);
    QCOMPARE(trimmedLabel(label), trimmed);
}

void TextTrimmingTest::keepsNullNull()
{
    QVERIFY(trimmedText(QString()).isNull());
    QVERIFY(trimmedLabel(QString()).isNull());
}

void TextTrimmingTest::leavesNothingAsAnEmptyTextAndNotAsNull()
{
    QVERIFY(!trimmedText(u" \t"_s).isNull());
    QVERIFY(!trimmedText(u""_s).isNull());
    QVERIFY(!trimmedLabel(u": :"_s).isNull());
}

QTEST_GUILESS_MAIN(TextTrimmingTest)
#include "TextTrimmingTest.moc"
