// The XML interchange file as bytes: its elements, its encodings and what is refused.

#include "model/BookCollectionXml.h"
#include "model/XmlReader.h"
#include "tests/support/BookSamples.h"

#include <QStringConverter>
#include <QTest>

#include <ctime>
#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

constexpr double mostSeconds = 2; // of the processor, however busy the machine is

const QString umlauts = u"<r><Books><Book><Title>Bücher 猫 📚</Title></Book></Books></r>"_s;

QByteArray encoded(const QString& text, QStringConverter::Encoding encoding, bool hasMark)
{
    QStringEncoder encoder(
        encoding, hasMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

/// The reason why the bytes are refused; null when they are not.
QString refusal(const QByteArray& bytes)
{
    try {
        readBookCollectionXml(bytes);
    } catch (const XmlError& error) {
        return error.message();
    }
    return {};
}

QByteArray inBook(const QByteArray& content)
{
    return "<r><Books><Book>" + content + "</Book></Books></r>";
}

QByteArray entityBomb()
{
    QByteArray bytes("<!DOCTYPE r [<!ENTITY a \"aaaaaaaaaa\">");
    for (char name = 'b'; name <= 'z'; ++name) {
        const QByteArray reference = QByteArray("&") + char(name - 1) + ';';
        bytes += QByteArray("<!ENTITY ") + name + " \"" + reference.repeated(10) + "\">";
    }
    return bytes + "]>" + inBook("<Title>&z;</Title>");
}

} // namespace

class BookCollectionXmlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findsTheBooks_data();
    void findsTheBooks();
    void readsEveryEncoding_data();
    void readsEveryEncoding();
    void readsCharactersAcrossPieces();
    void readsADeclaredEncoding();
    void refuses_data();
    void refuses();
    void isNotLedAstray_data();
    void isNotLedAstray();
    void refusesTooManyBooks();
    void takesMoreBooksOfALargerFile();
    void tellsTheLine();
    void writesNothingButTheFrame();
    void canBeLeft();
};

void BookCollectionXmlTest::findsTheBooks_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("titles");
    const QByteArray emma = "<Book><Title>Emma</Title></Book>";
    const QByteArray kim = "<Book><Title>Kim</Title></Book>";
    QTest::newRow("in order") << "<BookCollection><Books>" + kim + emma
            + "</Books></BookCollection>"
                              << QStringList{u"Kim"_s, u"Emma"_s};
    QTest::newRow("any root") << "<?xml version='1.0'?><a b='c'><Books>" + emma + "</Books></a>"
                              << QStringList{u"Emma"_s};
    QTest::newRow("twice the same")
        << "<r><Books>" + emma + emma + "</Books></r>" << QStringList{u"Emma"_s, u"Emma"_s};
    QTest::newRow("empty book") << "<r><Books><Book/></Books></r>"_ba << QStringList{u""_s};
    QTest::newRow("no list") << "<r>" + emma + "</r>" << QStringList();
    QTest::newRow("empty list") << "<r><Books/></r>"_ba << QStringList();
    QTest::newRow("two lists") << "<r><Books>" + emma + "</Books><Books>" + kim + "</Books></r>"
                               << QStringList();
    QTest::newRow("two lists, one empty")
        << "<r><Books>" + emma + "</Books><Books/></r>" << QStringList();
    QTest::newRow("list as root") << "<Books>" + emma + "</Books>" << QStringList();
    QTest::newRow("list too deep") << "<r><x><Books>" + emma + "</Books></x></r>" << QStringList();
    QTest::newRow("list of another case") << "<r><books>" + emma + "</books></r>" << QStringList();
    QTest::newRow("others beside")
        << "<r><x/>text<Books>text<x>" + kim + "</x>" + emma + "</Books><x>" + kim + "</x></r>"
        << QStringList{u"Emma"_s};
    QTest::newRow("book in a book") << "<r><Books><Book>" + kim
            + "<Title>Emma</Title></Book>"
              "</Books></r>" << QStringList{u"Emma"_s};
    QTest::newRow("list in a list")
        << "<r><Books><Books>" + kim + "</Books>" + emma + "</Books></r>" << QStringList{u"Emma"_s};
}

void BookCollectionXmlTest::findsTheBooks()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QStringList, titles);
    QStringList found;
    for (const auto& book : readBookCollectionXml(bytes))
        found.append(book->getTitle());
    QCOMPARE(found, titles);
}

