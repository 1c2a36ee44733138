#include "model/BookCsv.h"

#include "model/BookField.h"
#include "tests/support/BookSamples.h"

#include <QLocale>
#include <QtTest>

#include <limits>
#include <set>

using namespace Qt::StringLiterals;
using namespace tomely;

using Columns = CsvOptions::ColumnSelection;
using Dates = CsvOptions::DateSelection;
using Groups = CsvOptions::GroupSelection;
using Switches = CsvOptions::CheckboxSelection;
using ISBNs = CsvOptions::ISBNSelection;
using LineBreaks = CsvOptions::CarriageReturnSelection;

namespace {

// Columns that tests ask for.
constexpr qint32 title = 0;
constexpr qint32 author = 2;
constexpr qint32 rating = 6;
constexpr qint32 published = 10;
constexpr qint32 own = 18;
constexpr qint32 publisher = 26;
constexpr qint32 pages = 28;
constexpr qint32 pricePaid = 30;
constexpr qint32 isbn = 34;
constexpr qint32 notes = 40;
constexpr qint32 type = 84;

/// The column of every field, "c0" to "c84"; only those of `visible` are shown.
CsvColumns columns(const std::set<qint32>& visible)
{
    CsvColumns all;
    for (const BookField& field : bookFields())
        all[field.columnKey] = {
            u'c' + QString::number(field.columnKey), visible.contains(field.columnKey)};
    return all;
}

const std::vector<CsvGroup>& someGroups()
{
    static const std::vector<CsvGroup> groups{{3, u"Art"_s}, {2, u"Bio, old"_s}, {10, u"Zoo"_s}};
    return groups;
}

/// The line of a book whose only columns are `visible`.
QString lineOf(const BookEntry& book, const std::set<qint32>& visible, CsvOptions options = {})
{
    options.columnSelection = Columns::Visible;
    QString text;
    BookCsv(options, columns(visible), someGroups()).csvEncode(book, text);
    return text;
}

QString headerOf(const std::set<qint32>& visible, CsvOptions options = {})
{
    options.columnSelection = Columns::Visible;
    QString text;
    BookCsv(options, columns(visible), someGroups()).appendHeader(text);
    return text;
}

} // namespace

class BookCsvTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesEveryFieldInOrder();
    void labelsEveryField();
    void writesVisibleColumnsOnly();
    void leavesOutFieldsWithoutColumn();
    void appendsToTheText();

    void movesCellsOverLeadingEmptyOnes();
    void keepsSeparatorsOfLaterEmptyCells();
    void quotesAndEscapes_data();
    void quotesAndEscapes();
    void escapesLabelsAlike();

    void writesDecimals_data();
    void writesDecimals();
    void writesAPointInEveryLocale();
    void writesIntegers();
    void writesSwitches_data();
    void writesSwitches();
    void writesTypes();
    void writesISBNs_data();
    void writesISBNs();
    void writesDates_data();
    void writesDates();
    void writesGroups_data();
    void writesGroups();
};

void BookCsvTest::writesEveryFieldInOrder()
{
    BookEntry book = samples::fullBook();
    book.setType(2);
    QString text;
    BookCsv({}, columns({}), {}).csvEncode(book, text);
    QCOMPARE(text,
        u"title101,author102,notes103,106.2500,pricePaidFrom107,isbn109,110,111.2500,location112,"
        "lentTo113,114,yearPublished115,116,yearEstValue117,118,yearLent119,120,yearPurchased121,"
        "122,yearFirstRead123,124,yearLastRead125,126,yearCopyright127,0,1,0,1,Audio Book,105,"
        "publisher108,customField1128,customField2129,customField3130,customField4131,"
        "customField5132,customField6133,customField7134,136,customYear1135,138,customYear2137,"
        "140,customYear3139,0,1,0,1,0,1,0,1\n"_s);
}

void BookCsvTest::labelsEveryField()
{
    CsvOptions options;
    options.dateSelection = Dates::Year;
    QString text;
    BookCsv(options, columns({}), {}).appendHeader(text);
    QCOMPARE(text,
        u"c0,c2,c40,c30,c82,c34,c28,c32,c36,c38,c10,c78,c80,c12,c14,c8,c16,c18,c20,c22,c24,c84,c6,"
        "c26,c42,c44,c46,c48,c50,c52,c54,c56,c58,c60,c62,c64,c66,c68,c70,c72,c74,c76\n"_s);
}

