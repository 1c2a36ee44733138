#include "app/MainMenu.h"

#include "tests/support/DocumentDesk.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::readFile;

namespace {

/// A document in a window with menus.
struct MenuDesk : DocumentDesk {
    QMainWindow& windowWithMenus(Document& document)
    {
        auto& window = static_cast<QMainWindow&>(*windowOf(document));
        addFileMenu(window, document, controller,
            {[](QMenu&) {},
                [this] {
                    ++preferencesShown;
                }});
        addHelpMenu(window);
        return window;
    }

    int preferencesShown = 0;
};

QAction* action(const QMainWindow& window, const QString& name)
{
    return window.findChild<QAction*>(name);
}

QMenu* openedMenu(const QMainWindow& window, const QString& name)
{
    auto* const menu = window.findChild<QMenu*>(name);
    Q_EMIT menu->aboutToShow();
    return menu;
}

/// The letters behind "&" of a menu's items.
QString mnemonics(const QList<QAction*>& actions)
{
    QString letters;
    for (const QAction* const each : actions) {
        const QString text = QString(each->text()).remove(u"&&"_s);
        const qsizetype place = text.indexOf(u'&');
        if (place >= 0)
            letters += text.at(place + 1).toLower();
    }
    return letters;
}

QStringList textsOf(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* const each : menu.actions()) {
        if (!each->isSeparator())
            texts.append(each->text());
    }
    return texts;
}

} // namespace

class MainMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void givesEachItemAKeyOfItsOwn();
    void hasTheUsualShortcuts_data();
    void hasTheUsualShortcuts();
    void speaksToTheDocuments();
    void showsThePreferences();
    void savesTheDocumentOfItsWindow();
    void revertsOnlyWhatHasAFile();
    void closesTheDocumentOfItsWindow();
    void listsRecentDocuments();
    void tellsRecentDocumentsOfOneNameApart();
    void showsRecentNamesAsTheyAre();
    void opensAndClearsRecentDocuments();
    void saysWhatTheProgramIs();
};

void MainMenuTest::givesEachItemAKeyOfItsOwn()
{
    MenuDesk desk;
    QMainWindow& window = desk.windowWithMenus(*desk.controller.newDocument());
    QList<QList<QAction*>> menus{window.menuBar()->actions()};
    for (const QAction* const menu : window.menuBar()->actions())
        menus.append(menu->menu()->actions());
    for (const QList<QAction*>& menu : menus) {
        QList<QAction*> items = menu;
        items.removeIf([](const QAction* item) { return item->isSeparator(); });
        const QString letters = mnemonics(items);
        QCOMPARE(letters.size(), items.size());
        QCOMPARE(QSet<QChar>(letters.begin(), letters.end()).size(), letters.size());
    }
}

void MainMenuTest::hasTheUsualShortcuts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QKeySequence>("keys");
    QTest::newRow("New") << u"newCollection"_s << QKeySequence(Qt::CTRL | Qt::Key_N);
    QTest::newRow("Open") << u"openCollection"_s << QKeySequence(Qt::CTRL | Qt::Key_O);
    QTest::newRow("Save") << u"save"_s << QKeySequence(Qt::CTRL | Qt::Key_S);
    QTest::newRow("Save As") << u"saveAs"_s << QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    QTest::newRow("Preferences") << u"preferences"_s << QKeySequence(Qt::CTRL | Qt::Key_Comma);
    QTest::newRow("Close") << u"closeWindow"_s << QKeySequence(Qt::CTRL | Qt::Key_W);
    QTest::newRow("Quit") << u"quit"_s << QKeySequence(Qt::CTRL | Qt::Key_Q);
}

void MainMenuTest::hasTheUsualShortcuts()
{
    QFETCH(const QString, name);
    QFETCH(const QKeySequence, keys);
    MenuDesk desk;
    QMainWindow& window = desk.windowWithMenus(*desk.controller.newDocument());
    QVERIFY(action(window, name)->shortcuts().contains(keys));
}

void MainMenuTest::speaksToTheDocuments()
{
    MenuDesk desk;
    QMainWindow& window = desk.windowWithMenus(*desk.controller.newDocument());
    action(window, u"newCollection"_s)->trigger();
    QCOMPARE(desk.controller.documents().size(), std::size_t(2));
    action(window, u"openCollection"_s)->trigger();
    QCOMPARE(desk.panels.openPanels.size(), 1);
    QCOMPARE(desk.panels.openPanels.first().window, &window);
}

void MainMenuTest::showsThePreferences()
{
    MenuDesk desk;
    QMainWindow& window = desk.windowWithMenus(*desk.controller.newDocument());
    action(window, u"preferences"_s)->trigger();
    QCOMPARE(desk.preferencesShown, 1);
}

