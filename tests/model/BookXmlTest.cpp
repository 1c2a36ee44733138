// A book to its XML element and back: what is written, and how leniently it is read.

#include "model/BookXml.h"
#include "model/BookCollectionXml.h"
#include "model/BookXmlNode.h"
#include "model/XmlReader.h"
#include "tests/support/BookSamples.h"

#include <QTest>

#include <cmath>
#include <functional>
#include <limits>
#include <map>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// The book whose element has this in it, UTF-8.
BookEntry readBook(const QByteArray& children)
{
    const ReadBooks books =
        readBookCollectionXml("<r><Books><Book>" + children + "</Book></Books></r>");
    if (books.size() != 1)
        throw XmlError(u"not one book"_s);
    return *books.front();
}

BookEntry readAgain(const BookEntry& book)
{
    return readBook(book.xmlEncode().toUtf8().replace("\t<Book>", "").replace("\t</Book>", ""));
}

} // namespace

class BookXmlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void carriesEveryField();
    void writesABookWithOnlyATitle();
    void writesAnElement_data();
    void writesAnElement();
    void leavesOut_data();
    void leavesOut();
    void keepsPicturesAndGroupsToItself();

    void readsBackWhatItWrote();
    void readsATypeThatIsMissing();
    void readsTypes_data();
    void readsTypes();
    void readsTexts_data();
    void readsTexts();
    void readsIntegers_data();
    void readsIntegers();
    void readsDecimals_data();
    void readsDecimals();
    void readsFlags_data();
    void readsFlags();
    void readsDates_data();
    void readsDates();
    void readsOnlyOfOne();
    void leavesTheRestOfTheRecordAlone();
};

void BookXmlTest::carriesEveryField()
{
    std::map<BookField::Id, int> carried;
    for (const BookElement& element : bookElements()) {
        ++carried[element.field];
        if (element.value == BookElement::Value::Date)
            ++carried[fieldOfColumn(bookField(element.field).columnKey)->id];
    }
    QCOMPARE(carried.size(), bookFields().size());
    for (const auto& [field, count] : carried)
        QCOMPARE(count, 1);
}

void BookXmlTest::writesABookWithOnlyATitle()
{
    BookEntry book;
    book.setTitle(u"Emma"_s);
    QCOMPARE(book.xmlEncode(),
        u"\t<Book>\n\t\t<Title>Emma</Title>\n\t\t<Own>0</Own>\n\t\t<Signed>0</Signed>\n"
        "\t\t<FirstEdition>0</FirstEdition>\n\t\t<Read>0</Read>\n\t\t<Type>Hardcover</Type>\n"
        "\t</Book>\n"_s);
}

using Change = std::function<void(BookEntry&)>;

void BookXmlTest::writesAnElement_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const Change& change, const QString& line) {
        QTest::newRow(name) << change << line;
    };
    row(
        "safe text", [](BookEntry& book) { book.setTitle(u"R&D <2>"_s); },
        u"<Title>R&amp;D &lt;2&gt;</Title>"_s);
    row(
        "an escape in the text", [](BookEntry& book) { book.setLentTo(u"&lt;"_s); },
        u"<LentTo>&amp;lt;</LentTo>"_s);
    row(
        "quotes", [](BookEntry& book) { book.setISBN(u"\"'"_s); }, u"<ISBN>\"'</ISBN>"_s);
    row(
        "line ends", [](BookEntry& book) { book.setNotes(u"a\r\nb\nc"_s); },
        u"<Notes>a\r\nb\nc</Notes>"_s);
    row(
        "blank text", [](BookEntry& book) { book.setLocation(u" "_s); },
        u"<Location> </Location>"_s);
    row(
        "lone surrogate", [](BookEntry& book) { book.setLocation(QChar(0xD800)); },
        u"<Location>"_s + QChar(0xD800) + u"</Location>"_s);
    row(
        "price", [](BookEntry& book) { book.setPricePaid(12.5); },
        u"<PricePaid>12.5000</PricePaid>"_s);
    row(
        "rounded price", [](BookEntry& book) { book.setPricePaid(-2.00005001); },
        u"<PricePaid>-2.0001</PricePaid>"_s);
    row(
        "tiny value", [](BookEntry& book) { book.setEstValue(1e-9); },
        u"<EstValue>0.0000</EstValue>"_s);
    row(
        "huge value", [](BookEntry& book) { book.setEstValue(1e22); },
        u"<EstValue>10000000000000000000000.0000</EstValue>"_s);
    row(
        "largest value",
        [](BookEntry& book) { book.setEstValue(std::numeric_limits<double>::lowest()); },
        u"<EstValue>"_s + QString::asprintf("%.4f", std::numeric_limits<double>::lowest())
            + u"</EstValue>"_s);
    row(
        "not a number", [](BookEntry& book) { book.setPricePaid(-std::nan("")); },
        u"<PricePaid>nan</PricePaid>"_s);
    row(
        "infinity", [](BookEntry& book) { book.setPricePaid(HUGE_VAL); },
        u"<PricePaid>inf</PricePaid>"_s);
    row(
        "negative pages", [](BookEntry& book) { book.setPages(-7); }, u"<Pages>-7</Pages>"_s);
    row(
        "smallest rating",
        [](BookEntry& book) { book.setRating(std::numeric_limits<qint32>::min()); },
        u"<Rating>-2147483648</Rating>"_s);
    row(
        "month without a year", [](BookEntry& book) { book.setMonthPublished(3); },
        u"<DatePublished><Month>3</Month><Year></Year></DatePublished>"_s);
    row(
        "year without a month", [](BookEntry& book) { book.setYearLent(u"199?"_s); },
        u"<DateLent><Month></Month><Year>199?</Year></DateLent>"_s);
    row(
        "month beyond the year", [](BookEntry& book) { book.setCustomMonth3(13); },
        u"<CustomDate3><Month>13</Month><Year></Year></CustomDate3>"_s);
    row(
        "year with markup", [](BookEntry& book) { book.setYearCopyright(u"1 & <2>"_s); },
        u"<DateCopyright><Month></Month><Year>1 & <2></Year></DateCopyright>"_s);
    row(
        "flag", [](BookEntry& book) { book.setSigned(true); }, u"<Signed>1</Signed>"_s);
    row(
        "switch", [](BookEntry& book) { book.setCustomSwitch8(true); },
        u"<CustomSwitch8>1</CustomSwitch8>"_s);
    row(
        "type", [](BookEntry& book) { book.setType(3); }, u"<Type>eBook</Type>"_s);
}