void BookCsvTest::writesVisibleColumnsOnly()
{
    const BookEntry book = samples::fullBook();
    QCOMPARE(lineOf(book, {title, author}), u"title101,author102\n"_s);
    QCOMPARE(headerOf({title, author}), u"c0,c2\n"_s);
    CsvOptions flags;
    flags.groupSelection = Groups::Flags;
    QCOMPARE(lineOf(book, {title, author}, flags), u"title101,author102,N,Y,Y\n"_s);
    QCOMPARE(lineOf(book, {}), u"\n"_s);
}

void BookCsvTest::leavesOutFieldsWithoutColumn()
{
    CsvColumns some = columns({title, pages});
    some.erase(pages);
    CsvOptions options;
    options.columnSelection = Columns::Visible;
    QString text;
    BookCsv(options, some, {}).appendHeader(text);
    QCOMPARE(text, u"c0\n"_s);

    // When all are wanted, its cells stand under an empty label.
    QString all;
    BookCsv({}, some, {}).appendHeader(all);
    QVERIFY(all.startsWith(u"c0,c2,c40,c30,c82,c34,,c32,"));
}

void BookCsvTest::appendsToTheText()
{
    QString text = u"before"_s;
    const BookCsv csv({}, columns({}), {});
    csv.csvEncode(*samples::makeBook(u"Emma"_s), text);
    QVERIFY2(text.startsWith(u"beforeEmma,,"), qPrintable(text));
    QCOMPARE(text.count(u'\n'), 1);
}

void BookCsvTest::movesCellsOverLeadingEmptyOnes()
{
    const auto book = samples::makeBook(u""_s, u"Ann"_s);
    QString text;
    BookCsv({}, columns({}), {}).csvEncode(*book, text);
    QVERIFY2(text.startsWith(u"Ann,,"), qPrintable(text));

    // A text of blanks leaves nothing either; one of line breaks leaves its quotes.
    book->setAuthor(u""_s);
    book->setPublisher(u" \t"_s);
    book->setISBN(u"7"_s);
    book->setRating(3);
    QCOMPARE(lineOf(*book, {title, author, publisher, isbn}), u"7,\n"_s);
    QCOMPARE(lineOf(*book, {title, publisher}), u"\n"_s);
    book->setISBN(u"\n"_s);
    QCOMPARE(lineOf(*book, {title, isbn, rating}), u"\"\",3\n"_s);
}

void BookCsvTest::keepsSeparatorsOfLaterEmptyCells()
{
    QCOMPARE(lineOf(*samples::makeBook(u"Emma"_s), {title, author, notes, pages, publisher}),
        u"Emma,,,,\n"_s);
}

void BookCsvTest::quotesAndEscapes_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QString>("spaced");
    QTest::addColumn<QString>("escaped");
    const auto same = [](const char* name, const QString& value, const QString& cell) {
        QTest::newRow(name) << value << cell << cell << cell;
    };
    same("plain", u"plain"_s, u"plain"_s);
    same("comma", u"a,b"_s, u"\"a,b\""_s);
    same("quotes", u"He said \"hi\""_s, u"\"He said \"\"hi\"\"\""_s);
    same("one quote", u"\""_s, u"\"\"\"\""_s);
    same("semicolon and tab", u"a;b\tc"_s, u"a;b\tc"_s);
    same("backslash", u"a\\nb"_s, u"a\\nb"_s);
    same("blanks around", u" \ta \t"_s, u"a"_s);
    same("blanks in quotes", u" a, "_s, u"\"a,\""_s);
    same("other white space", u"\u00A0a\u3000"_s, u"\u00A0a\u3000"_s);
    same("beyond the first plane", u"\U0001F4D6"_s, u"\U0001F4D6"_s);
    same("lone surrogate", QString(QChar(0xD800)), QString(QChar(0xD800)));
    same("equals sign", u"=1+1"_s, u"=1+1"_s);
    QTest::newRow("line feed") << u"x\ny"_s << u"\"x\ny\""_s << u"\"x y\""_s << u"\"x\\ny\""_s;
    QTest::newRow("carriage return") << u"x\ry"_s << u"\"x\ry\""_s << u"\"xy\""_s << u"\"xy\""_s;
    QTest::newRow("both") << u"x\r\ny"_s << u"\"x\r\ny\""_s << u"\"x y\""_s << u"\"x\\ny\""_s;
    QTest::newRow("at the ends") << u"\nx\r\n"_s << u"\"x\""_s << u"\"x\""_s << u"\"\\nx\\n\""_s;
    QTest::newRow("nothing else") << u"\n"_s << u"\"\""_s << u"\"\""_s << u"\"\\n\""_s;
    QTest::newRow("everything") << u"a,\"b\"\n\nc"_s << u"\"a,\"\"b\"\"\n\nc\""_s
                                << u"\"a,\"\"b\"\"  c\""_s << u"\"a,\"\"b\"\"\\n\\nc\""_s;
}

