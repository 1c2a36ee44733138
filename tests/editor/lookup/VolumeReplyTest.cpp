#include "editor/lookup/VolumeReply.h"
#include "editor/lookup/LookupText.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QString isbn = u"9780143039433"_s;

BookDetails filled(
    const QByteArray& record, Authors authors = Authors::All, const BookDetails& before = {})
{
    BookDetails details = before;
    fillFromVolume(record, isbn, authors, details);
    return details;
}

QByteArray recordOf(const QByteArray& members)
{
    return "{\"volumeInfo\": {" + members + "}}";
}

struct Field {
    QByteArray name; // in the record
    QString BookDetails::*member;
};

const QList<Field>& textFields()
{
    static const QList<Field> fields{
        {"title", &BookDetails::title},
        {"publisher", &BookDetails::publisher},
        {"publishedDate", &BookDetails::publicationDate},
    };
    return fields;
}

const QList<Field>& linkFields()
{
    static const QList<Field> fields{
        {"smallThumbnail", &BookDetails::smallThumbnailImageURL},
        {"thumbnail", &BookDetails::thumbnailImageURL},
        {"small", &BookDetails::smallImageURL},
        {"medium", &BookDetails::mediumImageURL},
        {"large", &BookDetails::largeImageURL},
    };
    return fields;
}

} // namespace

Q_DECLARE_METATYPE(tomely::Authors)

class VolumeReplyTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findsTheIdentifier_data();
    void findsTheIdentifier();
    void boundsTheIdentifier();

    void readsEveryText();
    void readsEveryLink();
    void readsTheIsbn();
    void readsBehindAByteOrderMark();
    void keepsWhatIsThere();
    void takesWhatIsEmpty();
    void ignoresOtherTypes_data();
    void ignoresOtherTypes();
    void tellsEmptyFromMissing();
    void ignoresOtherRecords_data();
    void ignoresOtherRecords();

    void joinsAuthors_data();
    void joinsAuthors();
    void joinsManyAuthors();
    void writesPageCounts_data();
    void writesPageCounts();
    void boundsTexts();
};

void VolumeReplyTest::findsTheIdentifier_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("identifier"); // null when there is none
    QTest::newRow("as usual") << u"\"https://b.example/books?id=JmNrrVe5hJ0C\\u0026source=x\""_s
                              << u"JmNrrVe5hJ0C"_s;
    QTest::newRow("the first of several") << u"?id=A\\u0026?id=B\\u0026"_s << u"A"_s;
    QTest::newRow("empty") << u"?id=\\u0026"_s << u""_s;
    QTest::newRow("two starts") << u"?id=A?id=B\\u0026"_s << u"A?id=B"_s;
    QTest::newRow("anything") << u"?id= /é\"\\u0026"_s << u" /é\""_s;
    QTest::newRow("no start") << u"id=A\\u0026"_s << QString();
    QTest::newRow("no end") << u"?id=A"_s << QString();
    QTest::newRow("a plain ampersand") << u"?id=A&source=x"_s << QString();
    QTest::newRow("case counts") << u"?id=A\\U0026"_s << QString();
    QTest::newRow("end before start") << u"\\u0026?id=A\\u0026"_s << QString();
    QTest::newRow("nothing") << u""_s << QString();
    QTest::newRow("no text") << QString() << QString();
}

void VolumeReplyTest::findsTheIdentifier()
{
    QFETCH(const QString, text);
    QFETCH(const QString, identifier);
    QCOMPARE(volumeIdentifier(text), identifier);
    QCOMPARE(volumeIdentifier(text).isNull(), identifier.isNull());
}

void VolumeReplyTest::boundsTheIdentifier()
{
    const QString longest(256, u'x');
    QCOMPARE(volumeIdentifier(u"?id="_s + longest + u"\\u0026"_s), longest);
    QVERIFY(volumeIdentifier(u"?id="_s + longest + u"x\\u0026"_s).isNull());
}

void VolumeReplyTest::readsEveryText()
{
    for (const Field& field : textFields()) {
        const QByteArray member = '"' + field.name + R"(": "A \u00e9 \" b")";
        const BookDetails details = filled(recordOf(member));
        for (const Field& other : textFields())
            QCOMPARE(details.*other.member, other.name == field.name ? u"A é \" b"_s : QString());
    }
}

void VolumeReplyTest::readsEveryLink()
{
    for (const Field& field : linkFields()) {
        const BookDetails details =
            filled(recordOf("\"imageLinks\": {\"" + field.name + R"(": "http://x/y?zoom=1"})"));
        for (const Field& other : linkFields()) {
            const bool isIt = other.name == field.name;
            QCOMPARE(details.*other.member, isIt ? u"http://x/y?zoom=1"_s : QString());
        }
    }
}

