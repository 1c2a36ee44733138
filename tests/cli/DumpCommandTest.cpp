#include "model/BookField.h"
#include "tests/cli/Program.h"
#include "tests/cli/SampleCollection.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// The names of members in the order in which they stand in a text of JSON that has no nested names
/// of interest.
QStringList namesIn(const QString& json)
{
    static const QRegularExpression name(u"\"(\\w+)\": "_s);
    QStringList names;
    for (const QRegularExpressionMatch& match : name.globalMatch(json))
        names.append(match.captured(1));
    return names;
}

} // namespace

class DumpCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void dumpsTheSampleExactly();
    void dumpsMembersInOrder();
    void dumpsBookFieldsInOrder();
    void dumpsEveryField();
    void ordersKeysAsNumbers();
    void tellsNoneFromEmpty();
    void dumpsPictures();
    void dumpsNumbersExactly();
    void dumpsTheVersionThatWasRead();

private:
    QString path() const { return m_folder->filePath(u"d.books"_s); }

    QByteArray dumped(BookListDocument& document);
    QJsonObject parsed(BookListDocument& document);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void DumpCommandTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QByteArray DumpCommandTest::dumped(BookListDocument& document)
{
    if (!save(document, path()))
        return {};
    const ProgramResult result = runProgram({u"dump"_s, path()});
    return result.status == 0 && result.errors.isEmpty() ? result.output : QByteArray();
}

QJsonObject DumpCommandTest::parsed(BookListDocument& document)
{
    return QJsonDocument::fromJson(dumped(document)).object();
}

