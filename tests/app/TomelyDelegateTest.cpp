#include "app/TomelyDelegate.h"

#include "platform/FileBookmark.h"
#include "platform/PreferenceKeys.h"
#include "tests/support/DocumentDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using PreferenceKeys::BookmarkData;
using PreferenceKeys::DefaultFile;
using PreferenceKeys::EnableAlternateSources;
using PreferenceKeys::PreferencesVersion;

namespace {

const QString promptText =
    u"You will be prompted to select your default file.\n\nThis is only required once."_s;
const QString changeText = u"Change default file to selected file?"_s;

/// A delegate and what it works with.
struct Start : DocumentDesk {
    TomelyDelegate delegate{controller, defaults, alerts, panels};

    /// What is on the disk, whatever is pending.
    UserDefaults stored() const { return UserDefaults(defaults.filePath()); }

    QStringList asked() const
    {
        QStringList texts;
        for (const Alert& alert : alerts.modals)
            texts.append(alert.informativeText);
        return texts;
    }

    bool isOpen(const QString& name) { return controller.documentForFile(path(name)); }
};

} // namespace

class TomelyDelegateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void upgradesPreferences_data();
    void upgradesPreferences();
    void wantsAnUntitledDocumentAtTheFirstStart();
    void staysAfterTheLastWindow();
    void opensTheDefaultFileByItsReference();
    void prefersTheReferenceToThePath();
    void opensNothingTwice();
    void leavesOnlyOneQuestionPerStart();
    void survivesAMissingDefaultFile_data();
    void survivesAMissingDefaultFile();
    void survivesADamagedDefaultFile();
    void asksForTheFileWhenOnlyItsPathIsKnown_data();
    void asksForTheFileWhenOnlyItsPathIsKnown();
    void asksBeforeItChangesTheDefaultFile_data();
    void asksBeforeItChangesTheDefaultFile();
    void asksAgainAfterACancelledPanel();
    void remembersAPickedFileThatCannotBeOpened();
};

void TomelyDelegateTest::upgradesPreferences_data()
{
    QTest::addColumn<int>("version"); // -1: absent
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");
    QTest::newRow("first start ever") << -1 << false << true;
    QTest::newRow("version 1") << 1 << false << true;
    QTest::newRow("version 2") << 2 << false << true;
    QTest::newRow("switched off since") << 3 << false << false;
    QTest::newRow("still on") << 3 << true << true;
    QTest::newRow("a later version") << 4 << false << false;
}

void TomelyDelegateTest::upgradesPreferences()
{
    QFETCH(const int, version);
    QFETCH(const bool, before);
    QFETCH(const bool, after);
    Start start;
    if (version >= 0)
        start.defaults.setInteger(PreferencesVersion, version);
    start.defaults.setBool(EnableAlternateSources, before);
    start.delegate.applicationDidFinishLaunching();
    const UserDefaults stored(start.defaults.filePath());
    QCOMPARE(stored.boolForKey(EnableAlternateSources), after);
    QCOMPARE(stored.integerForKey(PreferencesVersion), 3);
    start.delegate.applicationDidFinishLaunching();
    QCOMPARE(start.defaults.boolForKey(EnableAlternateSources), after);
}

void TomelyDelegateTest::wantsAnUntitledDocumentAtTheFirstStart()
{
    Start start;
    QVERIFY(!start.delegate.tryToOpenDefaultDocument());
    QVERIFY(start.delegate.applicationShouldOpenUntitledFile());
    QVERIFY(start.asked().isEmpty() && start.panels.modals.isEmpty());
    start.defaults.setString(DefaultFile, u""_s);
    QVERIFY(!start.delegate.tryToOpenDefaultDocument());
    QVERIFY(start.asked().isEmpty());
}

void TomelyDelegateTest::staysAfterTheLastWindow()
{
    Start start;
    QVERIFY(!start.delegate.applicationShouldTerminateAfterLastWindowClosed());
}