void VolumeReplyTest::readsTheIsbn()
{
    QCOMPARE(filled(recordOf({})).isbn, isbn);
    BookDetails before;
    before.isbn = u"1"_s;
    QCOMPARE(filled(recordOf({}), Authors::All, before).isbn, u"1"_s);
}

void VolumeReplyTest::readsBehindAByteOrderMark()
{
    QCOMPARE(filled("\xEF\xBB\xBF" + recordOf(R"("title": "x")")).title, u"x"_s);
}

void VolumeReplyTest::keepsWhatIsThere()
{
    BookDetails before;
    before.author = u"a"_s;
    before.numberOfPages = u"1"_s;
    for (const Field& field : textFields() + linkFields())
        before.*field.member = QString::fromUtf8(field.name);
    const BookDetails details = filled(recordOf(R"("title": "x", "authors": ["x"],
        "publisher": "x", "publishedDate": "x", "printedPageCount": 2, "imageLinks": {"small": "x",
        "smallThumbnail": "x", "thumbnail": "x", "medium": "x", "large": "x"})"),
        Authors::All, before);
    QCOMPARE(details.author, u"a"_s);
    QCOMPARE(details.numberOfPages, u"1"_s);
    for (const Field& field : textFields() + linkFields())
        QCOMPARE(details.*field.member, QString::fromUtf8(field.name));
}

void VolumeReplyTest::takesWhatIsEmpty()
{
    BookDetails before;
    before.title = u""_s;
    before.author = u""_s;
    before.largeImageURL = u""_s;
    const BookDetails details =
        filled(recordOf(R"("title": "t", "authors": ["a"], "imageLinks": {"large": "l"})"),
            Authors::All, before);
    QCOMPARE(details.title, u"t"_s);
    QCOMPARE(details.author, u"a"_s);
    QCOMPARE(details.largeImageURL, u"l"_s);
}

void VolumeReplyTest::ignoresOtherTypes_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char* const value : {"null", "true", "[\"x\"]", "{\"x\": \"x\"}"})
        QTest::newRow(value) << QByteArray(value);
}

void VolumeReplyTest::ignoresOtherTypes()
{
    QFETCH(const QByteArray, value);
    QByteArray members = "\"printedPageCount\": " + value;
    for (const Field& field : textFields())
        members += ", \"" + field.name + "\": " + value;
    QByteArray links;
    for (const Field& field : linkFields())
        links += (links.isEmpty() ? "\"" : ", \"") + field.name + "\": " + value;
    const BookDetails details = filled(recordOf(members + ", \"imageLinks\": {" + links + '}'));
    QCOMPARE(details.isbn, isbn);
    QVERIFY(details.numberOfPages.isNull());
    for (const Field& field : textFields() + linkFields())
        QVERIFY2((details.*field.member).isNull(), field.name.constData());
    // Nothing that is not a list names authors, and nothing that is not an object names covers.
    const QByteArray wrong = value.startsWith('[') ? "{\"0\": \"x\"}" : value;
    QVERIFY(filled(recordOf("\"authors\": " + wrong)).author.isNull());
    if (!value.startsWith('{'))
        QVERIFY(filled(recordOf("\"imageLinks\": " + value)).smallImageURL.isNull());
    QVERIFY(filled(recordOf(R"("title": 5, "printedPageCount": "5")")).title.isNull());
    QVERIFY(filled(recordOf(R"("title": 5, "printedPageCount": "5")")).numberOfPages.isNull());
}

void VolumeReplyTest::tellsEmptyFromMissing()
{
    const BookDetails details = filled(recordOf(R"("title": "", "imageLinks": {"small": ""})"));
    QVERIFY(details.title.isEmpty());
    QVERIFY(!details.title.isNull());
    QVERIFY(!details.smallImageURL.isNull());
    QVERIFY(details.publisher.isNull());
    QVERIFY(details.mediumImageURL.isNull());
}

void VolumeReplyTest::ignoresOtherRecords_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no JSON") << "<html>busy</html>"_ba;
    QTest::newRow("cut off") << R"({"volumeInfo": {"title": "x")"_ba;
    QTest::newRow("not UTF-8") << "{\"volumeInfo\": {\"title\": \"\xE9\"}}"_ba;
    QTest::newRow("more behind it") << R"({"volumeInfo": {"title": "x"}} x)"_ba;
    QTest::newRow("a list") << R"([{"volumeInfo": {"title": "x"}}])"_ba;
    QTest::newRow("a text") << R"("volumeInfo")"_ba;
    QTest::newRow("no volume") << R"({"title": "x"})"_ba;
    QTest::newRow("a volume that is no object") << R"({"volumeInfo": ["title"]})"_ba;
    QTest::newRow("a volume that is null") << R"({"volumeInfo": null})"_ba;
    QTest::newRow("too deep") << QByteArray(100'000, '[') + QByteArray(100'000, ']');
}

