// The command "lookup": what it prints, with sources on this machine, and how the real program
// fails.

#include "cli/LookupCommand.h"
#include "cli/Failures.h"
#include "cli/Output.h"
#include "platform/network/UrlFetch.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"
#include "tests/cli/Program.h"
#include "tests/support/LookupScenes.h"
#include "tests/support/LookupServer.h"
#include "tests/support/TestAuthority.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QString isbn = u"9780143039433"_s;

} // namespace

class LookupCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void printsLines();
    void printsAllLinesInAnyCase();
    void printsJson();
    void printsWhatIsNotKnownAsNull();
    void keepsLinesWhole();
    void normalizesTheIsbn();
    void refusesWhatIsNoIsbn_data();
    void refusesWhatIsNoIsbn();
    void tellsWhenNothingIsFound();
    void honoursPreferences();

    void explainsItself();
    void refusesWrongCommandLines_data();
    void refusesWrongCommandLines();
    void asksPublicServersOnly();

private:
    QByteArray printed(const QString& typed, BookFormat format = BookFormat::Lines);
    void compareWithFailure(const QString& typed);

    TestAuthority m_authority;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LookupServer> m_server;
    std::unique_ptr<UrlFetch> m_fetch;
    std::unique_ptr<UserDefaults> m_defaults;
};

void LookupCommandTest::init()
{
    m_defaults.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_server = std::make_unique<LookupServer>(m_authority.identityFor(u"localhost"_s));
    m_fetch = std::make_unique<UrlFetch>(m_authority.policy());
    m_defaults = std::make_unique<UserDefaults>(m_folder->filePath(u"Tomely.ini"_s));
    askServer(*m_defaults, *m_server);
}

QByteArray LookupCommandTest::printed(const QString& typed, BookFormat format)
{
    QTemporaryFile file;
    if (!file.open())
        return {};
    {
        Output output(file.handle());
        printLookup(typed, format, *m_defaults, *m_fetch, output);
    }
    file.seek(0);
    return file.readAll();
}

void LookupCommandTest::printsLines()
{
    serveFullBook(*m_server, isbn);
    QCOMPARE(QString::fromUtf8(printed(isbn)),
        u"title: The Grapes of Wrath\n"
        "author: John Steinbeck\n"
        "isbn: 9780143039433\n"
        "publisher: Penguin\n"
        "pages: 464\n"
        "published: 2006-03-28\n"
        "cover: https://%1/covers/large?zoom=1\n"_s.arg(m_server->host()));
}

void LookupCommandTest::printsAllLinesInAnyCase()
{
    serveBookWithoutDetails(*m_server, isbn);
    QCOMPARE(printed(isbn),
        "title: The Grapes of Wrath\nauthor: \nisbn: 9780143039433\npublisher: \npages: \n"
        "published: \ncover: \n"_ba);
}

void LookupCommandTest::printsJson()
{
    serveFullBook(*m_server, isbn);
    const QByteArray json = printed(isbn, BookFormat::Json);
    const QJsonObject book = QJsonDocument::fromJson(json).object();
    QCOMPARE(book["title"_L1], "The Grapes of Wrath"_L1);
    QCOMPARE(book["author"_L1], "John Steinbeck"_L1);
    QCOMPARE(book["isbn"_L1], isbn);
    QCOMPARE(book["publisher"_L1], "Penguin"_L1);
    QCOMPARE(book["pages"_L1], "464"_L1);
    QCOMPARE(book["published"_L1], "2006-03-28"_L1);
    QCOMPARE(book["cover"_L1], u"https://%1/covers/large?zoom=1"_s.arg(m_server->host()));
    qsizetype place = 0;
    for (const char* const name :
        {"title", "author", "isbn", "publisher", "pages", "published", "cover"}) {
        place = json.indexOf('"' + QByteArray(name) + "\": ", place);
        QVERIFY2(place >= 0, name);
    }
    QCOMPARE(book.size(), 7);
    QVERIFY(json.endsWith("}\n"));
}

void LookupCommandTest::printsWhatIsNotKnownAsNull()
{
    serveVolume(*m_server, isbn, {{"title"_L1, u"a \"b\" é"_s}, {"publisher"_L1, ""_L1}});
    const QByteArray json = printed(isbn, BookFormat::Json);
    const QJsonObject book = QJsonDocument::fromJson(json).object();
    QCOMPARE(book["title"_L1], u"a \"b\" é"_s);
    QCOMPARE(book["publisher"_L1], ""_L1);
    for (const QLatin1StringView name : {"author"_L1, "pages"_L1, "published"_L1, "cover"_L1})
        QVERIFY2(book[name].isNull(), name.data());
}

void LookupCommandTest::keepsLinesWhole()
{
    serveVolume(*m_server, isbn, {{"title"_L1, u"a\nisbn: 1\x1B[2J\u2028b"_s}});
    QVERIFY(printed(isbn).startsWith("title: a isbn: 1 [2J b\nauthor: "));
}

void LookupCommandTest::normalizesTheIsbn()
{
    serveFullBook(*m_server, u"080442957X"_s);
    QVERIFY(printed(u" 0-8044 2957-x"_s).contains("isbn: 080442957X\n"));
}