void TomelyDelegateTest::opensTheDefaultFileByItsReference()
{
    Start start;
    const QString file = start.file(u"library.books"_s);
    start.defaults.setData(BookmarkData, makeBookmark(file));
    start.defaults.setString(DefaultFile, file);
    QVERIFY(!start.delegate.applicationShouldOpenUntitledFile());
    QVERIFY(start.isOpen(u"library.books"_s));
    QVERIFY(DocumentDesk::windowOf(*start.controller.documents().front())->isVisible());
    QVERIFY(start.asked().isEmpty());
}

void TomelyDelegateTest::prefersTheReferenceToThePath()
{
    Start start;
    start.defaults.setData(BookmarkData, makeBookmark(start.file(u"library.books"_s)));
    start.defaults.setString(DefaultFile, start.file(u"other.books"_s));
    QVERIFY(start.delegate.tryToOpenDefaultDocument());
    QVERIFY(start.isOpen(u"library.books"_s));
    QVERIFY(!start.isOpen(u"other.books"_s));
}

void TomelyDelegateTest::opensNothingTwice()
{
    Start start;
    const QString file = start.file(u"library.books"_s);
    start.controller.openDocument(file);
    start.defaults.setData(BookmarkData, makeBookmark(file));
    QVERIFY(start.delegate.tryToOpenDefaultDocument());
    QCOMPARE(start.controller.documents().size(), std::size_t(1));
}

void TomelyDelegateTest::leavesOnlyOneQuestionPerStart()
{
    Start start;
    QVERIFY(start.delegate.applicationShouldOpenUntitledFile());
    start.defaults.setData(BookmarkData, makeBookmark(start.file(u"library.books"_s)));
    QVERIFY(!start.delegate.applicationShouldOpenUntitledFile());
    QVERIFY(start.controller.documents().empty());
}

void TomelyDelegateTest::survivesAMissingDefaultFile_data()
{
    QTest::addColumn<QByteArray>("bookmark"); // null: of a file that is gone
    QTest::newRow("file gone") << QByteArray();
    QTest::newRow("no reference") << QByteArray("rubbish");
    QTest::newRow("empty reference") << QByteArray("");
}

void TomelyDelegateTest::survivesAMissingDefaultFile()
{
    QFETCH(QByteArray, bookmark);
    Start start;
    if (bookmark.isNull())
        bookmark = makeBookmark(start.path(u"gone.books"_s));
    start.defaults.setData(BookmarkData, bookmark);
    start.defaults.setString(DefaultFile, start.path(u"gone.books"_s));
    QVERIFY(start.delegate.applicationShouldOpenUntitledFile());
    QVERIFY(start.controller.documents().empty());
    QCOMPARE(start.defaults.dataForKey(BookmarkData), bookmark); // it may come back
    QCOMPARE(start.defaults.stringForKey(DefaultFile), start.path(u"gone.books"_s));
}

void TomelyDelegateTest::survivesADamagedDefaultFile()
{
    Start start;
    start.onRead = [](QByteArrayView, const Progress&) {
        return DocumentFailure{u"damaged"_s};
    };
    const QByteArray bookmark = makeBookmark(start.file(u"library.books"_s));
    start.defaults.setData(BookmarkData, bookmark);
    QVERIFY(start.delegate.applicationShouldOpenUntitledFile());
    QCOMPARE(start.alerts.modals.size(), 1);
    QVERIFY(start.asked().first().contains(start.path(u"library.books"_s)));
    QCOMPARE(start.defaults.dataForKey(BookmarkData), bookmark);
}

void TomelyDelegateTest::asksForTheFileWhenOnlyItsPathIsKnown_data()
{
    QTest::addColumn<bool>("otherCase");
    QTest::newRow("the same file") << false;
    QTest::newRow("in other letter case") << true;
}

