// Help, the version, wrong command lines and broken standard streams.

#include "tests/cli/Program.h"
#include "tests/cli/SampleCollection.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class UsageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void printsHelp_data();
    void printsHelp();
    void explainsEveryCommand();
    void printsTheVersion_data();
    void printsTheVersion();

    void refuses_data();
    void refuses();
    void refusesBeforeItWorks();
    void refusesWhatIsNotUtf8();

    void tellsAFullDisk();
    void tellsAClosedPipe();
    void tellsAClosedOutput();
    void worksWithClosedStreams();
    void needsNoDisplay();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void UsageTest::initTestCase()
{
    QVERIFY(saveSample(path(u"s.books"_s)));
}

void UsageTest::printsHelp_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("firstLine");
    const QString all = u"usage: tomely-cli COMMAND ..."_s;
    const QString list = u"usage: tomely-cli list FILE [VIEW] [LOOK]"_s;
    QTest::newRow("--help") << QStringList{u"--help"_s} << all;
    QTest::newRow("help") << QStringList{u"help"_s} << all;
    QTest::newRow("help list") << QStringList{u"help"_s, u"list"_s} << list;
    QTest::newRow("list --help") << QStringList{u"list"_s, u"--help"_s} << list;
    QTest::newRow("--help list") << QStringList{u"--help"_s, u"list"_s} << list;
    QTest::newRow("help --help") << QStringList{u"help"_s, u"--help"_s}
                                 << u"usage: tomely-cli help [COMMAND]"_s;
    const QStringList among{u"list"_s, u"x"_s, u"--text"_s, u"y"_s, u"--help"_s, u"--bogus"_s};
    QTest::newRow("among others") << among << list;
    QTest::newRow("unknown --help") << QStringList{u"bogus"_s, u"--help"_s} << all;
}

void UsageTest::printsHelp()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, firstLine);
    const ProgramResult result = runProgram(arguments);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.status, 0);
    QCOMPARE(QString::fromUtf8(result.output.split('\n').front()), firstLine);
    for (const QByteArray& line : result.output.split('\n'))
        QVERIFY2(line.size() < 80, line.constData());
}

void UsageTest::explainsEveryCommand()
{
    const QByteArray all = runProgram({u"help"_s}).output;
    for (const QString& command : {u"new"_s, u"info"_s, u"list"_s, u"dump"_s, u"export-csv"_s,
             u"export-xml"_s, u"import-xml"_s, u"rewrite"_s, u"check"_s, u"lookup"_s, u"help"_s}) {
        QVERIFY2(all.contains("\n  " + command.toUtf8() + ' '), qPrintable(command));
        const ProgramResult result = runProgram({u"help"_s, command});
        QCOMPARE(result.status, 0);
        QVERIFY(result.output.startsWith("usage: tomely-cli " + command.toUtf8() + ' '));
        QCOMPARE(runProgram({command, u"--help"_s}).output, result.output);
    }
    const QByteArray list = runProgram({u"help"_s, u"list"_s}).output;
    for (const char* const option : {"--group KEY", "--filter FIELD", "--text TEXT",
             "--compare TEST", "--number TEXT", "--month N", "--year TEXT", "--state STATE",
             "--type N", "--rating N", "--sort FIELD", "--columns ", "--format "})
        QVERIFY2(list.contains(option), option);
}

void UsageTest::printsTheVersion_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("alone") << QStringList{u"--version"_s};
    QTest::newRow("behind a command") << QStringList{u"info"_s, u"--version"_s};
    QTest::newRow("behind a file") << QStringList{u"check"_s, u"none"_s, u"--version"_s};
    QTest::newRow("of help") << QStringList{u"help"_s, u"--version"_s};
    QTest::newRow("before help") << QStringList{u"--version"_s, u"--help"_s};
}

void UsageTest::printsTheVersion()
{
    QFETCH(const QStringList, arguments);
    const ProgramResult result = runProgram(arguments);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, "tomely-cli " TOMELY_VERSION "\n"_ba);
}