void MainMenuTest::savesTheDocumentOfItsWindow()
{
    MenuDesk desk;
    TextDocument& document = desk.edited(u"Emma.books"_s);
    QMainWindow& window = desk.windowWithMenus(document);
    desk.controller.newDocument(); // which is the current one now
    action(window, u"save"_s)->trigger();
    QCOMPARE(readFile(desk.path(u"Emma.books"_s)), QByteArray("newer"));
    action(window, u"saveAs"_s)->trigger();
    QCOMPARE(desk.panels.savePanels.size(), 1);
    QCOMPARE(desk.panels.savePanels.first().suggestedPath, desk.path(u"Emma.books"_s));
}

void MainMenuTest::revertsOnlyWhatHasAFile()
{
    MenuDesk desk;
    QMainWindow& untitled = desk.windowWithMenus(*desk.controller.newDocument());
    openedMenu(untitled, u"fileMenu"_s);
    QVERIFY(!action(untitled, u"revert"_s)->isEnabled());
    QMainWindow& window = desk.windowWithMenus(desk.edited(u"Emma.books"_s));
    openedMenu(window, u"fileMenu"_s);
    QVERIFY(action(window, u"revert"_s)->isEnabled());
    action(window, u"revert"_s)->trigger();
    QCOMPARE(desk.alerts.sheets.size(), 1);
}

void MainMenuTest::closesTheDocumentOfItsWindow()
{
    MenuDesk desk;
    Document* const document = desk.controller.newDocument();
    QMainWindow& window = desk.windowWithMenus(*document);
    Document* const other = desk.controller.newDocument();
    action(window, u"closeWindow"_s)->trigger();
    QCOMPARE(desk.controller.documents().size(), std::size_t(1));
    QCOMPARE(desk.controller.documents().front().get(), other);
}

void MainMenuTest::listsRecentDocuments()
{
    MenuDesk desk;
    QMainWindow& window = desk.windowWithMenus(*desk.controller.newDocument());
    QCOMPARE(textsOf(*openedMenu(window, u"recentMenu"_s)), QStringList{u"&Clear Menu"_s});
    QVERIFY(!window.findChild<QMenu*>(u"recentMenu"_s)->actions().last()->isEnabled());
    desk.controller.openDocument(desk.file(u"Emma.books"_s));
    desk.controller.openDocument(desk.file(u"Persuasion.books"_s));
    QVERIFY(QFile::remove(desk.path(u"Emma.books"_s)));
    const QMenu& menu = *openedMenu(window, u"recentMenu"_s);
    QCOMPARE(textsOf(menu), QStringList({u"Persuasion"_s, u"Emma"_s, u"&Clear Menu"_s}));
    QVERIFY(menu.actions().at(0)->isEnabled());
    QVERIFY(!menu.actions().at(1)->isEnabled());
    QVERIFY(menu.actions().last()->isEnabled());
}

void MainMenuTest::tellsRecentDocumentsOfOneNameApart()
{
    MenuDesk desk;
    QMainWindow& window = desk.windowWithMenus(*desk.controller.newDocument());
    QVERIFY(QDir(desk.path({})).mkdir(u"old"_s));
    desk.controller.openDocument(desk.file(u"Emma.books"_s));
    desk.controller.openDocument(desk.file(u"old/Emma.books"_s));
    const QStringList texts = textsOf(*openedMenu(window, u"recentMenu"_s));
    QVERIFY(texts.at(0) != texts.at(1));
    QVERIFY(texts.at(0).contains(u"old"_s));
}

void MainMenuTest::showsRecentNamesAsTheyAre()
{
    MenuDesk desk;
    QMainWindow& window = desk.windowWithMenus(*desk.controller.newDocument());
    desk.controller.openDocument(desk.file(u"Tom & Jerry.books"_s));
    QCOMPARE(textsOf(*openedMenu(window, u"recentMenu"_s)).first(), u"Tom && Jerry"_s);
}

void MainMenuTest::opensAndClearsRecentDocuments()
{
    MenuDesk desk;
    QMainWindow& window = desk.windowWithMenus(*desk.controller.newDocument());
    const QString path = desk.file(u"Emma.books"_s);
    desk.controller.close(*desk.controller.openDocument(path));
    openedMenu(window, u"recentMenu"_s)->actions().first()->trigger();
    QVERIFY(desk.controller.documentForFile(path));
    openedMenu(window, u"recentMenu"_s)->actions().last()->trigger();
    QVERIFY(desk.controller.recentDocuments().isEmpty());
}

void MainMenuTest::saysWhatTheProgramIs()
{
    QApplication::setApplicationVersion(u"1.2.3"_s);
    MenuDesk desk;
    QMainWindow& window = desk.windowWithMenus(*desk.controller.newDocument());
    action(window, u"about"_s)->trigger();
    auto* const box = window.findChild<QMessageBox*>(u"aboutBox"_s);
    QVERIFY(box && box->isVisible());
    QVERIFY(box->text().contains(u"Tomely 1.2.3"_s));
    QTest::keyClick(box, Qt::Key_Escape);
    QTRY_VERIFY(!window.findChild<QMessageBox*>(u"aboutBox"_s));
}

QTEST_MAIN(MainMenuTest)
#include "MainMenuTest.moc"
