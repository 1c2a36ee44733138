#include "cli/ViewOptions.h"
#include "cli/Failures.h"
#include "cli/LookOptions.h"
#include "cli/OpenedCollection.h"
#include "tests/cli/SampleCollection.h"

#include <QTest>

#include <array>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

Arguments parsed(const QString& line)
{
    const std::array groups{ViewOptions::group(), LookOptions::group()};
    return parseArguments(line.split(u' ', Qt::SkipEmptyParts), groups);
}

BookFilter filterOf(const QString& line)
{
    return ViewOptions::of(parsed(line)).filter;
}

/// Why a line of options is wrong; null when it is not.
QString mistakeIn(const QString& line)
{
    try {
        const Arguments arguments = parsed(line);
        ViewOptions::of(arguments);
        LookOptions::of(arguments);
        return {};
    } catch (const UsageError& error) {
        return error.reason;
    }
}

QString keysShown(const QString& line)
{
    const auto document = sample();
    QStringList keys;
    for (const BookEntry* book : displayedBooks(*document, ViewOptions::of(parsed(line))))
        keys.append(book->getKey());
    return keys.join(u' ');
}

void setPositions(BookListDocument& document, const std::map<QString, qint32>& positions)
{
    for (auto& [key, column] : document.getListColumns())
        column.setPosition(ColumnEntry::hidden);
    for (const auto& [key, position] : positions)
        document.getListColumns().find(key)->second.setPosition(position);
}

QString shownKeys(const BookListDocument& document)
{
    QStringList keys;
    for (const ColumnEntry* column : shownColumns(document.getListColumns()))
        keys.append(column->getKey());
    return keys.join(u' ');
}

} // namespace

class ViewOptionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults();
    void readsNumbersLeniently_data();
    void readsNumbersLeniently();
    void readsYearsLeniently_data();
    void readsYearsLeniently();
    void readsComparisons();
    void refuses_data();
    void refuses();
    void accepts_data();
    void accepts();
    void shows_data();
    void shows();
    void showsNothingOfADeletedGroup();
    void findsShownColumns();
};

void ViewOptionsTest::hasDefaults()
{
    const ViewOptions view = ViewOptions::of({});
    QCOMPARE(view.filter.m_nSelectedGroupKey, 0);
    QCOMPARE(view.filter.m_nSelectedFilter, ColumnKey::AuthorAndTitle);
    QVERIFY(view.filter.m_strFilter.isEmpty());
    QVERIFY(!view.filter.m_bFilter_NumericHasValue);
    QVERIFY(!view.sortField);
    const LookOptions look = LookOptions::of({});
    QVERIFY(look.columns == LookOptions::Columns::Visible);
    QVERIFY(look.format == ListFormat::Table);
}

void ViewOptionsTest::readsNumbersLeniently_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasValue");
    QTest::addColumn<double>("value");
    QTest::newRow("integer") << u"12"_s << true << 12.0;
    QTest::newRow("decimal") << u"12.5"_s << true << 12.5;
    QTest::newRow("letters") << u"12abc"_s << true << 12.0;
    QTest::newRow("minus") << u"-5"_s << true << 5.0;
    QTest::newRow("exponent") << u"1e5"_s << true << 15.0;
    QTest::newRow("currency") << u"$4.99"_s << true << 4.99;
    QTest::newRow("comma") << u"1,5"_s << true << 1.0;
    QTest::newRow("only a point") << u"."_s << true << 0.0;
    QTest::newRow("only a comma") << u","_s << true << 0.0;
    QTest::newRow("nothing that belongs") << u"abc"_s << false << 0.0;
    QTest::newRow("other digits") << u"\u0661"_s << false << 0.0;
}

void ViewOptionsTest::readsNumbersLeniently()
{
    QFETCH(const QString, text);
    QFETCH(const bool, hasValue);
    QFETCH(const double, value);
    const BookFilter filter = filterOf("--number="_L1 + text);
    QCOMPARE(filter.m_bFilter_NumericHasValue, hasValue);
    QCOMPARE(filter.m_dblFilter_Numeric, value);
}