void DumpCommandTest::dumpsTheSampleExactly()
{
    BookListDocument document;
    document.addBook(std::make_unique<BookEntry>());
    const QByteArray json = dumped(document);
    QVERIFY(json.startsWith(R"({
  "version": 4,
  "lastGroupKey": 2,
  "lastBookNumber": 1,
  "sortField": 0,
  "groups": {"1": "Fiction", "2": "Non Fiction"},
  "labels": {"42": "Custom Field 1", )"));
    QVERIFY(json.contains(R"(  "columns": {
    "0": {"name": "Title", "selectionName": "Title", "position": 0, "width": 258, "filterType": 0, "centered": false},
    "2": )"));
    QVERIFY(json.endsWith(R"("groups": {}, "images": [null, null, null, null, null]}
  }
}
)"));
    QVERIFY(json.contains(R"(  "windowFrame": [0, 0, 0, 0],
  "customizeListFrame": [0, 0, 0, 0],
  "groupManagerFrame": [0, 0, 0, 0],
  "imageSplitter": [[0, 0, 0, 0], [0, 0, 0, 0]],
  "listSplitter": [[0, 0, 0, 0], [0, 0, 0, 0]],
  "books": {
    "1": {"key": "1", "title": )"));
}

void DumpCommandTest::dumpsMembersInOrder()
{
    const QString json = QString::fromUtf8(dumped(*sample()));
    static const QRegularExpression outer(
        u"^  \"(\\w+)\": "_s, QRegularExpression::MultilineOption);
    QStringList names;
    for (const QRegularExpressionMatch& match : outer.globalMatch(json))
        names.append(match.captured(1));
    QCOMPARE(names.join(u' '),
        u"version lastGroupKey lastBookNumber sortField groups labels columns windowFrame "
        "customizeListFrame groupManagerFrame imageSplitter listSplitter books"_s);
}

void DumpCommandTest::dumpsBookFieldsInOrder()
{
    BookListDocument document;
    document.addBook(std::make_unique<BookEntry>());
    const QString json = QString::fromUtf8(dumped(document));
    QStringList expected{u"key"_s};
    expected += u"title author notes type rating pricePaid pricePaidFrom publisher isbn pages "
                "estValue location lentTo"_s.split(u' ');
    for (const char* const date :
        {"Published", "EstValue", "Lent", "Purchased", "FirstRead", "LastRead", "Copyright"}) {
        expected << u"month"_s + QLatin1StringView(date) << u"year"_s + QLatin1StringView(date);
    }
    for (int i = 1; i <= 7; ++i)
        expected << u"customField%1"_s.arg(i);
    for (int i = 1; i <= 3; ++i)
        expected << u"customYear%1"_s.arg(i) << u"customMonth%1"_s.arg(i);
    for (int i = 1; i <= 8; ++i)
        expected << u"customSwitch%1"_s.arg(i);
    expected += u"own signed firstEdition read groups images"_s.split(u' ');
    QCOMPARE(namesIn(json.section(u"\"1\": {\"key\""_s, -1).prepend(u"\"key\"")), expected);
}

void DumpCommandTest::dumpsEveryField()
{
    BookListDocument document;
    auto book = std::make_unique<BookEntry>();
    int number = 100;
    for (const BookField& field : bookFields()) {
        ++number;
        std::visit(
            [&book, number](const auto& access) {
                using Value = std::decay_t<decltype((*book).*access.stored)>;
                if constexpr (std::is_same_v<Value, QString>)
                    (*book).*access.stored = QString::number(number);
                else if constexpr (std::is_same_v<Value, bool>)
                    (*book).*access.stored = number % 2 == 0;
                else
                    (*book).*access.stored = static_cast<Value>(number);
            },
            field.access);
    }
    document.addBook(std::move(book));
    const QJsonObject dump = parsed(document)[u"books"_s].toObject()[u"1"_s].toObject();
    number = 100;
    for (const BookField& field : bookFields()) {
        ++number;
        const QJsonValue value = dump[QLatin1StringView(field.name)];
        if (field.kind == FieldKind::Text || field.kind == FieldKind::Year)
            QCOMPARE(value, QJsonValue(QString::number(number)));
        else if (field.kind == FieldKind::Flag)
            QCOMPARE(value, QJsonValue(number % 2 == 0));
        else
            QCOMPARE(value, QJsonValue(number));
    }
}

void DumpCommandTest::ordersKeysAsNumbers()
{
    BookListDocument document;
    for (int i = 0; i < 12; ++i)
        document.addBook(std::make_unique<BookEntry>());
    document.getBookEntry(u"1")->addToGroup(u"10"_s);
    document.getBookEntry(u"1")->addToGroup(u"9"_s);
    const QByteArray json = dumped(document);
    QVERIFY(json.indexOf("\n    \"9\": {\"key\"") < json.indexOf("\n    \"10\": {\"key\""));
    QVERIFY(json.contains(R"("groups": {"9": "9", "10": "10"})"));
    QVERIFY(json.indexOf("\n    \"8\": {\"name\"") < json.indexOf("\n    \"10\": {\"name\""));
}

void DumpCommandTest::tellsNoneFromEmpty()
{
    BookListDocument document;
    auto book = std::make_unique<BookEntry>();
    book->setTitle(u""_s);
    document.addBook(std::move(book));
    const QByteArray json = dumped(document);
    QVERIFY(json.contains(R"("title": "", "author": null, "notes": null, "type": 0)"));
}

void DumpCommandTest::dumpsPictures()
{
    BookListDocument document;
    auto book = std::make_unique<BookEntry>();
    book->setImageData(1, "abc"_ba);
    book->setImageData(5, ""_ba);
    document.addBook(std::move(book));
    QVERIFY(dumped(document).contains(
        R"("images": [{"bytes": 3, "sha1": "a9993e364706816aba3e25717850c26c9cd0d89d"}, )"
        R"(null, null, null, {"bytes": 0, "sha1": "da39a3ee5e6b4b0d3255bfef95601890afd80709"}])"));
}

void DumpCommandTest::dumpsNumbersExactly()
{
    BookListDocument document;
    auto book = std::make_unique<BookEntry>();
    book->setPricePaid(0.1);
    book->setEstValue(std::numeric_limits<double>::quiet_NaN());
    book->setPages(std::numeric_limits<qint32>::min());
    document.addBook(std::move(book));
    document.setCustomizeListControllerWindowPosition({100.3, -7, 1e9, 0.5});
    const QByteArray json = dumped(document);
    QVERIFY(json.contains(R"("pricePaid": 0.1, )"));
    QVERIFY(json.contains(R"("estValue": "nan", )"));
    QVERIFY(json.contains(R"("pages": -2147483648, )"));
    // Frames are kept in single precision.
    QVERIFY(json.contains(R"("customizeListFrame": [100.30000305175781, -7, 1e+09, 0.5])"));
    QVERIFY(!QJsonDocument::fromJson(json).isNull());
}

void DumpCommandTest::dumpsTheVersionThatWasRead()
{
    QVERIFY(saveSample(path()) && setFileVersion(path(), 3));
    QVERIFY(runProgram({u"dump"_s, path()}).output.startsWith("{\n  \"version\": 3,\n"));
}

QTEST_GUILESS_MAIN(DumpCommandTest)

#include "DumpCommandTest.moc"
