#include "app/PreferencesController.h"

#include "platform/FileBookmark.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"
#include "tests/support/FakeAlerts.h"
#include "tests/support/FakeFilePanels.h"
#include "tests/support/Files.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSettings>
#include <QSlider>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// The window with preferences and panels of its own.
struct PreferencesDesk {
    QTemporaryDir folder;
    UserDefaults defaults{folder.filePath(u"Tomely.ini"_s)};
    FakeFilePanels panels;
    PreferencesController window{defaults, panels};

    template <class Widget = QWidget>
    Widget& find(const QString& name) const
    {
        return *window.findChild<Widget*>(name);
    }

    bool isOn(const QString& box) const { return find<QCheckBox>(box).isChecked(); }

    QString shownPath() const { return find<QPlainTextEdit>(u"m_idFileName"_s).toPlainText(); }

    void click(const QString& button) const { find<QAbstractButton>(button).click(); }

    void type(const QString& field, const QString& text) const
    {
        auto& line = find<QLineEdit>(field);
        line.selectAll();
        QTest::keyClick(&line, Qt::Key_Delete);
        QTest::keyClicks(&line, text);
    }

    /// Picks in the panel that was opened last.
    void pick(const QStringList& paths) const { panels.openPanels.last().picked(paths); }

    /// What the file holds, as the toolkit reads it.
    QVariant written(QLatin1StringView key) const
    {
        return QSettings(defaults.filePath(), QSettings::IniFormat).value(key);
    }

    QByteArray file() const { return samples::readFile(defaults.filePath()); }
};

/// The boxes of switches with their keys.
void addSwitches()
{
    QTest::addColumn<QLatin1StringView>("key");
    QTest::addColumn<QString>("box");
    const auto add = [](QLatin1StringView key, const QString& box) {
        QTest::newRow(key.data()) << key << box;
    };
    add("OpenCustomTab"_L1, u"m_idOpenCustomTabCheckBox"_s);
    add("DisableAutoLookup"_L1, u"m_idDisableAutoLookupCheckBox"_s);
    add("SetFirstReadToCurrentDate"_L1, u"m_SetFirstReadToCurrentDate"_s);
    add("SetLastReadToCurrentDate"_L1, u"m_SetLastReadToCurrentDate"_s);
    add("SetPurchasedToCurrentDate"_L1, u"m_SetPurchasedToCurrentDate"_s);
    add("SetReadFlag"_L1, u"m_SetReadFlag"_s);
    add("ScaleImages"_L1, u"m_ScaleImages"_s);
    add("SetFocusToISBNField"_L1, u"m_SetFocusToISBNField"_s);
    add("DisableAuthorConcatenation"_L1, u"m_DisableAuthorConcatenation"_s);
    add("DisableImageDownload"_L1, u"m_idDisableImageDownload"_s);
    add("EnableAlternateSources"_L1, u"m_idEnableAlternateSources"_s);
}

const QString page = u"m_idLookupPageHost"_s;

} // namespace

class PreferencesControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsWhatHoldsAtTheFirstStart();

    void keepsEachSwitchUnderItsKey_data() { addSwitches(); }

    void keepsEachSwitchUnderItsKey();

    void showsEachSwitch_data() { addSwitches(); }

    void showsEachSwitch();
    void showsTheQuality_data();
    void showsTheQuality();
    void storesTheQualityAsANumber();
    void storesAllThatWasAbsent();
    void choosesTheDefaultCollection();
    void takesTheFirstOfSeveralFiles();
    void startsThePanelWhereTheCollectionIs();
    void startsTheDesktopsPanelThere_data();
    void startsTheDesktopsPanelThere();
    void keepsTheChoiceWhenThePanelIsCancelled();
    void forgetsTheDefaultCollection();
    void hasNoDefaultCollectionWithoutAFile();
    void keepsAReferenceThatWasNotTouched();
    void dropsEverythingWhenItIsCancelled_data();
    void dropsEverythingWhenItIsCancelled();
    void readsTheStoreAnewWhenItIsShownAgain();
    void keepsWhatIsSetWhileItIsShown();
    void appliesAndStays();
    void confirmsByReturn_data();
    void confirmsByReturn();
    void asksForTheEndOfTheProgram();
    void saysWhenTheFileCannotBeWritten();
};