void VolumeReplyTest::ignoresOtherRecords()
{
    QFETCH(const QByteArray, record);
    const BookDetails details = filled(record);
    QVERIFY(details.isbn.isNull());
    QVERIFY(details.title.isNull());
}

void VolumeReplyTest::joinsAuthors_data()
{
    QTest::addColumn<QByteArray>("authors");
    QTest::addColumn<Authors>("wanted");
    QTest::addColumn<QString>("text");
    const QByteArray four = R"(["A", "B", "C", "D"])";
    QTest::newRow("four") << four << Authors::All << u"A and B and C and D"_s;
    QTest::newRow("the first of four") << four << Authors::FirstOnly << u"A"_s;
    QTest::newRow("one") << R"(["A"])"_ba << Authors::All << u"A"_s;
    QTest::newRow("two") << R"(["A", "B"])"_ba << Authors::All << u"A and B"_s;
    QTest::newRow("none") << "[]"_ba << Authors::All << QString();
    QTest::newRow("no first") << "[]"_ba << Authors::FirstOnly << QString();
    QTest::newRow("others between")
        << R"([1, "A", null, ["X"], "B", {}])"_ba << Authors::All << u"A and B"_s;
    QTest::newRow("the first that is one") << R"([1, "A", "B"])"_ba << Authors::FirstOnly << u"A"_s;
    QTest::newRow("others alone") << "[1, null]"_ba << Authors::All << QString();
    QTest::newRow("an empty one first") << R"(["", "B"])"_ba << Authors::All << u" and B"_s;
    QTest::newRow("no list") << R"("A")"_ba << Authors::All << QString();
}

void VolumeReplyTest::joinsAuthors()
{
    QFETCH(const QByteArray, authors);
    QFETCH(const Authors, wanted);
    QFETCH(const QString, text);
    const BookDetails details = filled(recordOf("\"authors\": " + authors), wanted);
    QCOMPARE(details.author, text);
    QCOMPARE(details.author.isNull(), text.isNull());
}

void VolumeReplyTest::joinsManyAuthors()
{
    QByteArray authors = "\"A\"";
    for (int count = 1; count < 1'000'000; ++count)
        authors += ",\"\"";
    QElapsedTimer timer;
    timer.start();
    const QString author = filled(recordOf("\"authors\": [" + authors + ']')).author;
    // Growing a new text for each would take hours.
    QVERIFY(timer.elapsed() < 20'000);
    QCOMPARE(author.size(), MostTextUnits);
    QVERIFY(author.startsWith(u"A and  and  and "));
}

void VolumeReplyTest::writesPageCounts_data()
{
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << "464"_ba << u"464"_s;
    QTest::newRow("zero") << "0"_ba << u"0"_s;
    QTest::newRow("negative") << "-12"_ba << u"-12"_s;
    QTest::newRow("whole with a point") << "464.0"_ba << u"464"_s;
    QTest::newRow("whole with an exponent") << "4.64e2"_ba << u"464"_s;
    QTest::newRow("fraction") << "464.5"_ba << u"464.5"_s;
    QTest::newRow("shortest") << "0.1"_ba << u"0.1"_s;
    QTest::newRow("exact beyond doubles") << "9007199254740993"_ba << u"9007199254740993"_s;
    QTest::newRow("the last of 64 bits") << "9223372036854775807"_ba << u"9223372036854775807"_s;
    QTest::newRow("beyond them") << "1e20"_ba << u"100000000000000000000"_s;
}

void VolumeReplyTest::writesPageCounts()
{
    QFETCH(const QByteArray, number);
    QFETCH(const QString, text);
    QCOMPARE(filled(recordOf("\"printedPageCount\": " + number)).numberOfPages, text);
}

void VolumeReplyTest::boundsTexts()
{
    const QByteArray longest(MostTextUnits, 'x');
    for (const Field& field : textFields()) {
        const BookDetails details =
            filled(recordOf('"' + field.name + "\": \"" + longest + "yz\""));
        QCOMPARE(details.*field.member, QString::fromUtf8(longest));
    }
    QCOMPARE(filled(recordOf("\"authors\": [\"" + longest + "y\", \"z\"]")).author,
        QString::fromUtf8(longest));
    for (const Field& field : linkFields()) {
        const QByteArray start = "\"imageLinks\": {\"" + field.name + "\": \"";
        QCOMPARE(
            filled(recordOf(start + longest + "\"}")).*field.member, QString::fromUtf8(longest));
        QVERIFY((filled(recordOf(start + longest + "x\"}")).*field.member).isNull());
    }
    QVERIFY(filled(recordOf("\"printedPageCount\": 1e308")).numberOfPages.size() == 309);
}

QTEST_GUILESS_MAIN(VolumeReplyTest)

#include "VolumeReplyTest.moc"
