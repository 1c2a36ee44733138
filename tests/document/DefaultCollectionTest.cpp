#include "document/BookListDocument.h"
#include "platform/FileBookmark.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"
#include "tests/support/FakeAlerts.h"
#include "tests/support/FakeBookListWindow.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using PreferenceKeys::BookmarkData;
using PreferenceKeys::DefaultFile;

namespace {

BookListServices servicesOf(Alerts* alerts, UserDefaults* defaults)
{
    BookListServices services;
    services.alerts = alerts;
    services.defaults = defaults;
    return services;
}

/// Saves, and lets what is to come after a save come; false when the save failed.
bool isSaved(BookListDocument& document, const QString& path)
{
    const auto failure = document.writeToFile(path);
    QCoreApplication::sendPostedEvents();
    return !failure;
}

/// A person's settings and files in a folder that goes with the test.
class Desktop {
public:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    BookListServices services()
    {
        return FakeBookListWindow::services(window, servicesOf(&alerts, &defaults));
    }

    /// A collection that was saved before, as another program run left it.
    QString savedCollection(const QString& name) const
    {
        const QString file = path(name);
        BookListDocument().writeToFile(file);
        return file;
    }

    /// What is on the disk, whatever is pending.
    QString storedDefaultFile() const
    {
        return UserDefaults(defaults.filePath()).stringForKey(DefaultFile);
    }

    QByteArray storedBookmark() const
    {
        return UserDefaults(defaults.filePath()).dataForKey(BookmarkData);
    }

private:
    QTemporaryDir m_folder;

public:
    FakeAlerts alerts;
    FakeBookListWindow* window = nullptr;
    UserDefaults defaults{m_folder.filePath(u"Tomely.ini"_s)};
};

} // namespace

class DefaultCollectionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offersAfterTheFirstSave();
    void storesTheFileOnYes();
    void storesNothingOnAnythingElse_data();
    void storesNothingOnAnythingElse();
    void offersNothingWhenADefaultFileIsConfigured();
    void offersWhenTheDefaultFileIsEmpty();
    void offersNothingForADocumentThatHadAFile();
    void offersNothingForADocumentThatWasOpened();
    void offersNothingWhenTheSaveFails();
    void offersNothingWithoutServices();
    void offersWhenTheEventLoopIsReached();
    void offersNothingWhenTheWindowIsClosed();
    void survivesTheDocumentsEndBeforeTheOffer();
    void survivesAnAnswerAfterTheDocument();
    void storesTheCurrentPath();
    void completesSettingsThatKnowOnlyThePath_data();
    void completesSettingsThatKnowOnlyThePath();
    void leavesOtherSettingsAlone_data();
    void leavesOtherSettingsAlone();
    void leavesANewDocumentAlone();
};

void DefaultCollectionTest::offersAfterTheFirstSave()
{
    Desktop desktop;
    BookListDocument document(desktop.services());
    document.makeWindowControllers();
    QVERIFY(isSaved(document, desktop.path(u"new.books"_s)));
    QCOMPARE(desktop.alerts.sheets.size(), 1);
    QVERIFY(desktop.alerts.modals.isEmpty());
    const FakeAlerts::Sheet& sheet = desktop.alerts.sheets.first();
    QCOMPARE(sheet.window, desktop.window->windowObject());
    QCOMPARE(sheet.alert.informativeText,
        u"Open this file when Tomely starts?\n\nYou may change this in Preferences at any time."_s);
    QCOMPARE(sheet.alert.buttons, QStringList({u"Yes"_s, u"No"_s}));
    QVERIFY(!desktop.defaults.contains(DefaultFile));
    QVERIFY(!desktop.defaults.contains(BookmarkData));
}

void DefaultCollectionTest::storesTheFileOnYes()
{
    Desktop desktop;
    const QString path = desktop.path(u"new.books"_s);
    BookListDocument document(desktop.services());
    document.makeWindowControllers();
    QVERIFY(isSaved(document, path));
    desktop.alerts.sheets.first().answered(0);
    QCOMPARE(desktop.storedDefaultFile(), path);
    QCOMPARE(resolveBookmark(desktop.storedBookmark()), std::optional<QString>(path));
}

void DefaultCollectionTest::storesNothingOnAnythingElse_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("No") << 1;
    QTest::newRow("closed") << -1;
    QTest::newRow("a button that is not there") << 1000;
}