void PreferencesControllerTest::showsWhatHoldsAtTheFirstStart()
{
    PreferencesDesk desk;
    desk.defaults.setBool(PreferenceKeys::EnableAlternateSources, true); // as the start does
    desk.window.showWindow();
    for (const QCheckBox* const box : desk.window.findChildren<QCheckBox*>())
        QCOMPARE(box->isChecked(), box->objectName() == u"m_idEnableAlternateSources"_s);
    QCOMPARE(desk.find<QSlider>(u"m_imageQuality"_s).value(), 7);
    QCOMPARE(desk.find<QLabel>(u"m_idQualityValue"_s).text(), u"7"_s);
    QCOMPARE(desk.shownPath(), QString());
    QVERIFY(!desk.find(u"m_idFileSelectButton"_s).isEnabled());
    for (const QLineEdit* const field : desk.window.findChildren<QLineEdit*>())
        QCOMPARE(field->text(), QString());
}

void PreferencesControllerTest::keepsEachSwitchUnderItsKey()
{
    QFETCH(const QLatin1StringView, key);
    QFETCH(const QString, box);
    PreferencesDesk desk;
    desk.window.showWindow();
    desk.click(box);
    desk.window.Apply();
    for (const QCheckBox* const each : desk.window.findChildren<QCheckBox*>())
        QCOMPARE(each->isChecked(), each->objectName() == box);
    QCOMPARE(desk.written(key), QVariant(u"true"_s));
    QCOMPARE(desk.file().count("=true"), 1);
    QVERIFY(desk.defaults.boolForKey(key));
    desk.click(box);
    desk.window.Apply();
    QCOMPARE(desk.written(key), QVariant(u"false"_s));
    QVERIFY(!desk.file().contains("=true"));
}

void PreferencesControllerTest::showsEachSwitch()
{
    QFETCH(const QLatin1StringView, key);
    QFETCH(const QString, box);
    PreferencesDesk desk;
    desk.defaults.setBool(key, true);
    desk.window.showWindow();
    for (const QCheckBox* const each : desk.window.findChildren<QCheckBox*>())
        QCOMPARE(each->isChecked(), each->objectName() == box);
}

void PreferencesControllerTest::showsTheQuality_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("shown");
    QTest::newRow("0") << u"0"_s << 7;
    QTest::newRow("low bits 0") << u"4294967296"_s << 7;
    QTest::newRow("low bits 5") << u"4294967301"_s << 5;
    QTest::newRow("no number") << u"best"_s << 7;
    QTest::newRow("lowest") << u"1"_s << 1;
    QTest::newRow("highest") << u"10"_s << 10;
    QTest::newRow("above") << u"12"_s << 10;
    QTest::newRow("below") << u"-3"_s << 1;
}

void PreferencesControllerTest::showsTheQuality()
{
    QFETCH(const QString, stored);
    QFETCH(const int, shown);
    PreferencesDesk desk;
    desk.defaults.setString(PreferenceKeys::ImageQuality, stored);
    desk.window.showWindow();
    QCOMPARE(desk.find<QSlider>(u"m_imageQuality"_s).value(), shown);
    QCOMPARE(desk.find<QLabel>(u"m_idQualityValue"_s).text(), QString::number(shown));
    desk.window.OK();
    QCOMPARE(desk.defaults.integerForKey(PreferenceKeys::ImageQuality), shown);
}

void PreferencesControllerTest::storesTheQualityAsANumber()
{
    PreferencesDesk desk;
    desk.window.showWindow();
    QTest::keyClick(&desk.find(u"m_imageQuality"_s), Qt::Key_Right);
    QTest::keyClick(&desk.find(u"m_imageQuality"_s), Qt::Key_Right);
    QCOMPARE(desk.find<QLabel>(u"m_idQualityValue"_s).text(), u"9"_s);
    desk.window.Apply();
    QCOMPARE(desk.written("ImageQuality"_L1), QVariant(u"9"_s));
}