void BookCsvTest::quotesAndEscapes()
{
    QFETCH(const QString, value);
    BookEntry book;
    book.setPublisher(value); // is not trimmed when it is set
    const auto written = [&book](LineBreaks lineBreaks) {
        CsvOptions options;
        options.carriageReturnSelection = lineBreaks;
        return lineOf(book, {publisher}, options).chopped(1);
    };
    QTEST(written(LineBreaks::Keep), "kept");
    QTEST(written(LineBreaks::Space), "spaced");
    QTEST(written(LineBreaks::Escape), "escaped");
}

void BookCsvTest::escapesLabelsAlike()
{
    CsvColumns labels = columns({title, published});
    labels[title].label = u" My \"title\" "_s;
    labels[published].label = u"out,\nfirst"_s;
    CsvOptions options;
    options.columnSelection = Columns::Visible;
    options.carriageReturnSelection = LineBreaks::Escape;
    QString text;
    BookCsv(options, labels, {}).appendHeader(text);
    QCOMPARE(text, u"\"My \"\"title\"\"\",\"out,\\nfirst (Month)\",\"out,\\nfirst (Year)\"\n"_s);
}

void BookCsvTest::writesDecimals_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("cell");
    QTest::newRow("zero") << 0.0 << u""_s;
    QTest::newRow("negative zero") << -0.0 << u""_s;
    QTest::newRow("price") << 9.99 << u"9.9900"_s;
    QTest::newRow("whole") << 1234567.0 << u"1234567.0000"_s;
    QTest::newRow("negative") << -2.5 << u"-2.5000"_s;
    QTest::newRow("tie to the even neighbour") << 0.03125 << u"0.0312"_s;
    QTest::newRow("rounded to zero") << 0.00001 << u"0.0000"_s;
    QTest::newRow("large") << 1e22 << u"10000000000000000000000.0000"_s;
    QTest::newRow("largest") << -std::numeric_limits<double>::max()
                             << QString::asprintf("%.4f", -std::numeric_limits<double>::max());
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << u"nan"_s;
    QTest::newRow("no number, signed") << -std::numeric_limits<double>::quiet_NaN() << u"nan"_s;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << u"inf"_s;
}

void BookCsvTest::writesDecimals()
{
    QFETCH(const double, value);
    BookEntry book;
    book.setPricePaid(value);
    QTEST(lineOf(book, {pricePaid}).chopped(1), "cell");
}

void BookCsvTest::writesAPointInEveryLocale()
{
    BookEntry book;
    book.setPricePaid(1234.5);
    book.setPages(1234);
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QString line = lineOf(book, {pricePaid, pages});
    QLocale::setDefault(before);
    QCOMPARE(line, u"1234.5000,1234\n"_s);
}

void BookCsvTest::writesIntegers()
{
    auto book = samples::makeBook(u"t"_s);
    QCOMPARE(lineOf(*book, {title, pages, rating}), u"t,,\n"_s);
    book->setPages(-1);
    book->setRating(std::numeric_limits<qint32>::max());
    QCOMPARE(lineOf(*book, {title, pages, rating}), u"t,-1,2147483647\n"_s);
}