void TomelyDelegateTest::asksForTheFileWhenOnlyItsPathIsKnown()
{
    QFETCH(const bool, otherCase);
    Start start;
    const QString file = start.file(u"library.books"_s);
    start.defaults.setString(DefaultFile, otherCase ? start.path(u"LIBRARY.Books"_s) : file);
    start.panels.picked = file;
    QVERIFY(!start.delegate.applicationShouldOpenUntitledFile());
    QCOMPARE(start.asked(), QStringList{promptText});
    QCOMPARE(start.alerts.modals.first().buttons, QStringList{u"OK"_s});
    QCOMPARE(start.panels.modals.size(), 1);
    QCOMPARE(start.panels.modals.first().type.extension, u"books"_s);
    QCOMPARE(start.panels.modals.first().folder, QFileInfo(file).absolutePath());
    QVERIFY(start.isOpen(u"library.books"_s));
    const UserDefaults stored(start.defaults.filePath());
    QCOMPARE(stored.stringForKey(DefaultFile), file);
    QCOMPARE(resolveBookmark(stored.dataForKey(BookmarkData)), std::optional<QString>(file));
}

void TomelyDelegateTest::asksBeforeItChangesTheDefaultFile_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("Yes") << 0;
    QTest::newRow("No") << 1;
}

void TomelyDelegateTest::asksBeforeItChangesTheDefaultFile()
{
    QFETCH(const int, answer);
    Start start;
    const QString older = start.file(u"older.books"_s);
    const QString picked = start.file(u"picked.books"_s);
    start.defaults.setString(DefaultFile, older);
    QVERIFY(start.defaults.synchronize());
    start.panels.picked = picked;
    start.alerts.answer = answer;
    QVERIFY(!start.delegate.applicationShouldOpenUntitledFile());
    QCOMPARE(start.asked(), QStringList({promptText, changeText}));
    QCOMPARE(start.alerts.modals.last().buttons, QStringList({u"Yes"_s, u"No"_s}));
    QVERIFY(start.isOpen(u"picked.books"_s)); // also after "No", this once
    QVERIFY(!start.isOpen(u"older.books"_s));
    const UserDefaults stored(start.defaults.filePath());
    QCOMPARE(stored.stringForKey(DefaultFile), answer == 0 ? picked : older);
    QCOMPARE(stored.contains(BookmarkData), answer == 0);
    if (answer == 0)
        QCOMPARE(resolveBookmark(stored.dataForKey(BookmarkData)), std::optional<QString>(picked));
}

void TomelyDelegateTest::asksAgainAfterACancelledPanel()
{
    Start start;
    const QString file = start.file(u"library.books"_s);
    start.defaults.setString(DefaultFile, file);
    QVERIFY(start.delegate.applicationShouldOpenUntitledFile());
    QCOMPARE(start.defaults.stringForKey(DefaultFile), file);
    QVERIFY(!start.defaults.contains(BookmarkData));
    TomelyDelegate next(start.controller, start.defaults, start.alerts, start.panels);
    QVERIFY(next.applicationShouldOpenUntitledFile());
    QCOMPARE(start.asked(), QStringList({promptText, promptText}));
    QVERIFY(start.controller.documents().empty());
}

void TomelyDelegateTest::remembersAPickedFileThatCannotBeOpened()
{
    Start start;
    start.onRead = [](QByteArrayView, const Progress&) {
        return DocumentFailure{.reason = u"Too new."_s, .standsAlone = true};
    };
    const QString file = start.file(u"library.books"_s);
    start.defaults.setString(DefaultFile, file);
    start.panels.picked = file;
    QVERIFY(start.delegate.applicationShouldOpenUntitledFile());
    QCOMPARE(start.asked(), QStringList({promptText, u"Too new."_s}));
    QVERIFY(start.defaults.contains(BookmarkData));
}

QTEST_MAIN(TomelyDelegateTest)
#include "TomelyDelegateTest.moc"