void BookCollectionXmlTest::readsEveryEncoding_data()
{
    QTest::addColumn<QByteArray>("bytes");
    using enum QStringConverter::Encoding;
    for (const bool hasMark : {true, false}) {
        const char* const mark = hasMark ? "with mark" : "without mark";
        const auto row = [&](const char* name, QStringConverter::Encoding encoding) {
            QTest::addRow("%s %s", name, mark) << encoded(umlauts, encoding, hasMark);
            const QString declared = u"<?xml version=\"1.0\"?>\n"_s + umlauts;
            QTest::addRow("%s %s, declared", name, mark) << encoded(declared, encoding, hasMark);
        };
        row("UTF-8", Utf8);
        row("UTF-16LE", Utf16LE);
        row("UTF-16BE", Utf16BE);
        row("UTF-32LE", Utf32LE);
        row("UTF-32BE", Utf32BE);
    }
    QTest::newRow("declared UTF-8")
        << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + umlauts.toUtf8();
    const QString utf16 = u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>"_s + umlauts;
    QTest::newRow("declared UTF-16") << encoded(utf16, Utf16LE, true);
    QTest::newRow("declared UTF-16, without mark") << encoded(utf16, Utf16BE, false);
    // What the first characters are read as is what all are.
    const QString utf8 = u"<?xml version=\"1.0\" encoding=\"utf-8\"?>"_s + umlauts;
    QTest::newRow("UTF-16 declared UTF-8") << encoded(utf8, Utf16LE, true);
    QTest::newRow("UTF-32 declared UTF-8") << encoded(utf8, Utf32LE, true);
    QTest::newRow("UTF-8 with mark, declared UTF-8") << encoded(utf8, Utf8, true);
}

void BookCollectionXmlTest::readsEveryEncoding()
{
    QFETCH(const QByteArray, bytes);
    const ReadBooks books = readBookCollectionXml(bytes);
    QCOMPARE(books.size(), std::size_t(1));
    QCOMPARE(books[0]->getTitle(), u"Bücher 猫 📚"_s);
}

// However the file is cut into pieces while it is read, no character is cut in two.
void BookCollectionXmlTest::readsCharactersAcrossPieces()
{
    for (const QString& filling : {u""_s, u"x"_s}) {
        const QString notes = filling + u"📚"_s.repeated(300'000);
        const QString xml = u"<r><Books><Book><Notes>"_s + notes + u"</Notes></Book></Books></r>"_s;
        for (const auto encoding :
            {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf32BE}) {
            const ReadBooks books = readBookCollectionXml(encoded(xml, encoding, true));
            QVERIFY(books.at(0)->getNotes() == notes);
        }
    }
}

void BookCollectionXmlTest::readsADeclaredEncoding()
{
    const ReadBooks books = readBookCollectionXml("<?xml version='1.0' encoding='ISO-8859-1'?>"
        + inBook("<Title>B\xFC"
                 "cher</Title>"));
    QCOMPARE(books.at(0)->getTitle(), u"Bücher"_s);
}

void BookCollectionXmlTest::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    using enum QStringConverter::Encoding;
    const QByteArray sound = encoded(umlauts, Utf16LE, true);
    QTest::newRow("nothing") << ""_ba;
    QTest::newRow("only a mark") << "\xFF\xFE"_ba;
    QTest::newRow("text") << "Emma, Jane Austen"_ba;
    QTest::newRow("cut off") << sound.first(sound.size() - 2);
    QTest::newRow("odd byte count") << sound.first(sound.size() - 1);
    QTest::newRow("one byte more") << sound + '\n';
    QTest::newRow("UTF-32 cut off") << encoded(umlauts, Utf32LE, true).chopped(2);
    QTest::newRow("UTF-8 cut off") << "<r>\xC3</r>"_ba;
    QTest::newRow("UTF-8 too long") << "<r>\xC0\x80</r>"_ba;
    QTest::newRow("lone surrogate")
        << encoded(u"<r>"_s, Utf16LE, true) + "\x00\xD8"_ba + encoded(u"</r>"_s, Utf16LE, false);
    QTest::newRow("surrogate at the end") << encoded(u"<r/>"_s, Utf16LE, true) + "\x00\xD8"_ba;
    QTest::newRow("tags that do not match") << inBook("<Title>Emma</title>");
    QTest::newRow("year with an ampersand")
        << inBook("<DateLent><Month></Month><Year>1 & 2</Year></DateLent>");
    QTest::newRow("unknown entity") << inBook("<Title>&nbsp;</Title>");
    QTest::newRow("control character") << inBook("<Title>\x01</Title>");
    QTest::newRow("two roots") << inBook({}) + inBook({});
    QTest::newRow("attribute twice") << inBook("<Title a='1' a='2'/>");
    QTest::newRow("unknown encoding") << "<?xml version='1.0' encoding='EBCDIC'?>" + inBook({});
    QTest::newRow("document type") << "<!DOCTYPE r>" + inBook({});
    QTest::newRow("document type elsewhere")
        << "<!DOCTYPE r SYSTEM 'file:///etc/passwd'>" + inBook({});
    QTest::newRow("entity in it") << "<!DOCTYPE r [<!ENTITY e SYSTEM 'file:///etc/passwd'>]>"
            + inBook("<Title>&e;</Title>");
}

void BookCollectionXmlTest::refuses()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(!refusal(bytes).isEmpty());
}

