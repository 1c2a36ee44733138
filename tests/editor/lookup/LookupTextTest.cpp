#include "editor/lookup/LookupText.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

// What goes over a text once takes well below a second for this; what goes over it again for every
// marker would take days.
constexpr qsizetype hostileUnits = 20'000'000;
constexpr qint64 generousMilliseconds = 20'000;

QString repeated(QStringView piece)
{
    return piece.toString().repeated(hostileUnits / piece.size());
}

} // namespace

class LookupTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void decodesUtf8_data();
    void decodesUtf8();
    void refusesOtherBytes_data();
    void refusesOtherBytes();

    void findsBetweenMarkers_data();
    void findsBetweenMarkers();
    void tellsEmptyFromMissing();

    void stripsTags_data();
    void stripsTags();
    void keepsNullApart();

    void boundsTexts();
    void boundsAddresses();
    void takesTimeInProportion_data();
    void takesTimeInProportion();
};

void LookupTextTest::decodesUtf8_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("ASCII") << "abc"_ba << u"abc"_s;
    QTest::newRow("several bytes") << "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x93\x9A"_ba << u"é€📚"_s;
    QTest::newRow("byte-order mark") << "\xEF\xBB\xBF<h1>"_ba << u"<h1>"_s;
    QTest::newRow("byte-order mark alone") << "\xEF\xBB\xBF"_ba << u""_s;
    QTest::newRow("mark further on") << "a\xEF\xBB\xBF"_ba << u"a\uFEFF"_s;
    QTest::newRow("null character") << QByteArray("a\0b", 3) << u"a"_s + QChar(0) + u"b"_s;
    QTest::newRow("nothing") << QByteArray() << u""_s;
}

void LookupTextTest::decodesUtf8()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, text);
    const std::optional<QString> decoded = decodedText(bytes);
    QVERIFY(decoded.has_value());
    QCOMPARE(*decoded, text);
}

void LookupTextTest::refusesOtherBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("Latin 1") << "caf\xE9 au lait"_ba;
    QTest::newRow("cut off") << "abc\xE2\x82"_ba;
    QTest::newRow("continuation alone") << "a\x80z"_ba;
    QTest::newRow("overlong") << "\xC0\xBC"_ba;
    QTest::newRow("surrogate") << "\xED\xA0\x80"_ba;
    QTest::newRow("beyond Unicode") << "\xF4\x90\x80\x80"_ba;
    QTest::newRow("UTF-16") << "\xFF\xFE<\0"_ba;
    QTest::newRow("at the very end of much") << QByteArray(100'000, 'x') + "\xFF";
}

void LookupTextTest::refusesOtherBytes()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(!decodedText(bytes));
}

void LookupTextTest::findsBetweenMarkers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("found"); // null when nothing is
    const auto row = [](const char* name, const QString& text, const QString& start,
                         const QString& end, const QString& found) {
        QTest::newRow(name) << text << start << end << found;
    };
    row("between", u"xx<b>yy</b>zz"_s, u"<b>"_s, u"</b>"_s, u"yy"_s);
    row("the first start", u"<b>1</b><b>2</b>"_s, u"<b>"_s, u"</b>"_s, u"1"_s);
    row("the first end behind it", u"</b><b>1</b>2</b>"_s, u"<b>"_s, u"</b>"_s, u"1"_s);
    row("starts within", u"<b><b>1</b>"_s, u"<b>"_s, u"</b>"_s, u"<b>1"_s);
    row("the same marker", u"a\"b\"c\"d"_s, u"\""_s, u"\""_s, u"b"_s);
    row("no overlap", u"aaa"_s, u"aa"_s, u"aa"_s, QString());
    row("start missing", u"yy</b>"_s, u"<b>"_s, u"</b>"_s, QString());
    row("end missing", u"<b>yy"_s, u"<b>"_s, u"</b>"_s, QString());
    row("end before start alone", u"</b><b>yy"_s, u"<b>"_s, u"</b>"_s, QString());
    row("case counts", u"<B>yy</B>"_s, u"<b>"_s, u"</b>"_s, QString());
    row("no text", QString(), u"<b>"_s, u"</b>"_s, QString());
    row("empty text", u""_s, u"<b>"_s, u"</b>"_s, QString());
    row("lines", u"<b>\n1\n</b>"_s, u"<b>"_s, u"</b>"_s, u"\n1\n"_s);
    row("at the ends", u"[]"_s, u"["_s, u"]"_s, u""_s);
}

void LookupTextTest::findsBetweenMarkers()
{
    QFETCH(const QString, text);
    QFETCH(const QString, start);
    QFETCH(const QString, end);
    QFETCH(const QString, found);
    const QStringView value = extractValue(text, start, end);
    QCOMPARE(value.toString(), found);
    QCOMPARE(value.isNull(), found.isNull());
}

