#include "app/StartWindow.h"

#include "tests/support/DocumentDesk.h"

#include <QListWidget>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

struct StartDesk : DocumentDesk {
    StartWindow window{controller};

    QListWidget& recent() { return *window.findChild<QListWidget*>(u"recentCollections"_s); }

    void press(const QString& button)
    {
        QTest::mouseClick(window.findChild<QPushButton*>(button), Qt::LeftButton);
    }
};

} // namespace

class StartWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void makesACollection();
    void opensACollection();
    void listsRecentCollections();
    void readsTheListAnewEachTime();
    void opensARecentCollection_data();
    void opensARecentCollection();
    void cannotOpenARecentCollectionThatIsGone();
    void asksForThePreferences_data();
    void asksForThePreferences();
    void closesToQuit_data();
    void closesToQuit();
    void canBeUsedByKeyboard();
};

void StartWindowTest::makesACollection()
{
    StartDesk desk;
    desk.window.present();
    QVERIFY(desk.window.isVisible());
    desk.press(u"newCollection"_s);
    QCOMPARE(desk.controller.documents().size(), std::size_t(1));
}

void StartWindowTest::opensACollection()
{
    StartDesk desk;
    desk.window.present();
    desk.press(u"openCollection"_s);
    QCOMPARE(desk.panels.openPanels.size(), 1);
    QCOMPARE(desk.panels.openPanels.first().window, &desk.window);
}

void StartWindowTest::listsRecentCollections()
{
    StartDesk desk;
    desk.window.present();
    QCOMPARE(desk.recent().count(), 0);
    desk.controller.openDocument(desk.file(u"Emma.books"_s));
    desk.controller.openDocument(desk.file(u"Persuasion.books"_s));
    desk.window.present();
    QCOMPARE(desk.recent().count(), 2);
    QCOMPARE(desk.recent().item(0)->text(), u"Persuasion"_s);
    QCOMPARE(desk.recent().item(1)->text(), u"Emma"_s);
    QCOMPARE(desk.recent().item(1)->toolTip(), desk.path(u"Emma.books"_s));
    QCOMPARE(desk.recent().currentRow(), 0);
}

void StartWindowTest::readsTheListAnewEachTime()
{
    StartDesk desk;
    desk.controller.openDocument(desk.file(u"Emma.books"_s));
    desk.window.present();
    QCOMPARE(desk.recent().count(), 1);
    desk.controller.clearRecentDocuments();
    desk.window.present();
    QCOMPARE(desk.recent().count(), 0);
}

void StartWindowTest::opensARecentCollection_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Return") << true;
    QTest::newRow("double click") << false;
}

void StartWindowTest::opensARecentCollection()
{
    QFETCH(const bool, byKey);
    StartDesk desk;
    const QString path = desk.file(u"Emma.books"_s);
    desk.controller.close(*desk.controller.openDocument(path));
    desk.window.present();
    if (byKey) {
        QTest::keyClick(&desk.recent(), Qt::Key_Return);
    } else {
        const QPoint place = desk.recent().visualItemRect(desk.recent().item(0)).center();
        QTest::mouseClick(desk.recent().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(desk.recent().viewport(), Qt::LeftButton, {}, place);
    }
    QVERIFY(desk.controller.documentForFile(path));
    QCOMPARE(desk.controller.documents().size(), std::size_t(1));
}

void StartWindowTest::cannotOpenARecentCollectionThatIsGone()
{
    StartDesk desk;
    const QString path = desk.file(u"Emma.books"_s);
    desk.controller.close(*desk.controller.openDocument(path));
    QVERIFY(QFile::remove(path));
    desk.window.present();
    QCOMPARE(desk.recent().count(), 1);
    QVERIFY(!(desk.recent().item(0)->flags() & Qt::ItemIsEnabled));
    QTest::keyClick(&desk.recent(), Qt::Key_Return);
    QVERIFY(desk.controller.documents().empty());
    QVERIFY(desk.alerts.modals.isEmpty());
}

void StartWindowTest::asksForThePreferences_data()
{
    QTest::addColumn<QString>("focus");
    QTest::newRow("the button itself") << u""_s;
    QTest::newRow("keys on a button") << u"quit"_s;
    QTest::newRow("keys in the list") << u"recentCollections"_s;
}

void StartWindowTest::asksForThePreferences()
{
    QFETCH(const QString, focus);
    StartDesk desk;
    desk.controller.close(*desk.controller.openDocument(desk.file(u"Emma.books"_s)));
    QSignalSpy asked(&desk.window, &StartWindow::preferencesRequested);
    desk.window.present();
    if (focus.isEmpty())
        desk.press(u"preferences"_s);
    else
        QTest::keyClick(desk.window.findChild<QWidget*>(focus), Qt::Key_Comma, Qt::ControlModifier);
    QCOMPARE(asked.size(), 1);
    QVERIFY(desk.window.isVisible());
}

void StartWindowTest::closesToQuit_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("the button Quit") << 0;
    QTest::newRow("the window's own button") << 1;
    QTest::newRow("Ctrl+Q") << 2;
    QTest::newRow("Ctrl+W") << 3;
}

void StartWindowTest::closesToQuit()
{
    QFETCH(const int, way);
    StartDesk desk;
    QSignalSpy closed(&desk.window, &StartWindow::closedByUser);
    desk.window.present();
    switch (way) {
    case 0:
        desk.press(u"quit"_s);
        break;
    case 1:
        desk.window.close();
        break;
    case 2:
        QTest::keyClick(&desk.window, Qt::Key_Q, Qt::ControlModifier);
        break;
    default:
        QTest::keyClick(&desk.window, Qt::Key_W, Qt::ControlModifier);
        break;
    }
    QCOMPARE(closed.size(), 1);
    QVERIFY(!desk.window.isVisible());
}

void StartWindowTest::canBeUsedByKeyboard()
{
    StartDesk desk;
    desk.window.present();
    QVERIFY(QTest::qWaitForWindowActive(&desk.window));
    QSet<QString> letters;
    const auto buttons = desk.window.findChildren<QPushButton*>();
    for (QPushButton* const button : buttons) {
        const qsizetype place = button->text().indexOf(u'&');
        QVERIFY(place >= 0);
        letters.insert(button->text().mid(place + 1, 1).toLower());
        QVERIFY(button->focusPolicy() & Qt::TabFocus);
    }
    QCOMPARE(letters.size(), buttons.size());
    QStringList order;
    const QWidget* next = &desk.window;
    while ((next = next->nextInFocusChain()) != &desk.window) {
        if (next->focusPolicy() & Qt::TabFocus)
            order.append(next->objectName());
    }
    QCOMPARE(order,
        QStringList({u"newCollection"_s, u"openCollection"_s, u"preferences"_s, u"quit"_s,
            u"recentCollections"_s}));
    auto* const make = desk.window.findChild<QPushButton*>(u"newCollection"_s);
    make->setFocus();
    QTest::keyClick(make, Qt::Key_Return);
    QCOMPARE(desk.controller.documents().size(), std::size_t(1));
    QVERIFY(desk.window.focusWidget());
}

QTEST_MAIN(StartWindowTest)
#include "StartWindowTest.moc"