void PreferencesControllerTest::storesAllThatWasAbsent()
{
    PreferencesDesk desk;
    desk.window.showWindow();
    desk.window.OK();
    QSettings file(desk.defaults.filePath(), QSettings::IniFormat);
    QCOMPARE(file.allKeys(),
        QStringList({u"DefaultFile"_s, u"DisableAuthorConcatenation"_s, u"DisableAutoLookup"_s,
            u"DisableImageDownload"_s, u"EnableAlternateSources"_s, u"ImageQuality"_s,
            u"OpenCustomTab"_s, u"ScaleImages"_s, u"SetFirstReadToCurrentDate"_s,
            u"SetFocusToISBNField"_s, u"SetLastReadToCurrentDate"_s, u"SetPurchasedToCurrentDate"_s,
            u"SetReadFlag"_s}));
}

void PreferencesControllerTest::choosesTheDefaultCollection()
{
    PreferencesDesk desk;
    const QString path = desk.folder.filePath(u"Emma.books"_s);
    samples::writeFile(path, "books");
    desk.window.showWindow();
    desk.click(u"m_idFileSelectedCheckBox"_s);
    QVERIFY(desk.find(u"m_idFileSelectButton"_s).isEnabled());
    desk.click(u"m_idFileSelectButton"_s);
    QCOMPARE(desk.panels.openPanels.size(), 1);
    QCOMPARE(desk.panels.openPanels.first().window, &desk.window);
    QCOMPARE(desk.panels.openPanels.first().type.extension, u"books"_s);
    QCOMPARE(desk.panels.openPanels.first().folder, QString());
    desk.pick({path});
    QCOMPARE(desk.shownPath(), path);
    QCOMPARE(desk.find<QPlainTextEdit>(u"m_idFileName"_s).toolTip(), path.toHtmlEscaped());
    QVERIFY(!desk.defaults.contains(PreferenceKeys::DefaultFile));
    QVERIFY(!desk.defaults.contains(PreferenceKeys::BookmarkData));
    desk.window.OK();
    QCOMPARE(desk.written("DefaultFile"_L1), QVariant(path));
    QCOMPARE(desk.written("BookmarkData"_L1), QVariant(makeBookmark(path)));
    QCOMPARE(desk.written("BookmarkData"_L1).typeId(), int(QMetaType::QByteArray));
    QCOMPARE(resolveBookmark(desk.defaults.dataForKey(PreferenceKeys::BookmarkData)), path);
}

void PreferencesControllerTest::takesTheFirstOfSeveralFiles()
{
    PreferencesDesk desk;
    desk.window.showWindow();
    desk.click(u"m_idFileSelectedCheckBox"_s);
    desk.window.selectDefaultFile();
    desk.pick({u"/a/Emma.books"_s, u"/b/Persuasion.books"_s});
    QCOMPARE(desk.shownPath(), u"/a/Emma.books"_s);
}

void PreferencesControllerTest::startsThePanelWhereTheCollectionIs()
{
    PreferencesDesk desk;
    desk.defaults.setString(PreferenceKeys::DefaultFile, u"/a/b/Emma.books"_s);
    desk.window.showWindow();
    desk.window.selectDefaultFile();
    QCOMPARE(desk.panels.openPanels.last().folder, u"/a/b"_s);
    desk.pick({u"/c/Persuasion.books"_s});
    desk.window.selectDefaultFile();
    QCOMPARE(desk.panels.openPanels.last().folder, u"/c"_s);
}

void PreferencesControllerTest::startsTheDesktopsPanelThere_data()
{
    QTest::addColumn<bool>("isGone");
    QTest::newRow("the folder is there") << false;
    QTest::newRow("the folder is gone") << true;
}

void PreferencesControllerTest::startsTheDesktopsPanelThere()
{
    QFETCH(const bool, isGone);
    const QTemporaryDir folder;
    UserDefaults defaults(folder.filePath(u"Tomely.ini"_s));
    const QString collections = folder.filePath(u"collections"_s);
    defaults.setString(PreferenceKeys::DefaultFile, collections + u"/Emma.books"_s);
    if (!isGone)
        QVERIFY(QDir().mkpath(collections));
    FakeAlerts alerts;
    DesktopFilePanels panels(alerts);
    PreferencesController window(defaults, panels);
    window.showWindow();
    window.selectDefaultFile();
    auto* const panel = window.findChild<QFileDialog*>(u"filePanel"_s);
    QVERIFY(panel && panel->isVisible());
    QCOMPARE(panel->directory().absolutePath() == collections, !isGone);
    QVERIFY(panel->directory().exists());
    panel->reject();
    QCOMPARE(window.findChild<QPlainTextEdit*>(u"m_idFileName"_s)->toPlainText(),
        collections + u"/Emma.books"_s);
}