void BookCsvTest::writesSwitches_data()
{
    QTest::addColumn<Switches>("selection");
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("unset");
    QTest::newRow("numbers") << Switches::OneZero << u"1\n"_s << u"0\n"_s;
    QTest::newRow("words") << Switches::TrueFalse << u"TRUE\n"_s << u"FALSE\n"_s;
    QTest::newRow("letters") << Switches::YesNo << u"Y\n"_s << u"N\n"_s;
}

void BookCsvTest::writesSwitches()
{
    CsvOptions options;
    QFETCH(const Switches, selection);
    options.checkboxSelection = selection;
    BookEntry book;
    QTEST(lineOf(book, {own}, options), "unset");
    book.setOwn(true);
    QTEST(lineOf(book, {own}, options), "set");
}

void BookCsvTest::writesTypes()
{
    auto book = samples::makeBook(u"t"_s);
    QStringList lines;
    for (const qint32 number : {0, 1, 2, 3, 4, -1}) {
        book->setType(number);
        lines.append(lineOf(*book, {title, type}));
    }
    QCOMPARE(lines,
        QStringList({u"t,Hardcover\n"_s, u"t,Paperback\n"_s, u"t,Audio Book\n"_s, u"t,eBook\n"_s,
            u"t,\n"_s, u"t,\n"_s}));
}

void BookCsvTest::writesISBNs_data()
{
    QTest::addColumn<ISBNs>("selection");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("header");
    const auto row = [](const char* name, ISBNs selection, const QString& value,
                         const QString& line) {
        const QString header = selection == ISBNs::One ? u"c0,c34,c28\n"_s
            : selection == ISBNs::Two                  ? u"c0,c3410,c3413,c28\n"_s
                                                       : u"c0,c28\n"_s;
        QTest::newRow(name) << selection << value << line << header;
    };
    row("one", ISBNs::One, u"978-0141439587"_s, u"t,978-0141439587,7\n"_s);
    row("one, none", ISBNs::One, u""_s, u"t,,7\n"_s);
    row("ten characters", ISBNs::Two, u"0123456789"_s, u"t,0123456789,,7\n"_s);
    row("ten that are no digits", ISBNs::Two, u"0-12345678"_s, u"t,0-12345678,,7\n"_s);
    row("ten before trimming", ISBNs::Two, u" 12345678 "_s, u"t,12345678,,7\n"_s);
    row("thirteen and a hyphen", ISBNs::Two, u"978-0141439587"_s, u"t,,978-0141439587,7\n"_s);
    row("nine", ISBNs::Two, u"012345678"_s, u"t,,012345678,7\n"_s);
    row("two, none", ISBNs::Two, u""_s, u"t,,,7\n"_s);
    row("no cell", ISBNs::None, u"0123456789"_s, u"t,7\n"_s);
}

void BookCsvTest::writesISBNs()
{
    QFETCH(const ISBNs, selection);
    QFETCH(const QString, value);
    CsvOptions options;
    options.isbnSelection = selection;
    auto book = samples::makeBook(u"t"_s);
    book->setISBN(value);
    book->setPages(7);
    QTEST(lineOf(*book, {title, isbn, pages}, options), "line");
    QTEST(headerOf({title, isbn, pages}, options), "header");
}