void ViewOptionsTest::readsYearsLeniently_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint32>("year");
    QTest::newRow("plain") << u"1999"_s << 1999;
    QTest::newRow("letter inside") << u"19x9"_s << 199;
    QTest::newRow("minus") << u"-44"_s << 44;
    QTest::newRow("empty") << u""_s << 0;
    QTest::newRow("letters") << u"year"_s << 0;
    QTest::newRow("too large") << u"99999999999"_s << std::numeric_limits<qint32>::max();
}

void ViewOptionsTest::readsYearsLeniently()
{
    QFETCH(const QString, text);
    QFETCH(const qint32, year);
    QCOMPARE(filterOf("--year="_L1 + text).m_nFilter_DateYear, year);
}

void ViewOptionsTest::readsComparisons()
{
    const auto ofNumbers = [](const QString& word) {
        return filterOf("--filter 28 --compare "_L1 + word).m_nFilterSelectionForNumeric;
    };
    QVERIFY(ofNumbers(u"equal"_s) == NumberTest::Equal);
    QVERIFY(ofNumbers(u"not-equal"_s) == NumberTest::NotEqual);
    QVERIFY(ofNumbers(u"less"_s) == NumberTest::Less);
    QVERIFY(ofNumbers(u"greater"_s) == NumberTest::Greater);
    const auto ofDates = [](const QString& word) {
        return filterOf("--filter 10 --compare "_L1 + word).m_nFilterSelectionForDate;
    };
    QVERIFY(ofDates(u"equal"_s) == DateTest::Equal);
    QVERIFY(ofDates(u"not-equal"_s) == DateTest::NotEqual);
    QVERIFY(ofDates(u"before"_s) == DateTest::Before);
    QVERIFY(ofDates(u"after"_s) == DateTest::After);
    QVERIFY(ofDates(u"on-or-before"_s) == DateTest::OnOrBefore);
    QVERIFY(ofDates(u"on-or-after"_s) == DateTest::OnOrAfter);
}

void ViewOptionsTest::refuses_data()
{
    QTest::addColumn<QString>("line");
    for (const char* const line : {"--group x", "--group=", "--group 1.5", "--group 99999999999",
             "--filter x", "--filter=", "--filter -4", "--filter 1", "--filter 4", "--filter 5",
             "--filter 85", "--filter 86", "--compare x", "--compare=", "--compare Equal",
             "--filter 28 --compare before", "--compare on-or-after --filter 30",
             "--filter 32 --compare after", "--filter 10 --compare less",
             "--filter 78 --compare greater", "--month 13", "--month -1", "--month x",
             "--month=", "--state on", "--state=", "--type x", "--type=", "--rating x",
             "--rating 4.5", "--sort x", "--sort=", "--sort -1", "--sort 86", "--sort 100",
             "--columns=", "--columns 0,", "--columns ,0", "--columns 3", "--columns x",
             "--columns -1", "--columns 86", "--columns 0,2,0", "--columns All", "--format csv",
             "--format=", "--format JSON"})
        QTest::newRow(line) << QString::fromLatin1(line);
}

void ViewOptionsTest::refuses()
{
    QFETCH(const QString, line);
    QVERIFY(!mistakeIn(line).isNull());
}

void ViewOptionsTest::accepts_data()
{
    QTest::addColumn<QString>("line");
    for (const char* const line : {"--group 7", "--group -1", "--filter -3", "--filter -1",
             "--filter 84", "--filter 78", "--compare before", "--filter 18 --compare less",
             "--month 0", "--month 12", "--year x", "--number x", "--type 4", "--type -1",
             "--rating 10", "--sort 0", "--sort 1", "--sort 85", "--columns 4", "--columns 84,0",
             "--columns visible", "--columns all", "--format tsv"})
        QTest::newRow(line) << QString::fromLatin1(line);
}

void ViewOptionsTest::accepts()
{
    QFETCH(const QString, line);
    QCOMPARE(mistakeIn(line), QString());
}