void DefaultCollectionTest::storesNothingOnAnythingElse()
{
    QFETCH(const int, button);
    Desktop desktop;
    BookListDocument document(desktop.services());
    document.makeWindowControllers();
    QVERIFY(isSaved(document, desktop.path(u"new.books"_s)));
    desktop.alerts.sheets.first().answered(button);
    QVERIFY(!desktop.defaults.contains(DefaultFile));
    QVERIFY(!desktop.defaults.contains(BookmarkData));
}

void DefaultCollectionTest::offersNothingWhenADefaultFileIsConfigured()
{
    Desktop desktop;
    desktop.defaults.setString(DefaultFile, u"/elsewhere/default.books"_s);
    BookListDocument document(desktop.services());
    document.makeWindowControllers();
    QVERIFY(isSaved(document, desktop.path(u"new.books"_s)));
    QVERIFY(desktop.alerts.sheets.isEmpty());
    QCOMPARE(desktop.defaults.stringForKey(DefaultFile), u"/elsewhere/default.books"_s);
}

void DefaultCollectionTest::offersWhenTheDefaultFileIsEmpty()
{
    Desktop desktop;
    desktop.defaults.setString(DefaultFile, u""_s);
    BookListDocument document(desktop.services());
    document.makeWindowControllers();
    QVERIFY(isSaved(document, desktop.path(u"new.books"_s)));
    QCOMPARE(desktop.alerts.sheets.size(), 1);
}

void DefaultCollectionTest::offersNothingForADocumentThatHadAFile()
{
    Desktop desktop;
    BookListDocument document(desktop.services());
    document.makeWindowControllers();
    QVERIFY(isSaved(document, desktop.path(u"new.books"_s)));
    desktop.alerts.sheets.clear();
    QVERIFY(isSaved(document, desktop.path(u"new.books"_s)));
    QVERIFY(isSaved(document, desktop.path(u"under another name.books"_s)));
    QVERIFY(desktop.alerts.sheets.isEmpty());
}

void DefaultCollectionTest::offersNothingForADocumentThatWasOpened()
{
    Desktop desktop;
    BookListDocument document(desktop.services());
    QVERIFY(!document.readFromFile(desktop.savedCollection(u"old.books"_s)));
    document.makeWindowControllers();
    QVERIFY(isSaved(document, desktop.path(u"under another name.books"_s)));
    QVERIFY(desktop.alerts.sheets.isEmpty());
}

void DefaultCollectionTest::offersNothingWhenTheSaveFails()
{
    Desktop desktop;
    BookListDocument document(desktop.services());
    document.makeWindowControllers();
    document.windowLayoutChanged();
    QVERIFY(!isSaved(document, desktop.path(u"no such folder/new.books"_s)));
    QVERIFY(desktop.alerts.sheets.isEmpty());
    QVERIFY(document.filePath().isEmpty());
    QVERIFY(document.isDocumentEdited());
    QVERIFY(isSaved(document, desktop.path(u"new.books"_s)));
    QCOMPARE(desktop.alerts.sheets.size(), 1);
}

void DefaultCollectionTest::offersNothingWithoutServices()
{
    Desktop desktop;
    BookListDocument withoutDefaults(servicesOf(&desktop.alerts, nullptr));
    QVERIFY(isSaved(withoutDefaults, desktop.path(u"a.books"_s)));
    QVERIFY(desktop.alerts.sheets.isEmpty());
    BookListDocument withoutAlerts(servicesOf(nullptr, &desktop.defaults));
    QVERIFY(isSaved(withoutAlerts, desktop.path(u"b.books"_s)));
    QVERIFY(!desktop.defaults.contains(DefaultFile));
    BookListDocument withoutWindow(servicesOf(&desktop.alerts, &desktop.defaults));
    QVERIFY(isSaved(withoutWindow, desktop.path(u"c.books"_s)));
    QCOMPARE(desktop.alerts.sheets.size(), 1);
    QVERIFY(!desktop.alerts.sheets.first().window);
}

void DefaultCollectionTest::offersWhenTheEventLoopIsReached()
{
    Desktop desktop;
    BookListDocument document(desktop.services());
    document.makeWindowControllers();
    QVERIFY(!document.writeToFile(desktop.path(u"new.books"_s)));
    QVERIFY(desktop.alerts.sheets.isEmpty());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(desktop.alerts.sheets.size(), 1);
}

void DefaultCollectionTest::offersNothingWhenTheWindowIsClosed()
{
    Desktop desktop;
    BookListDocument document(desktop.services());
    document.makeWindowControllers();
    QVERIFY(!document.writeToFile(desktop.path(u"new.books"_s)));
    desktop.window->setVisible(false);
    QCoreApplication::sendPostedEvents();
    QVERIFY(desktop.alerts.sheets.isEmpty());
}