void PreferencesControllerTest::keepsTheChoiceWhenThePanelIsCancelled()
{
    PreferencesDesk desk;
    desk.defaults.setString(PreferenceKeys::DefaultFile, u"/a/Emma.books"_s);
    desk.window.showWindow();
    desk.window.selectDefaultFile();
    desk.pick({});
    QCOMPARE(desk.shownPath(), u"/a/Emma.books"_s);
}

void PreferencesControllerTest::forgetsTheDefaultCollection()
{
    PreferencesDesk desk;
    desk.defaults.setString(PreferenceKeys::DefaultFile, u"/a/Emma.books"_s);
    desk.defaults.setData(PreferenceKeys::BookmarkData, makeBookmark(u"/a/Emma.books"_s));
    desk.window.showWindow();
    QVERIFY(desk.isOn(u"m_idFileSelectedCheckBox"_s));
    QVERIFY(desk.find(u"m_idFileSelectButton"_s).isEnabled());
    desk.click(u"m_idFileSelectedCheckBox"_s);
    QCOMPARE(desk.shownPath(), QString());
    QVERIFY(!desk.find(u"m_idFileSelectButton"_s).isEnabled());
    desk.window.OK();
    QCOMPARE(desk.written("DefaultFile"_L1), QVariant(QString()));
    QVERIFY(desk.file().contains("DefaultFile="));
    QVERIFY(!desk.file().contains("BookmarkData"));
}

void PreferencesControllerTest::hasNoDefaultCollectionWithoutAFile()
{
    PreferencesDesk desk;
    desk.defaults.setData(PreferenceKeys::BookmarkData, makeBookmark(u"/a/Emma.books"_s));
    desk.window.showWindow();
    QVERIFY(!desk.isOn(u"m_idFileSelectedCheckBox"_s));
    desk.click(u"m_idFileSelectedCheckBox"_s);
    desk.window.OK();
    QVERIFY(desk.defaults.contains(PreferenceKeys::DefaultFile));
    QCOMPARE(desk.defaults.stringForKey(PreferenceKeys::DefaultFile), QString());
    QVERIFY(!desk.defaults.contains(PreferenceKeys::BookmarkData));
}

void PreferencesControllerTest::keepsAReferenceThatWasNotTouched()
{
    PreferencesDesk desk;
    const QByteArray opaque("of a later version\0\xff", 20);
    desk.defaults.setString(PreferenceKeys::DefaultFile, u"/a/Emma.books"_s);
    desk.defaults.setData(PreferenceKeys::BookmarkData, opaque);
    desk.window.showWindow();
    QCOMPARE(desk.shownPath(), u"/a/Emma.books"_s);
    desk.window.OK();
    QCOMPARE(desk.written("BookmarkData"_L1), QVariant(opaque));
    QCOMPARE(desk.written("DefaultFile"_L1), QVariant(u"/a/Emma.books"_s));
}

void PreferencesControllerTest::dropsEverythingWhenItIsCancelled_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("withControl");
    QTest::newRow("the button") << 0 << false;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << false;
    QTest::newRow("Ctrl+W") << int(Qt::Key_W) << true;
    QTest::newRow("the window's own button") << -1 << false;
}

void PreferencesControllerTest::dropsEverythingWhenItIsCancelled()
{
    QFETCH(const int, key);
    QFETCH(const bool, withControl);
    PreferencesDesk desk;
    desk.window.showWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.window));
    for (QCheckBox* const box : desk.window.findChildren<QCheckBox*>())
        box->click();
    desk.window.selectDefaultFile();
    desk.pick({u"/a/Emma.books"_s});
    desk.type(page, u"books.example.org"_s);
    if (key == 0)
        desk.click(u"m_idCancelButton"_s);
    else if (key == -1)
        desk.window.close();
    else
        QTest::keyClick(
            &desk.find(page), Qt::Key(key), withControl ? Qt::ControlModifier : Qt::NoModifier);
    QVERIFY(!desk.window.isVisible());
    QCoreApplication::processEvents();
    QVERIFY(!QFile::exists(desk.defaults.filePath()));
    desk.window.showWindow();
    for (const QCheckBox* const box : desk.window.findChildren<QCheckBox*>())
        QVERIFY(!box->isChecked());
    QCOMPARE(desk.shownPath(), QString());
    QCOMPARE(desk.find<QLineEdit>(page).text(), QString());
}