void BookXmlTest::writesAnElement()
{
    QFETCH(const Change, change);
    QFETCH(const QString, line);
    BookEntry book;
    change(book);
    const QString xml = book.xmlEncode();
    QVERIFY2(xml.contains(u"\t\t"_s + line + u'\n'), qPrintable(xml));
}

void BookXmlTest::leavesOut_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("name");
    const auto row = [](const char* name, const Change& change) {
        QTest::newRow(name) << change << QString::fromLatin1(name);
    };
    row("Title", [](BookEntry& book) { book.setTitle(u" "_s); });
    row("PricePaid", [](BookEntry& book) { book.setPricePaid(-0.0); });
    row("EstValue", [](BookEntry& book) { book.setEstValue(0); });
    row("Pages", [](BookEntry& book) { book.setPages(0); });
    row("Rating", [](BookEntry& book) { book.setRating(0); });
    row("DateLent", [](BookEntry& book) { book.setYearLent(u""_s); });
    row("CustomSwitch1", [](BookEntry& book) { book.setCustomSwitch1(false); });
    row("Type", [](BookEntry& book) { book.setType(4); });
    row("Type", [](BookEntry& book) { book.setType(-1); });
}

void BookXmlTest::leavesOut()
{
    QFETCH(const Change, change);
    QFETCH(const QString, name);
    BookEntry book;
    change(book);
    QVERIFY(!book.xmlEncode().contains(u'<' + name + u'>'));
}

void BookXmlTest::keepsPicturesAndGroupsToItself()
{
    BookEntry book;
    const QString plain = book.xmlEncode();
    book.setKey(7);
    book.addToGroup(u"1"_s);
    book.setImageData(1, samples::pictureBytes('1'));
    QCOMPARE(book.xmlEncode(), plain);
}

void BookXmlTest::readsBackWhatItWrote()
{
    BookEntry book = samples::fullBook();
    book.setType(3);
    book.setTitle(u"R&D <2> &amp; \"more\""_s);
    book.setNotes(u"one\n two\tthree 📚"_s);
    BookEntry expected = book;
    expected.setSelectedGroups({});
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
        expected.setImageData(slot, {});
    QVERIFY(equalContents(readAgain(book), expected));
}

void BookXmlTest::readsATypeThatIsMissing()
{
    BookEntry book;
    book.setType(4);
    QCOMPARE(readAgain(book).getType(), 4);
}

void BookXmlTest::readsTypes_data()
{
    QTest::addColumn<QByteArray>("children");
    QTest::addColumn<int>("type");
    QTest::newRow("missing") << ""_ba << 4;
    QTest::newRow("empty") << "<Type/>"_ba << 4;
    QTest::newRow("known, in capitals") << "<Type>AUDIO BOOK</Type>"_ba << 2;
    QTest::newRow("unknown") << "<Type>Scroll</Type>"_ba << 1;
    QTest::newRow("blank") << "<Type> </Type>"_ba << 1;
    QTest::newRow("two") << "<Type>eBook</Type><Type>eBook</Type>"_ba << 4;
}