void DefaultCollectionTest::survivesTheDocumentsEndBeforeTheOffer()
{
    Desktop desktop;
    {
        BookListDocument document(desktop.services());
        document.makeWindowControllers();
        QVERIFY(!document.writeToFile(desktop.path(u"new.books"_s)));
    }
    QCoreApplication::sendPostedEvents();
    QVERIFY(desktop.alerts.sheets.isEmpty());
}

void DefaultCollectionTest::survivesAnAnswerAfterTheDocument()
{
    Desktop desktop;
    {
        BookListDocument document(desktop.services());
        document.makeWindowControllers();
        QVERIFY(isSaved(document, desktop.path(u"new.books"_s)));
    }
    desktop.alerts.sheets.first().answered(0);
    QVERIFY(!desktop.defaults.contains(DefaultFile));
}

void DefaultCollectionTest::storesTheCurrentPath()
{
    Desktop desktop;
    const QString second = desktop.path(u"second.books"_s);
    BookListDocument document(desktop.services());
    document.makeWindowControllers();
    QVERIFY(isSaved(document, desktop.path(u"first.books"_s)));
    QVERIFY(isSaved(document, second));
    desktop.alerts.sheets.first().answered(0);
    QCOMPARE(desktop.storedDefaultFile(), second);
    QCOMPARE(resolveBookmark(desktop.storedBookmark()), std::optional<QString>(second));
}

void DefaultCollectionTest::completesSettingsThatKnowOnlyThePath_data()
{
    QTest::addColumn<bool>("otherCase");
    QTest::newRow("the very path") << false;
    QTest::newRow("other letter case") << true;
}

void DefaultCollectionTest::completesSettingsThatKnowOnlyThePath()
{
    QFETCH(const bool, otherCase);
    Desktop desktop;
    const QString path = desktop.savedCollection(u"Library É.books"_s);
    desktop.defaults.setString(DefaultFile, otherCase ? path.toUpper() : path);
    BookListDocument document(desktop.services());
    QVERIFY(!document.readFromFile(path));
    QVERIFY(!desktop.defaults.contains(BookmarkData));
    document.makeWindowControllers();
    QCOMPARE(desktop.storedDefaultFile(), path);
    QCOMPARE(resolveBookmark(desktop.storedBookmark()), std::optional<QString>(path));
    QVERIFY(desktop.alerts.sheets.isEmpty() && desktop.alerts.modals.isEmpty());
    QVERIFY(!document.isDocumentEdited());
}

void DefaultCollectionTest::leavesOtherSettingsAlone_data()
{
    QTest::addColumn<QString>("defaultFile"); // null: absent
    QTest::addColumn<QByteArray>("bookmark"); // null: absent
    QTest::newRow("no default file") << QString() << QByteArray();
    QTest::newRow("an empty default file") << u""_s << QByteArray();
    QTest::newRow("another file") << u"/elsewhere/other.books"_s << QByteArray();
    QTest::newRow("a bookmark already") << u"%1"_s << QByteArray("older");
}

void DefaultCollectionTest::leavesOtherSettingsAlone()
{
    QFETCH(QString, defaultFile);
    QFETCH(const QByteArray, bookmark);
    Desktop desktop;
    const QString path = desktop.savedCollection(u"library.books"_s);
    defaultFile.replace(u"%1"_s, path.toUpper());
    if (!defaultFile.isNull())
        desktop.defaults.setString(DefaultFile, defaultFile);
    desktop.defaults.setData(BookmarkData, bookmark);
    BookListDocument document(desktop.services());
    QVERIFY(!document.readFromFile(path));
    document.makeWindowControllers();
    QCOMPARE(desktop.defaults.stringForKey(DefaultFile), defaultFile);
    QCOMPARE(desktop.defaults.contains(DefaultFile), !defaultFile.isNull());
    QCOMPARE(desktop.defaults.dataForKey(BookmarkData), bookmark);
}

void DefaultCollectionTest::leavesANewDocumentAlone()
{
    Desktop desktop;
    desktop.defaults.setString(DefaultFile, u"/elsewhere/default.books"_s);
    BookListDocument document(desktop.services());
    document.makeWindowControllers();
    QVERIFY(!desktop.defaults.contains(BookmarkData));
}

QTEST_GUILESS_MAIN(DefaultCollectionTest)
#include "DefaultCollectionTest.moc"