void PreferencesControllerTest::readsTheStoreAnewWhenItIsShownAgain()
{
    PreferencesDesk desk;
    desk.window.showWindow();
    desk.window.Cancel();
    desk.defaults.setBool(PreferenceKeys::ScaleImages, true);
    desk.defaults.setString(PreferenceKeys::DefaultFile, u"/a/Emma.books"_s);
    desk.window.showWindow();
    QVERIFY(desk.isOn(u"m_ScaleImages"_s));
    QCOMPARE(desk.shownPath(), u"/a/Emma.books"_s);
}

void PreferencesControllerTest::keepsWhatIsSetWhileItIsShown()
{
    PreferencesDesk desk;
    desk.window.showWindow();
    desk.click(u"m_SetReadFlag"_s);
    desk.click(u"m_idFileSelectedCheckBox"_s);
    desk.window.selectDefaultFile();
    desk.pick({u"/a/Emma.books"_s});
    desk.window.showWindow();
    QVERIFY(desk.isOn(u"m_SetReadFlag"_s));
    QCOMPARE(desk.shownPath(), u"/a/Emma.books"_s);
    QVERIFY(!desk.defaults.boolForKey(PreferenceKeys::SetReadFlag));
}

void PreferencesControllerTest::appliesAndStays()
{
    PreferencesDesk desk;
    desk.window.showWindow();
    desk.click(u"m_SetReadFlag"_s);
    desk.click(u"m_idApplyButton"_s);
    QVERIFY(desk.window.isVisible());
    QCOMPARE(desk.written("SetReadFlag"_L1), QVariant(u"true"_s));
    desk.click(u"m_SetReadFlag"_s);
    desk.click(u"m_idCancelButton"_s);
    QVERIFY(desk.defaults.boolForKey(PreferenceKeys::SetReadFlag));
}

void PreferencesControllerTest::confirmsByReturn_data()
{
    QTest::addColumn<QString>("focus");
    QTest::newRow("a box") << u"m_idFileSelectedCheckBox"_s;
    QTest::newRow("the path") << u"m_idFileName"_s;
    QTest::newRow("the slider") << u"m_imageQuality"_s;
    QTest::newRow("a host") << page;
}

void PreferencesControllerTest::confirmsByReturn()
{
    QFETCH(const QString, focus);
    PreferencesDesk desk;
    desk.window.showWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.window));
    desk.find(focus).setFocus();
    desk.click(u"m_ScaleImages"_s);
    QTest::keyClick(&desk.find(focus), Qt::Key_Return);
    QVERIFY(!desk.window.isVisible());
    QCOMPARE(desk.written("ScaleImages"_L1), QVariant(u"true"_s));
}

void PreferencesControllerTest::asksForTheEndOfTheProgram()
{
    PreferencesDesk desk;
    QSignalSpy asked(&desk.window, &PreferencesController::quitRequested);
    desk.window.showWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.window));
    QTest::keyClick(&desk.find(page), Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(asked.size(), 1);
}

void PreferencesControllerTest::saysWhenTheFileCannotBeWritten()
{
    PreferencesDesk desk;
    // In the way of the file is a folder.
    QVERIFY(QDir().mkpath(desk.defaults.filePath() + u"/in the way"_s));
    desk.window.showWindow();
    const auto& failure = desk.find<QLabel>(u"m_idFailure"_s);
    QVERIFY(!failure.isVisible());
    desk.click(u"m_SetReadFlag"_s);
    desk.window.OK();
    QVERIFY(desk.window.isVisible());
    QVERIFY(failure.isVisible());
    QVERIFY(failure.text().contains(desk.defaults.filePath()));
    QVERIFY(desk.defaults.boolForKey(PreferenceKeys::SetReadFlag));
    QVERIFY(QDir(desk.defaults.filePath()).removeRecursively());
    desk.window.OK();
    QVERIFY(!desk.window.isVisible());
    QCOMPARE(desk.written("SetReadFlag"_L1), QVariant(u"true"_s));
    desk.window.showWindow();
    QVERIFY(!failure.isVisible());
}

QTEST_MAIN(PreferencesControllerTest)
#include "PreferencesControllerTest.moc"
