#include "cli/Arguments.h"
#include "cli/Failures.h"

#include <QTest>

#include <array>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

constexpr std::array first = std::to_array<Option>({{"--filter"_L1, "FIELD"_L1, ""_L1}});
constexpr std::array second = std::to_array<Option>({
    {"--text"_L1, "TEXT"_L1, ""_L1},
    {"--json"_L1, ""_L1, ""_L1},
});

Arguments parse(const QStringList& texts)
{
    const std::array<OptionGroup, 2> known{{{"one"_L1, first}, {"two"_L1, second}}};
    return parseArguments(texts, known);
}

/// The reason why `texts` are wrong; null when they are not.
QString mistakeIn(const QStringList& texts)
{
    try {
        parse(texts);
        return {};
    } catch (const UsageError& error) {
        return error.reason;
    }
}

} // namespace

class ArgumentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void takesValuesInBothForms();
    void takesValuesThatBeginWithADash();
    void tellsEmptyFromMissing();
    void takesOptionsWithoutAValue();
    void endsOptions();
    void keepsOperandsInOrder();
    void refuses_data();
    void refuses();
    void letsHelpWin_data();
    void letsHelpWin();
};

void ArgumentsTest::takesValuesInBothForms()
{
    QCOMPARE(parse({u"--text"_s, u"a b"_s}).value("--text"_L1), u"a b"_s);
    QCOMPARE(parse({u"--text=a=b"_s}).value("--text"_L1), u"a=b"_s);
    const Arguments both = parse({u"--filter"_s, u"2"_s, u"--text=x"_s});
    QCOMPARE(both.value("--filter"_L1), u"2"_s);
    QCOMPARE(both.value("--text"_L1), u"x"_s);
}

void ArgumentsTest::takesValuesThatBeginWithADash()
{
    QCOMPARE(parse({u"--filter"_s, u"-1"_s}).value("--filter"_L1), u"-1"_s);
    QCOMPARE(parse({u"--filter=-1"_s}).value("--filter"_L1), u"-1"_s);
    QCOMPARE(parse({u"--text"_s, u"--filter"_s}).value("--text"_L1), u"--filter"_s);
    QCOMPARE(parse({u"--text"_s, u"--"_s}).value("--text"_L1), u"--"_s);
    const Arguments help = parse({u"--text"_s, u"--help"_s});
    QCOMPARE(help.value("--text"_L1), u"--help"_s);
    QVERIFY(help.request == Arguments::Request::None);
}

void ArgumentsTest::tellsEmptyFromMissing()
{
    QVERIFY(!parse({}).value("--text"_L1));
    QCOMPARE(parse({u"--text="_s}).value("--text"_L1), u""_s);
    QCOMPARE(parse({u"--text"_s, u""_s}).value("--text"_L1), u""_s);
}

void ArgumentsTest::takesOptionsWithoutAValue()
{
    const Arguments arguments = parse({u"--json"_s, u"a"_s});
    QCOMPARE(arguments.value("--json"_L1), u""_s);
    QCOMPARE(arguments.operands, QStringList{u"a"_s});
    QVERIFY(!parse({u"a"_s}).value("--json"_L1));
}

void ArgumentsTest::endsOptions()
{
    const Arguments arguments = parse({u"--"_s, u"--text"_s, u"--help"_s, u"--"_s});
    QCOMPARE(arguments.operands, QStringList({u"--text"_s, u"--help"_s, u"--"_s}));
    QVERIFY(arguments.values.empty());
    QVERIFY(arguments.request == Arguments::Request::None);
}

void ArgumentsTest::keepsOperandsInOrder()
{
    const Arguments arguments = parse({u"a"_s, u"--text"_s, u"x"_s, u"-"_s, u""_s});
    QCOMPARE(arguments.operands, QStringList({u"a"_s, u"-"_s, u""_s}));
}

void ArgumentsTest::refuses_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("reason");
    QTest::newRow("unknown") << QStringList{u"--bogus"_s} << u"unknown option --bogus"_s;
    QTest::newRow("unknown with a value")
        << QStringList{u"--bogus=1"_s} << u"unknown option --bogus"_s;
    QTest::newRow("abbreviated") << QStringList{u"--tex"_s, u"x"_s} << u"unknown option --tex"_s;
    QTest::newRow("one dash") << QStringList{u"-t"_s} << u"unknown option -t"_s;
    QTest::newRow("no value") << QStringList{u"--text"_s} << u"--text needs a value"_s;
    QTest::newRow("help with a value") << QStringList{u"--help=x"_s} << u"unknown option --help"_s;
    const QStringList twice{u"--text"_s, u"x"_s, u"--text=x"_s};
    QTest::newRow("twice") << twice << u"--text is given twice"_s;
    const QStringList twiceWithoutValue{u"--json"_s, u"--json"_s, u"--bogus"_s};
    QTest::newRow("twice, no value") << twiceWithoutValue << u"--json is given twice"_s;
    QTest::newRow("a value for none") << QStringList{u"--json=1"_s} << u"--json takes no value"_s;
    QTest::newRow("an empty value for none")
        << QStringList{u"--json="_s} << u"--json takes no value"_s;
    const QStringList several{u"--text=x"_s, u"--text"_s, u"y"_s, u"--bogus"_s};
    QTest::newRow("the first mistake") << several << u"--text is given twice"_s;
}

void ArgumentsTest::refuses()
{
    QFETCH(const QStringList, texts);
    QFETCH(const QString, reason);
    QCOMPARE(mistakeIn(texts), reason);
}

void ArgumentsTest::letsHelpWin_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("alone") << QStringList{u"--help"_s};
    QTest::newRow("behind an unknown option") << QStringList{u"--bogus"_s, u"--help"_s};
    QTest::newRow("before an unknown option") << QStringList{u"--help"_s, u"--bogus"_s};
    QTest::newRow("before the version") << QStringList{u"--help"_s, u"--version"_s};
}

void ArgumentsTest::letsHelpWin()
{
    QFETCH(const QStringList, texts);
    QVERIFY(parse(texts).request == Arguments::Request::Help);
}

QTEST_APPLESS_MAIN(ArgumentsTest)

#include "ArgumentsTest.moc"