void BookCsvTest::writesDates_data()
{
    QTest::addColumn<Dates>("selection");
    QTest::addColumn<qint32>("month");
    QTest::addColumn<QString>("year");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("header");
    const auto row = [](const char* name, Dates selection, qint32 month, const QString& year,
                         const QString& line) {
        QTest::newRow(name) << selection << month << year << line
                            << (selection == Dates::MonthAndYear
                                       ? u"c0,c10 (Month),c10 (Year),c6\n"_s
                                       : u"c0,c10,c6\n"_s);
    };
    row("two cells", Dates::MonthAndYear, 3, u"2001"_s, u"t,03,2001,5\n"_s);
    row("two cells, December", Dates::MonthAndYear, 12, u"2001"_s, u"t,12,2001,5\n"_s);
    row("two cells, no month", Dates::MonthAndYear, 0, u"2001"_s, u"t,,2001,5\n"_s);
    row("two cells, no year", Dates::MonthAndYear, 3, u""_s, u"t,03,,5\n"_s);
    row("two cells, odd month", Dates::MonthAndYear, -3, u"2001"_s, u"t,-3,2001,5\n"_s);
    row("two cells, high month", Dates::MonthAndYear, 123, u"2001"_s, u"t,123,2001,5\n"_s);
    row("two cells, nothing", Dates::MonthAndYear, 0, u""_s, u"t,,,5\n"_s);
    row("year", Dates::Year, 3, u"2001"_s, u"t,2001,5\n"_s);
    row("year, none", Dates::Year, 3, u""_s, u"t,,5\n"_s);
    row("year, a text", Dates::Year, 0, u"c. 1820, spring"_s, u"t,\"c. 1820, spring\",5\n"_s);
    row("month", Dates::YearMonth, 3, u"2001"_s, u"t,2001-03,5\n"_s);
    row("month, none", Dates::YearMonth, 0, u"2001"_s, u"t,2001,5\n"_s);
    row("month, no year", Dates::YearMonth, 11, u""_s, u"t,-11,5\n"_s);
    row("month, nothing", Dates::YearMonth, 0, u""_s, u"t,,5\n"_s);
    row("day", Dates::YearMonthDay, 3, u"2001"_s, u"t,2001-03-01,5\n"_s);
    row("day, no month", Dates::YearMonthDay, 0, u"2001"_s, u"t,2001,5\n"_s);
    row("day, no year", Dates::YearMonthDay, 3, u""_s, u"t,-03-01,5\n"_s);
}

void BookCsvTest::writesDates()
{
    QFETCH(const Dates, selection);
    QFETCH(const qint32, month);
    QFETCH(const QString, year);
    CsvOptions options;
    options.dateSelection = selection;
    auto book = samples::makeBook(u"t"_s);
    book->setMonthPublished(month);
    book->setYearPublished(year);
    book->setRating(5);
    QTEST(lineOf(*book, {title, published, rating}, options), "line");
    QTEST(headerOf({title, published, rating}, options), "header");
}

void BookCsvTest::writesGroups_data()
{
    QTest::addColumn<Groups>("selection");
    QTest::addColumn<QString>("delimeter");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("header");
    const auto row = [](const char* name, Groups selection, const QString& delimeter,
                         const QStringList& keys, const QString& line) {
        const QString header = selection == Groups::None ? u"c0\n"_s
            : selection == Groups::Flags ? u"c0,Group: Art,\"Group: Bio, old\",Group: Zoo\n"_s
                                         : u"c0,Groups\n"_s;
        QTest::newRow(name) << selection << delimeter << keys << line << header;
    };
    row("none", Groups::None, u";"_s, {u"3"_s}, u"t\n"_s);
    row("flags", Groups::Flags, u";"_s, {u"10"_s, u"3"_s}, u"t,Y,N,Y\n"_s);
    row("flags, in none", Groups::Flags, u";"_s, {}, u"t,N,N,N\n"_s);
    row("names", Groups::Names, u"; "_s, {u"10"_s, u"3"_s}, u"t,Art; Zoo\n"_s);
    row("names, one", Groups::Names, u";"_s, {u"10"_s}, u"t,Zoo\n"_s);
    row("names, in none", Groups::Names, u";"_s, {}, u"t,\n"_s);
    row("names, in one that is gone", Groups::Names, u";"_s, {u"4"_s}, u"t,\n"_s);
    row("names with a comma", Groups::Names, u"/"_s, {u"3"_s, u"2"_s}, u"t,\"Art/Bio, old\"\n"_s);
    row("comma between", Groups::Names, u","_s, {u"10"_s, u"3"_s}, u"t,\"Art,Zoo\"\n"_s);
    row("nothing between", Groups::Names, u""_s, {u"10"_s, u"3"_s}, u"t,ArtZoo\n"_s);
}

void BookCsvTest::writesGroups()
{
    QFETCH(const Groups, selection);
    QFETCH(const QString, delimeter);
    QFETCH(const QStringList, keys);
    CsvOptions options;
    options.groupSelection = selection;
    options.groupDelimeter = delimeter;
    auto book = samples::makeBook(u"t"_s);
    for (const QString& key : keys)
        book->addToGroup(key);
    QTEST(lineOf(*book, {title}, options), "line");
    QTEST(headerOf({title}, options), "header");
}

QTEST_GUILESS_MAIN(BookCsvTest)
#include "BookCsvTest.moc"
