#include "model/NormalizedISBN.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class NormalizedISBNTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsDigitsAndLetters_data();
    void keepsDigitsAndLetters();
};

void NormalizedISBNTest::keepsDigitsAndLetters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("isbn");
    QTest::newRow("hyphens") << u"978-0-14-303943-3"_s << u"9780143039433"_s;
    QTest::newRow("spaces and a letter") << u"0 8044 2957 x"_s << u"080442957X"_s;
    QTest::newRow("as it should be") << u"080442957X"_s << u"080442957X"_s;
    QString ascii;
    for (char16_t unit = 0; unit < 0x80; ++unit)
        ascii.append(QChar(unit));
    QTest::newRow("all of ASCII")
        << ascii << u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJKLMNOPQRSTUVWXYZ"_s;
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("hyphens alone") << u"--- -"_s << QString();
    QTest::newRow("other scripts") << u"é٣1ß２z"_s << u"1Z"_s;
    QTest::newRow("1023 bytes") << QString(1023, u'1') << QString(1023, u'1');
    QTest::newRow("1024 bytes") << QString(1024, u'1') << QString(1023, u'1');
    QTest::newRow("long, of two bytes each") << QString(600, u'é') + u"1"_s << QString();
    QTest::newRow("just short enough") << QString(511, u'é') + u"1"_s << u"1"_s;
    QTest::newRow("lone surrogate") << u"1"_s + QChar(0xD800) + u"2"_s << u"12"_s;
}

void NormalizedISBNTest::keepsDigitsAndLetters()
{
    QFETCH(const QString, text);
    QFETCH(const QString, isbn);
    QCOMPARE(normalizedISBN(text), isbn);
}

QTEST_MAIN(NormalizedISBNTest)
#include "NormalizedISBNTest.moc"