void BookXmlTest::readsTypes()
{
    QFETCH(const QByteArray, children);
    QFETCH(const int, type);
    QCOMPARE(readBook(children).getType(), type);
}

void BookXmlTest::readsTexts_data()
{
    QTest::addColumn<QByteArray>("children");
    QTest::addColumn<QString>("title");
    QTest::newRow("plain") << "<Title>Emma</Title>"_ba << u"Emma"_s;
    QTest::newRow("blanks stay") << "<Title> Emma\n </Title>"_ba << u" Emma\n "_s;
    QTest::newRow("byte-order mark") << u"<Title>\uFEFFEmma</Title>"_s.toUtf8() << u"\uFEFFEmma"_s;
    QTest::newRow("missing") << ""_ba << u""_s;
    QTest::newRow("empty") << "<Title></Title>"_ba << u""_s;
    QTest::newRow("short") << "<Title/>"_ba << u""_s;
    QTest::newRow("two") << "<Title>Emma</Title><Title>Kim</Title>"_ba << u""_s;
    QTest::newRow("two, one empty") << "<Title>Emma</Title><Title/>"_ba << u""_s;
    QTest::newRow("other case") << "<title>Emma</title>"_ba << u""_s;
    QTest::newRow("prefix") << "<b:Title>Emma</b:Title>"_ba << u""_s;
    QTest::newRow("deeper") << "<More><Title>Emma</Title></More>"_ba << u""_s;
    QTest::newRow("deeper beside")
        << "<More><Title>Kim</Title></More><Title>Emma</Title>"_ba << u"Emma"_s;
    QTest::newRow("references") << "<Title>&lt;&#65;&#x1F4DA;&quot;</Title>"_ba << u"<A📚\""_s;
    QTest::newRow("section") << "<Title>E<![CDATA[<m>]]>ma</Title>"_ba << u"E<m>ma"_s;
    QTest::newRow("comment") << "<Title>Em<!-- no -->ma<?no no?></Title>"_ba << u"Emma"_s;
    QTest::newRow("inner elements") << "<Title>E<i>m<b>m</b></i>a</Title>"_ba << u"Emma"_s;
    QTest::newRow("attributes") << "<Title lang='en'>Emma</Title>"_ba << u"Emma"_s;
    QTest::newRow("between") << "stray<Title>Emma</Title>text<Own>1</Own>"_ba << u"Emma"_s;
}

void BookXmlTest::readsTexts()
{
    QFETCH(const QByteArray, children);
    QFETCH(const QString, title);
    const QString read = bookField(BookField::Id::Title).storedText(readBook(children));
    QCOMPARE(read, title);
    QVERIFY(!read.isNull());
}

void BookXmlTest::readsIntegers_data()
{
    QTest::addColumn<QByteArray>("children");
    QTest::addColumn<int>("pages");
    QTest::newRow("plain") << "<Pages>474</Pages>"_ba << 474;
    QTest::newRow("blanks and garbage") << "<Pages> \n-12 pages</Pages>"_ba << -12;
    QTest::newRow("words") << "<Pages>many</Pages>"_ba << 0;
    QTest::newRow("fraction") << "<Pages>3.9</Pages>"_ba << 3;
    QTest::newRow("many blanks") << "<Pages>" + QByteArray(1000, ' ') + "7</Pages>" << 7;
    QTest::newRow("other script") << u"<Pages>\u0664 4</Pages>"_s.toUtf8() << 0;
    QTest::newRow("too large") << "<Pages>99999999999</Pages>"_ba << 2147483647;
    QTest::newRow("two") << "<Pages>1</Pages><Pages>1</Pages>"_ba << 0;
    QTest::newRow("missing") << ""_ba << 0;
}

void BookXmlTest::readsIntegers()
{
    QFETCH(const QByteArray, children);
    QFETCH(const int, pages);
    QCOMPARE(readBook(children).getPages(), pages);
}

void BookXmlTest::readsDecimals_data()
{
    QTest::addColumn<QByteArray>("children");
    QTest::addColumn<double>("price");
    QTest::newRow("plain") << "<PricePaid>12.5000</PricePaid>"_ba << 12.5;
    QTest::newRow("blanks and garbage") << "<PricePaid>\t.5 EUR</PricePaid>"_ba << 0.5;
    QTest::newRow("comma") << "<PricePaid>12,50</PricePaid>"_ba << 12.0;
    QTest::newRow("currency first") << "<PricePaid>$12</PricePaid>"_ba << 0.0;
    QTest::newRow("nan") << "<PricePaid>nan</PricePaid>"_ba << 0.0;
    QTest::newRow("two") << "<PricePaid>1</PricePaid><PricePaid>1</PricePaid>"_ba << 0.0;
}

