#include "listwindow/SingleLineDelegate.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class SingleLineDelegateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsOneLine_data();
    void showsOneLine();
    void showsTheBeginningOfALongText();
};

void SingleLineDelegateTest::showsOneLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("empty") << QString() << u""_s;
    QTest::newRow("one line") << u"A present from Jane"_s << u"A present from Jane"_s;
    QTest::newRow("line feed") << u"one\ntwo"_s << u"one two"_s;
    QTest::newRow("carriage return") << u"one\r\ntwo"_s << u"one  two"_s;
    QTest::newRow("separators") << u"one\u2028two\u2029three"_s << u"one two three"_s;
    QTest::newRow("only line ends") << u"\n\n"_s << u"  "_s;
}

void SingleLineDelegateTest::showsOneLine()
{
    QFETCH(const QString, text);
    QFETCH(const QString, shown);
    QCOMPARE(SingleLineDelegate().displayText(text, QLocale::c()), shown);
}

void SingleLineDelegateTest::showsTheBeginningOfALongText()
{
    const QString text = u"0123456789"_s.repeated(100'000);
    const QString shown = SingleLineDelegate().displayText(text, QLocale::c());
    QVERIFY(text.startsWith(shown));
    QVERIFY(shown.size() >= 500); // more than any column is wide
    QVERIFY(shown.size() <= 2000);
}

QTEST_MAIN(SingleLineDelegateTest)
#include "SingleLineDelegateTest.moc"