void ViewOptionsTest::shows_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("keys");
    const auto row = [](const char* line, const QString& keys) {
        QTest::newRow(line) << QString::fromLatin1(line) << keys;
    };
    row("", u"1 3 5 2 4"_s);
    row("--sort 1", u"4 2 5 3 1"_s);
    row("--sort 28", u"5 4 3 2 1"_s);
    row("--sort 29", u"1 2 3 5 4"_s);
    row("--sort 6", u"1 3 5 2 4"_s);
    row("--group 1", u"1 3"_s);
    row("--group 2 --sort 1", u"2 3"_s);
    row("--group 7", QString());
    row("--group -1", QString());
    row("--text AUSTEN", u"1 3"_s);
    row("--text walden", u"2"_s);
    row("--text 猫", u"4"_s);
    row("--filter 0 --text austen", QString());
    row("--filter 2 --text austen", u"1 3"_s);
    row("--group 2 --text austen", u"3"_s);
    row("--filter 28 --number 300", QString());
    row("--filter 28 --number 300 --compare greater", u"1 2"_s);
    row("--filter 28 --number 300 --compare less", u"3"_s);
    row("--filter 28 --number 249 --compare not-equal", u"1 5 2 4"_s);
    row("--filter 28", u"1 3 5 2 4"_s);
    row("--filter 30 --number 4.99", u"3"_s);
    row("--filter 30 --number . ", u"5 2 4"_s);
    row("--filter 10 --year 1817", u"3"_s);
    row("--filter 10 --year 1817 --compare before", u"1"_s);
    row("--filter 10 --month 6", u"3"_s);
    row("--filter 10 --month 6 --year 1817 --compare on-or-after", u"3 2"_s);
    row("--filter 10 --month 1 --year 1816 --compare not-equal", u"1 3 5 2 4"_s);
    row("--filter 80 --year 2001", u"3"_s);
    row("--filter 78", QString());
    row("--filter 78 --year 1999", QString());
    row("--filter 18", u"1 3 5 2 4"_s);
    row("--filter 18 --state set", u"1"_s);
    row("--filter 24 --state unset", u"1 5 2 4"_s);
    row("--filter -2 --state set", u"1"_s);
    row("--filter -3 --state unset", u"5 4"_s);
    row("--filter 84", u"1 3 5 4"_s);
    row("--filter 84 --type 1", u"2"_s);
    row("--filter 6", u"3 5 2 4"_s);
    row("--filter 6 --rating 5", u"1"_s);
}

void ViewOptionsTest::shows()
{
    QFETCH(const QString, line);
    QFETCH(const QString, keys);
    QCOMPARE(keysShown(QString::fromUtf8(QTest::currentDataTag())), keys);
}

void ViewOptionsTest::showsNothingOfADeletedGroup()
{
    const auto document = sample();
    document->getBookEntry(u"1")->addToGroup(u"9"_s);
    ViewOptions view;
    view.filter.m_nSelectedGroupKey = 9;
    view.filter.m_nSelectedFilter = ColumnKey::AuthorAndTitle;
    QVERIFY(displayedBooks(*document, view).empty());
}

void ViewOptionsTest::findsShownColumns()
{
    BookListDocument document;
    QCOMPARE(shownKeys(document), u"0 2"_s);
    setPositions(document, {{u"84"_s, 0}, {u"10"_s, 1}, {u"2"_s, 2}});
    QCOMPARE(shownKeys(document), u"84 10 2"_s);
    setPositions(document, {{u"84"_s, 0}, {u"10"_s, 1}, {u"2"_s, 3}});
    QCOMPARE(shownKeys(document), u"84 10"_s);
    setPositions(document, {{u"84"_s, 0}, {u"10"_s, 0}, {u"2"_s, 1}});
    QCOMPARE(shownKeys(document), u"10 84 2"_s);
    setPositions(document, {{u"84"_s, 1}});
    QCOMPARE(shownKeys(document), QString());
    setPositions(document, {});
    QCOMPARE(shownKeys(document), QString());
}

QTEST_APPLESS_MAIN(ViewOptionsTest)

#include "ViewOptionsTest.moc"