void BookXmlTest::readsDecimals()
{
    QFETCH(const QByteArray, children);
    QFETCH(const double, price);
    QCOMPARE(readBook(children).getPricePaid(), price);
}

void BookXmlTest::readsFlags_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isSet");
    QTest::newRow("1") << "1"_ba << true;
    QTest::newRow("0") << "0"_ba << false;
    QTest::newRow("word") << "TRUE"_ba << false;
    QTest::newRow("empty") << ""_ba << false;
    QTest::newRow("2") << "2"_ba << true;
    QTest::newRow("-1") << "-1"_ba << true;
    QTest::newRow("255") << "255"_ba << true;
    QTest::newRow("256 is no byte") << "256"_ba << false;
    QTest::newRow("257") << "257"_ba << true;
    QTest::newRow("blanks") << " 1 of 2"_ba << true;
}

void BookXmlTest::readsFlags()
{
    QFETCH(const QByteArray, text);
    QFETCH(const bool, isSet);
    const BookEntry book =
        readBook("<Own>" + text + "</Own><CustomSwitch8>" + text + "</CustomSwitch8>");
    QCOMPARE(book.own(), isSet);
    QCOMPARE(book.isCustomSwitch8(), isSet);
    QVERIFY(!book.isCustomSwitch7());
}

void BookXmlTest::readsDates_data()
{
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<int>("month");
    QTest::addColumn<QString>("year");
    QTest::newRow("both") << "<Month>3</Month><Year>1999</Year>"_ba << 3 << u"1999"_s;
    QTest::newRow("other way round") << "<Year>1999</Year><Month>3</Month>"_ba << 3 << u"1999"_s;
    QTest::newRow("empty") << "<Month></Month><Year></Year>"_ba << 0 << u""_s;
    QTest::newRow("nothing") << ""_ba << 0 << u""_s;
    QTest::newRow("month alone") << "<Month> 11th</Month>"_ba << 11 << u""_s;
    QTest::newRow("year alone") << "<Year>c. 1850</Year>"_ba << 0 << u"c. 1850"_s;
    QTest::newRow("two months") << "<Month>1</Month><Month>1</Month><Year>1999</Year>"_ba << 0
                                << u"1999"_s;
    QTest::newRow("two years") << "<Month>1</Month><Year>1</Year><Year>2</Year>"_ba << 1 << u""_s;
    QTest::newRow("text around") << "a<Month>1</Month>b<Year>2</Year>c"_ba << 1 << u"2"_s;
    QTest::newRow("deeper") << "<x><Month>1</Month><Year>2</Year></x>"_ba << 0 << u""_s;
    QTest::newRow("inner elements") << "<Year>19<b>99</b></Year>"_ba << 0 << u"1999"_s;
}

void BookXmlTest::readsDates()
{
    QFETCH(const QByteArray, date);
    QFETCH(const int, month);
    QFETCH(const QString, year);
    const BookEntry book = readBook("<DateLent>" + date + "</DateLent>");
    QCOMPARE(book.getMonthLent(), month);
    QCOMPARE(book.getYearLent(), year);
    const BookEntry twice = readBook("<DateLent>" + date + "</DateLent><DateLent/>");
    QCOMPARE(twice.getMonthLent(), 0);
    QCOMPARE(twice.getYearLent(), u""_s);
}

// What one book holds says nothing of the next.
void BookXmlTest::readsOnlyOfOne()
{
    const ReadBooks books = readBookCollectionXml(
        "<r><Books><Book><Title>Emma</Title><Pages>1</Pages><DateLent><Month>1</Month>"
        "<Year>2</Year></DateLent></Book><Book><Author>A</Author><DateLent/></Book></Books></r>");
    QCOMPARE(books.size(), std::size_t(2));
    BookEntry expected;
    expected.initFromXMLNode(BookXmlNode());
    expected.setAuthor(u"A"_s);
    QVERIFY(equalContents(*books[1], expected));
}

void BookXmlTest::leavesTheRestOfTheRecordAlone()
{
    const BookEntry book = readBook("<Key>7</Key><Image1>x</Image1><Groups>1</Groups>");
    QVERIFY(book.getKey().isNull());
    QVERIFY(!book.hasImages());
    QVERIFY(!book.inAnyGroup());
}

QTEST_GUILESS_MAIN(BookXmlTest)

#include "BookXmlTest.moc"