void UsageTest::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QStringList& arguments, const QString& reason) {
        QTest::newRow(name) << arguments << reason;
    };
    row("nothing", {}, u"a command is missing"_s);
    row("unknown command", {u"bogus"_s}, u"unknown command bogus"_s);
    row("empty command", {QString()}, u"a command is missing"_s);
    row("unknown option first", {u"-x"_s}, u"unknown option -x"_s);
    row("unknown topic", {u"help"_s, u"bogus"_s}, u"unknown command bogus"_s);
    row("two topics", {u"help"_s, u"list"_s, u"info"_s}, u"unexpected argument info"_s);
    row("no file", {u"info"_s}, u"FILE is missing"_s);
    row("no second file", {u"rewrite"_s, u"a"_s}, u"OUT is missing"_s);
    row("one file too many", {u"new"_s, u"a"_s, u"b"_s}, u"unexpected argument b"_s);
    row("no options here", {u"info"_s, u"a"_s, u"--text"_s, u"x"_s}, u"unknown option --text"_s);
    row("month", {u"list"_s, u"a"_s, u"--month"_s, u"13"_s}, u"--month cannot be \"13\""_s);
    row("filter", {u"list"_s, u"a"_s, u"--filter"_s, u"-4"_s}, u"--filter cannot be \"-4\""_s);
    row("compare", {u"list"_s, u"a"_s, u"--filter=28"_s, u"--compare=before"_s},
        u"--compare before is no test for a number"_s);
    row("no value", {u"list"_s, u"a"_s, u"--filter"_s}, u"--filter needs a value"_s);
    row("twice", {u"list"_s, u"a"_s, u"--sort=1"_s, u"--sort=1"_s}, u"--sort is given twice"_s);
    row("on one line", {u"a\nb"_s}, u"unknown command a b"_s);
}

void UsageTest::refuses()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, reason);
    const ProgramResult result = runProgram(arguments);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.status, 2);
    const QByteArrayList lines = result.errors.split('\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(QString::fromUtf8(lines[0]), u"tomely-cli: "_s + reason);
    QVERIFY(lines[1].startsWith("usage: tomely-cli "));
}

void UsageTest::refusesBeforeItWorks()
{
    QCOMPARE(runProgram({u"new"_s, path(u"n.books"_s), u"--bogus"_s}).status, 2);
    QVERIFY(!QFileInfo::exists(path(u"n.books"_s)));
    QCOMPARE(runProgram({u"list"_s, path(u"none"_s), u"--month=13"_s}).status, 2);
}

void UsageTest::refusesWhatIsNotUtf8()
{
    const ProgramResult result =
        runShell(u"\"$CLI\" new \"$(printf '%1/\\377.books')\""_s.arg(m_folder.path()));
    QCOMPARE(result.status, 2);
    QVERIFY(result.errors.contains("is not UTF-8"));
    QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files), QStringList{u"s.books"_s});
}

void UsageTest::tellsAFullDisk()
{
    const ProgramResult result = runProgramInto(u"/dev/full"_s, {u"dump"_s, path(u"s.books"_s)});
    QCOMPARE(result.errors, "tomely-cli: standard output: No space left on device\n"_ba);
    QCOMPARE(result.status, 1);
}

void UsageTest::tellsAClosedPipe()
{
    const ProgramResult result = runShell(
        u"{ sleep 0.2; \"$CLI\" dump '%1'; echo $? >&2; } | true"_s.arg(path(u"s.books"_s)));
    QCOMPARE(result.errors, "tomely-cli: standard output: Broken pipe\n1\n"_ba);
}

void UsageTest::tellsAClosedOutput()
{
    const ProgramResult result = runShell(u"\"$CLI\" info '%1' >&-"_s.arg(path(u"s.books"_s)));
    QCOMPARE(result.errors, "tomely-cli: standard output: Bad file descriptor\n"_ba);
    QCOMPARE(result.status, 1);
}

void UsageTest::worksWithClosedStreams()
{
    const ProgramResult result = runShell(
        u"\"$CLI\" rewrite '%1' '%2' <&- >&- 2>&-"_s.arg(path(u"s.books"_s), path(u"o.books"_s)));
    QCOMPARE(result.status, 0);
    QCOMPARE(fileBytes(path(u"o.books"_s)), fileBytes(path(u"s.books"_s)));
    QVERIFY(QFile::remove(path(u"o.books"_s)));
}

void UsageTest::needsNoDisplay()
{
    const ProgramResult result = runShell(
        u"unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM; \"$CLI\" check '%1'; ldd \"$CLI\""_s.arg(
            path(u"s.books"_s)));
    QCOMPARE(result.errors, QByteArray());
    QVERIFY(result.output.contains("5 books, 2 groups"));
    QVERIFY(!result.output.contains("Qt6Widgets"));
}

QTEST_GUILESS_MAIN(UsageTest)

#include "UsageTest.moc"