void LookupCommandTest::refusesWhatIsNoIsbn_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("nothing") << u""_s;
    QTest::newRow("hyphens") << u"- --"_s;
    QTest::newRow("other digits") << u"٩٧٨"_s;
}

void LookupCommandTest::refusesWhatIsNoIsbn()
{
    QFETCH(const QString, typed);
    QVERIFY_THROWS_EXCEPTION(UsageError, printed(typed));
    QCOMPARE(m_server->requests().size(), 0);
}

void LookupCommandTest::compareWithFailure(const QString& typed)
{
    try {
        printed(typed);
        QFAIL("something was found");
    } catch (const CommandFailure& failure) {
        QCOMPARE(failure.file, typed);
        QCOMPARE(failure.reason, u"Book lookup did not find the requested book."_s);
    }
}

void LookupCommandTest::tellsWhenNothingIsFound()
{
    compareWithFailure(u"978-0-14-303943-3"_s);
    QCOMPARE(m_server->targets(), QList<QByteArray>{viewTarget(isbn)});
}

void LookupCommandTest::honoursPreferences()
{
    serveBookOfFourAuthors(*m_server, isbn);
    QVERIFY(printed(isbn).contains("author: A and B and C and D\n"));
    m_defaults->setBool(PreferenceKeys::DisableAuthorConcatenation, true);
    QVERIFY(printed(isbn).contains("author: A\n"));

    serveBookWithoutCovers(*m_server, isbn);
    serveBookPage(*m_server, isbn);
    QVERIFY(printed(isbn).endsWith("cover: \n"));
    m_defaults->setBool(PreferenceKeys::EnableAlternateSources, true);
    QVERIFY(printed(isbn).endsWith("/covers/page?zoom=1\n"));
    // These two are about the window.
    m_defaults->setBool(PreferenceKeys::DisableAutoLookup, true);
    m_defaults->setBool(PreferenceKeys::DisableImageDownload, true);
    QVERIFY(printed(isbn).endsWith("/covers/page?zoom=1\n"));
    for (const ServedRequest& request : m_server->requests())
        QVERIFY2(!request.target.startsWith("/covers/"), "the cover's address is enough");

    m_server->serve(volumeTarget(isbn), {{}, 503});
    m_server->serve(
        volumeTarget(isbn) + "?key=k", {R"({"volumeInfo": {"title": "T", "authors": ["U"]}})"});
    m_defaults->setString(PreferenceKeys::LookupServiceKey, u"k"_s);
    QVERIFY(printed(isbn).startsWith("title: T\nauthor: U\n"));
}

void LookupCommandTest::explainsItself()
{
    const ProgramResult result = runProgram({u"help"_s, u"lookup"_s});
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.startsWith("usage: tomely-cli lookup ISBN [--json]\n"));
    QVERIFY(result.output.contains("\n  --json "));
}

void LookupCommandTest::refusesWrongCommandLines_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("no ISBN") << QStringList() << "ISBN is missing"_ba;
    QTest::newRow("two") << QStringList{u"1"_s, u"2"_s} << "unexpected argument 2"_ba;
    QTest::newRow("hyphens alone") << QStringList{u" - "_s} << "there is no ISBN in \" - \""_ba;
    QTest::newRow("empty") << QStringList{u""_s} << "there is no ISBN in \"\""_ba;
    QTest::newRow("unknown option") << QStringList{u"1"_s, u"--xml"_s} << "unknown option --xml"_ba;
    QTest::newRow("a value") << QStringList{u"1"_s, u"--json=1"_s} << "--json takes no value"_ba;
}

void LookupCommandTest::refusesWrongCommandLines()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QByteArray, reason);
    // Also where the toolkit would warn about the locale.
    const ProgramResult result = runProgram(QStringList{u"lookup"_s} + arguments, {u"LC_ALL=C"_s});
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors, "tomely-cli: " + reason + "\nusage: tomely-cli lookup ISBN [--json]\n");
    QCOMPARE(result.status, 2);
}

void LookupCommandTest::asksPublicServersOnly()
{
    serveFullBook(*m_server, isbn);
    const QString settings = m_folder->filePath(u"config/Tomely/Tomely.ini"_s);
    QVERIFY(QDir().mkpath(QFileInfo(settings).path()));
    {
        UserDefaults defaults(settings);
        askServer(defaults, *m_server);
        defaults.setBool(PreferenceKeys::EnableAlternateSources, true);
    }
    QVERIFY(QFileInfo::exists(settings));
    QElapsedTimer timer;
    timer.start();
    const ProgramResult result = runProgram({u"lookup"_s, u"978-0-14-303943-3"_s},
        {u"XDG_CONFIG_HOME="_s + m_folder->filePath(u"config"_s), u"LC_ALL=C"_s});
    QVERIFY2(timer.elapsed() < 15'000, "it waits for somebody");
    QCOMPARE(result.errors,
        "tomely-cli: 978-0-14-303943-3: Book lookup did not find the requested book.\n"_ba);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.status, 1);
    // A connection of the program's would be taken before this one.
    QVERIFY(m_fetch->fetch(m_server->url(viewTarget(isbn))).has_value());
    QCOMPARE(m_server->connectionCount(), 1);
}

QTEST_GUILESS_MAIN(LookupCommandTest)

#include "LookupCommandTest.moc"