void BookCollectionXmlTest::isNotLedAstray_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isRead");
    constexpr int million = 1'000'000;
    QByteArray attributes;
    for (int number = 0; number < 100'000; ++number)
        attributes += " a" + QByteArray::number(number) + "=''";
    QTest::newRow("entity bomb") << entityBomb() << false;
    QTest::newRow("100,000 attributes") << inBook("<Title" + attributes + "/>") << false;
    QTest::newRow("a million levels")
        << QByteArray("<a>").repeated(million) + QByteArray("</a>").repeated(million) << false;
    QTest::newRow("a million levels in a book")
        << inBook(QByteArray("<a>").repeated(million) + QByteArray("</a>").repeated(million))
        << false;
    QTest::newRow("endless attribute")
        << inBook("<Title a='" + QByteArray(40 * million, 'x') + "'/>") << false;
    QTest::newRow("endless name") << inBook('<' + QByteArray(40 * million, 'x')) << false;
    QTest::newRow("endless comment")
        << "<!--" + QByteArray(40 * million, 'x') + "-->" + inBook({}) << false;
    QTest::newRow("many comments")
        << inBook(QByteArray("<!--" + QByteArray(1 << 19, 'x') + "-->").repeated(60)) << true;
    QTest::newRow("many names") << [] {
        QByteArray content;
        for (int number = 0; number < million / 4; ++number)
            content += "<n" + QByteArray::number(number) + "/>";
        return inBook(content);
    }() << true;
    QTest::newRow("many titles") << inBook(QByteArray("<Title>x</Title>").repeated(million))
                                 << true;
    QTest::newRow("long text") << inBook("<Notes>" + QByteArray(40 * million, 'x') + "</Notes>")
                               << true;
    QTest::newRow("many references")
        << inBook("<Notes>" + QByteArray("&amp;").repeated(million) + "</Notes>") << true;
    QTest::newRow("no byte-order mark")
        << encoded(umlauts, QStringConverter::Utf16LE, false) << true;
}

void BookCollectionXmlTest::isNotLedAstray()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const bool, isRead);
    const std::clock_t start = std::clock();
    const QString reason = refusal(bytes);
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < mostSeconds, qPrintable(QString::number(seconds)));
    QVERIFY2(reason.isNull() == isRead, qPrintable(reason));
}

void BookCollectionXmlTest::refusesTooManyBooks()
{
    const QByteArray bytes = "<r><Books>" + QByteArray("<Book/>").repeated(5) + "</Books></r>";
    QCOMPARE(readBookCollectionXml(bytes, {}, 5).size(), std::size_t(5));
    QVERIFY_THROWS_EXCEPTION(XmlError, readBookCollectionXml(bytes, {}, 4));

    // Far fewer than it has, since they are empty.
    const QByteArray million = "<r><Books>" + QByteArray("<Book/>").repeated(1'000'000);
    QCOMPARE(refusal(million + "</Books></r>"), u"too many books"_s);
}

void BookCollectionXmlTest::takesMoreBooksOfALargerFile()
{
    constexpr std::size_t million = 1'000'000;
    const auto bytes = [](const char* book, qsizetype count) {
        return qsizetype(qstrlen(book)) * count;
    };
    QVERIFY(mostXmlBooks(0) > 100'000);
    QVERIFY(mostXmlBooks(bytes("<Book/>", million)) < million);
    QVERIFY(mostXmlBooks(BookEntry().xmlEncode().toUtf8().size() * qsizetype(million)) >= million);
    QVERIFY(mostXmlBooks(std::numeric_limits<qsizetype>::max()) < 10 * million);
}

void BookCollectionXmlTest::tellsTheLine()
{
    QCOMPARE(refusal("<r>\n<Books>\n</r>"), u"line 3: mismatched tag"_s);
    QCOMPARE(refusal("\n<!DOCTYPE r><r/>"), u"line 2: a document type declaration"_s);
}

void BookCollectionXmlTest::writesNothingButTheFrame()
{
    QVERIFY(
        bookCollectionXml({}) == u"\uFEFF<BookCollection>\n<Books>\n</Books>\n</BookCollection>");
}

void BookCollectionXmlTest::canBeLeft()
{
    const Progress leave = [](qint64, qint64) {
        throw OperationCancelled();
    };
    QVERIFY_THROWS_EXCEPTION(OperationCancelled, readBookCollectionXml(inBook({}), leave));
    BookEntry book;
    const std::vector<BookEntry*> books(2000, &book);
    QVERIFY_THROWS_EXCEPTION(OperationCancelled, bookCollectionXml(books, leave));
    qint64 last = 0;
    readBookCollectionXml(umlauts.toUtf8(), [&](qint64 done, qint64 total) {
        QVERIFY(done <= total);
        last = done;
    });
    QCOMPARE(last, qint64(umlauts.toUtf8().size()));
}

QTEST_GUILESS_MAIN(BookCollectionXmlTest)

#include "BookCollectionXmlTest.moc"
