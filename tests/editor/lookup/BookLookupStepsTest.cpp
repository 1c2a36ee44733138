// What a look-up notes on its way, for whoever wonders why a book was not found.

#include "tests/editor/lookup/LoggedSteps.h"
#include "tests/editor/lookup/SourcesDesk.h"

#include <QJsonArray>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

const QString isbn = u"9780143039433"_s;

const QStringList beginning{u"----------------------------"_s, isbn, u"Lookup 1"_s};

const QStringList parts{u"Lookup 1: Part 1 of 5"_s, u"Lookup 1: Part 2 of 5"_s,
    u"Lookup 1: Part 3 of 5"_s, u"Lookup 1: Part 4 of 5"_s, u"Lookup 1: Part 5 of 5"_s};

const QStringList details{
    u"Lookup 1: Publisher"_s, u"Lookup 1: Published Date"_s, u"Lookup 1: Page Count"_s};

const QStringList covers{u"Lookup 1: Small Thumb"_s, u"Lookup 1: Thumb"_s, u"Lookup 1: Small"_s,
    u"Lookup 1: Medium"_s, u"Lookup 1: Large"_s};

const QStringList page{u"Lookup 2"_s, u"Lookup 2: LargeImage"_s, u"Lookup 2: Title"_s,
    u"Lookup 2: Author"_s, u"Lookup 2: Number of Pages"_s, u"Lookup 2: PublicationDate"_s,
    u"Lookup 2: Publisher"_s};

} // namespace

class BookLookupStepsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void notesAFullBook();
    void notesEachAuthor();
    void notesOnlyWhatThereIs();
    void notesThePage();
    void notesWhatThePageIsSearchedFor();
    void notesHowFarItCame_data();
    void notesHowFarItCame();
    void keepsTheKeySecret();

private:
    QStringList steps()
    {
        const LoggedSteps logged;
        m_desk->lookUp(isbn);
        return LoggedSteps::texts();
    }

    TestAuthority m_authority;
    std::unique_ptr<SourcesDesk> m_desk;
};

void BookLookupStepsTest::init()
{
    m_desk = std::make_unique<SourcesDesk>(m_authority);
}

void BookLookupStepsTest::notesAFullBook()
{
    serveFullBook(m_desk->server, isbn);
    const QStringList names{u"Lookup 1: Title"_s, u"Lookup 1: Author"_s};
    QCOMPARE(steps(), beginning + parts + names + details + covers);
}

void BookLookupStepsTest::notesEachAuthor()
{
    serveBookOfFourAuthors(m_desk->server, isbn);
    QCOMPARE(steps().count(u"Lookup 1: Author"_s), 4);
    m_desk->settings.disableAuthorConcatenation = true;
    QCOMPARE(steps().count(u"Lookup 1: Author"_s), 1);
}

void BookLookupStepsTest::notesOnlyWhatThereIs()
{
    serveVolume(m_desk->server, isbn, {});
    QCOMPARE(steps(), beginning + parts + details);
}

void BookLookupStepsTest::notesThePage()
{
    m_desk->settings.enableAlternateSources = true;
    serveBookPage(m_desk->server, isbn);
    QCOMPARE(steps(), beginning + page);
}

void BookLookupStepsTest::notesWhatThePageIsSearchedFor()
{
    m_desk->settings.enableAlternateSources = true;
    serveBookWithoutLargeCover(m_desk->server, isbn);
    serveBookPage(m_desk->server, isbn);
    const QStringList all = steps();
    QCOMPARE(all.last(2), QStringList({u"Lookup 2"_s, u"Lookup 2: LargeImage"_s}));
    QCOMPARE(all.filter(u"Lookup 2"_s).size(), 2);
}

void BookLookupStepsTest::notesHowFarItCame_data()
{
    QTest::addColumn<QByteArray>("view");
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QString>("last");
    const QByteArray view = viewReply("Vol-9780143039433_C");
    QTest::newRow("nothing") << QByteArray() << QByteArray() << u"Lookup 1"_s;
    QTest::newRow("no text") << "\xFF"_ba << QByteArray() << u"Lookup 1: Part 1 of 5"_s;
    QTest::newRow("no identifier") << "x"_ba << QByteArray() << u"Lookup 1: Part 1 of 5"_s;
    QTest::newRow("no record") << view << QByteArray() << u"Lookup 1: Part 2 of 5"_s;
    QTest::newRow("no JSON") << view << "x"_ba << u"Lookup 1: Part 3 of 5"_s;
    QTest::newRow("no volume") << view << "{}"_ba << u"Lookup 1: Part 4 of 5"_s;
}

void BookLookupStepsTest::notesHowFarItCame()
{
    QFETCH(const QByteArray, view);
    QFETCH(const QByteArray, record);
    QFETCH(const QString, last);
    if (!view.isEmpty())
        m_desk->server.serve(viewTarget(isbn), {view});
    if (!record.isEmpty())
        m_desk->server.serve(volumeTarget(isbn), {record});
    QCOMPARE(steps().last(), last);
}

void BookLookupStepsTest::keepsTheKeySecret()
{
    m_desk->settings.serviceKey = u"sesame"_s;
    m_desk->server.serve(viewTarget(isbn), {viewReply("x")});
    const QString all = steps().join(u'\n');
    QVERIFY(m_desk->server.targets().last().endsWith("?key=sesame"));
    QVERIFY(all.endsWith("Part 2 of 5"_L1));
    QVERIFY(!all.contains(u"sesame"_s));
}

QTEST_GUILESS_MAIN(BookLookupStepsTest)

#include "BookLookupStepsTest.moc"