void LookupTextTest::tellsEmptyFromMissing()
{
    QVERIFY(!extractValue(u"<b></b>", u"<b>", u"</b>").isNull());
    QVERIFY(extractValue(u"<b></b>", u"<b>", u"</b>").isEmpty());
    QVERIFY(extractValue(u"<b></b>", u"<i>", u"</i>").isNull());
    QVERIFY(extractValue({}, u"<b>", u"</b>").isNull());
    // What is missing outside is missing inside.
    QVERIFY(extractValue(extractValue(u"x", u"<b>", u"</b>"), u"<i>", u"</i>").isNull());
}

void LookupTextTest::stripsTags_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("cleaned");
    QTest::newRow("the last run") << u"<h1>Foo <i>Bar</i> </h1>"_s << u"Bar"_s;
    QTest::newRow("no tags") << u"Plain title "_s << u"Plain title"_s;
    QTest::newRow("one element") << u"<a href=\"x\">Jane Austen</a>"_s << u"Jane Austen"_s;
    QTest::newRow("a tag in front") << u"<br>Emma"_s << u"Emma"_s;
    QTest::newRow("spaces within") << u"<b>  Mansfield  Park  </b>"_s << u"Mansfield  Park"_s;
    QTest::newRow("line breaks around") << u"<b>\r\n\t Emma</b>"_s << u"Emma"_s;
    // A line break is a character like others where the run ends, but a space is not.
    QTest::newRow("line break as a run") << u"<i>Bar</i>\n</h1>"_s << u""_s;
    QTest::newRow("space is none") << u"<i>Bar</i> </h1>"_s << u"Bar"_s;
    // Without a tag in front the whole text counts, with all that it holds.
    QTest::newRow("tag behind") << u" Emma<br> "_s << u"Emma<br>"_s;
    QTest::newRow("a tag amid the text") << u"a <b>c"_s << u"c"_s;
    QTest::newRow("tags alone") << u"<b></b>"_s << u"<b></b>"_s;
    QTest::newRow("open sign") << u"a < b"_s << u"a < b"_s;
    QTest::newRow("close sign") << u"a > b"_s << u"b"_s;
    QTest::newRow("close sign at the end") << u"a b>"_s << u"a b>"_s;
    QTest::newRow("close signs") << u">>>"_s << u">>>"_s;
    QTest::newRow("starts within a tag") << u"x<a>1<b>2<c d"_s << u"2<c d"_s;
    QTest::newRow("spaces alone") << u"   "_s << u""_s;
    QTest::newRow("nothing") << u""_s << u""_s;
    QTest::newRow("one character") << u"x"_s << u"x"_s;
    QTest::newRow("other white space") << u"\u00A0\u3000x\u2003"_s << u"x"_s;
}

void LookupTextTest::stripsTags()
{
    QFETCH(const QString, text);
    QFETCH(const QString, cleaned);
    QCOMPARE(cleanString(text).toString(), cleaned);
}

void LookupTextTest::keepsNullApart()
{
    QVERIFY(cleanString({}).isNull());
    QVERIFY(!cleanString(u"").isNull());
    QVERIFY(!cleanString(u"  ").isNull());
    QVERIFY(boundedText({}).isNull());
    QVERIFY(!boundedText(u"").isNull());
    QVERIFY(boundedAddress({}).isNull());
    QVERIFY(!boundedAddress(u"").isNull());
}

void LookupTextTest::boundsTexts()
{
    const QString longest(4096, u'x');
    QCOMPARE(boundedText(longest), longest);
    QCOMPARE(boundedText(longest + u'y'), longest);
    const QString book = u"📚"_s;
    QCOMPARE(boundedText(QString(4094, u'x') + book + u'y'), QString(4094, u'x') + book);
    QCOMPARE(boundedText(QString(4095, u'x') + book), QString(4095, u'x'));
    // A lone surrogate is no part of a character.
    const QString lone = QString(4095, u'x') + QChar(0xD800);
    QCOMPARE(boundedText(lone + u'y'), lone);
}

void LookupTextTest::boundsAddresses()
{
    const QString longest(4096, u'x');
    QCOMPARE(boundedAddress(longest), longest);
    QVERIFY(boundedAddress(longest + u'x').isNull());
}

void LookupTextTest::takesTimeInProportion_data()
{
    QTest::addColumn<QString>("piece");
    QTest::newRow("starts") << u"<h1>"_s;
    QTest::newRow("beginnings of ends") << u"</h"_s;
    QTest::newRow("beginnings of starts") << u"<h"_s;
    QTest::newRow("opened tags") << u"<"_s;
    QTest::newRow("closed tags") << u">"_s;
    QTest::newRow("spaces") << u" "_s;
    QTest::newRow("line breaks") << u"\n"_s;
}

void LookupTextTest::takesTimeInProportion()
{
    QFETCH(const QString, piece);
    const QString text = repeated(piece);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(extractValue(text, u"<h1>", u"</h1>").isNull());
    QVERIFY(cleanString(text).size() <= text.size());
    QVERIFY2(timer.elapsed() < generousMilliseconds, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(LookupTextTest)

#include "LookupTextTest.moc"
