#include "cli/JsonWriter.h"

#include <QTemporaryFile>
#include <QTest>

#include <functional>
#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QByteArray written(const std::function<void(JsonWriter&)>& write)
{
    QTemporaryFile file;
    if (!file.open())
        return {};
    {
        Output output(file.handle());
        JsonWriter json(output);
        write(json);
    }
    file.seek(0);
    return file.readAll();
}

} // namespace

class JsonWriterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesValues_data();
    void writesValues();
    void writesNumbersThatReadBack();
    void laysOutSideBySide();
    void laysOutLines();
    void tellsNoneFromEmpty();
};

void JsonWriterTest::writesValues_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("plain") << u"Emma"_s << "\"Emma\""_ba;
    QTest::newRow("quotes") << u"a\"b\\c/d"_s << R"("a\"b\\c/d")"_ba;
    QTest::newRow("short escapes") << u"\b\f\n\r\t"_s << R"("\b\f\n\r\t")"_ba;
    QTest::newRow("long escapes") << QString(QChar(0)) + QChar(0x1F) << R"("\u0000\u001f")"_ba;
    QTest::newRow("delete") << u"\u007F"_s << "\"\x7F\""_ba;
    QTest::newRow("beyond ASCII") << u"ä€😀"_s << "\"ä€😀\""_ba;
    const QString lone = QString(QChar(0xD800)) + u'x' + QChar(0xDC00);
    QTest::newRow("lone surrogates") << lone << "\"\uFFFDx\uFFFD\""_ba;
    const QString behindPair = u"😀"_s + QChar(0xD83D);
    QTest::newRow("pair and a half") << behindPair << "\"😀\uFFFD\""_ba;
}

void JsonWriterTest::writesValues()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, json);
    QCOMPARE(written([&text](JsonWriter& writer) { writer.text(text); }), json);
}

void JsonWriterTest::writesNumbersThatReadBack()
{
    const auto real = [](double value) {
        return written([value](JsonWriter& writer) { writer.real(value); });
    };
    QCOMPARE(real(0), "0"_ba);
    QCOMPARE(real(12.5), "12.5"_ba);
    QCOMPARE(real(0.1), "0.1"_ba);
    QCOMPARE(real(-3), "-3"_ba);
    QCOMPARE(real(1e300), "1e+300"_ba);
    QCOMPARE(real(0.1 + 0.2), "0.30000000000000004"_ba);
    QCOMPARE(real(std::numeric_limits<double>::quiet_NaN()), "\"nan\""_ba);
    QCOMPARE(real(std::numeric_limits<double>::infinity()), "\"inf\""_ba);
    QCOMPARE(real(-std::numeric_limits<double>::infinity()), "\"-inf\""_ba);
    QCOMPARE(real(-std::numeric_limits<double>::max()), "-1.7976931348623157e+308"_ba);
    QCOMPARE(written([](JsonWriter& writer) { writer.integer(-7); }), "-7"_ba);
}

void JsonWriterTest::laysOutSideBySide()
{
    const QByteArray json = written([](JsonWriter& writer) {
        writer.beginObject();
        writer.name("a"_L1);
        writer.beginArray();
        writer.integer(1);
        writer.null();
        writer.boolean(true);
        writer.endArray();
        writer.name("b\""_L1);
        writer.beginObject();
        writer.endObject();
        writer.endObject();
    });
    QCOMPARE(json,
        R"({"a": [1, null, true], "b\"": {}})"
        "\n"_ba);
}

void JsonWriterTest::laysOutLines()
{
    const QByteArray json = written([](JsonWriter& writer) {
        writer.beginObject(JsonWriter::Layout::Lines);
        writer.name("a"_L1);
        writer.beginArray(JsonWriter::Layout::Lines);
        writer.integer(1);
        writer.integer(2);
        writer.endArray();
        writer.name("b"_L1);
        writer.beginObject(JsonWriter::Layout::Lines);
        writer.endObject();
        writer.endObject();
    });
    QCOMPARE(json, "{\n  \"a\": [\n    1,\n    2\n  ],\n  \"b\": {}\n}\n"_ba);
}

void JsonWriterTest::tellsNoneFromEmpty()
{
    const QByteArray json = written([](JsonWriter& writer) {
        writer.beginArray();
        writer.text(QString());
        writer.text(u""_s);
        writer.endArray();
    });
    QCOMPARE(json, "[null, \"\"]\n"_ba);
}

QTEST_APPLESS_MAIN(JsonWriterTest)

#include "JsonWriterTest.moc"
