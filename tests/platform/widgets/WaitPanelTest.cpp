#include "platform/widgets/WaitPanel.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace tomely;
using Cancel = WaitPanel::Cancel;

namespace {

/// The panel that is on screen; nullptr when none is.
QProgressDialog* shownPanel()
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == u"waitPanel"_s && widget->isVisible())
            return qobject_cast<QProgressDialog*>(widget);
    }
    return nullptr;
}

/// Goes on with the work until the panel is on screen.
bool waitForPanel(WaitPanel& wait, qint64 done = 0, qint64 total = 100)
{
    return QTest::qWaitFor([&] {
        wait.report(done, total);
        return shownPanel() != nullptr;
    });
}

/// Goes on with the work for as long as it may, which is not long when it was left.
void goOn(WaitPanel& wait)
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    while (!sinceStart.hasExpired(10'000))
        wait.report(1, 100);
}

int barValue()
{
    return shownPanel()->findChild<QProgressBar*>()->value();
}

} // namespace

class WaitPanelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void staysAwayFromShortWork();
    void comesUpForLongWork();
    void moves();
    void survivesWorkOfNoSize();
    void letsWindowsRepaint();
    void takesTheInputOfOtherWindows();
    void isLeftByItsButton();
    void isLeftByEscape();
    void cannotBeLeftWhereTheWorkCannot_data();
    void cannotBeLeftWhereTheWorkCannot();
    void knowsWhetherAnyIsWaiting();
    void outlivesItsWindow_data();
    void outlivesItsWindow();
};

void WaitPanelTest::staysAwayFromShortWork()
{
    WaitPanel wait(nullptr, u"Working"_s, Cancel::Possible);
    bool ran = false;
    QTimer::singleShot(0, this, [&ran] { ran = true; });
    wait.report(1, 100);
    wait.report(2, 100);
    QVERIFY(!shownPanel());
    QVERIFY(!ran);
    QCoreApplication::processEvents();
    QVERIFY(ran);
}

void WaitPanelTest::comesUpForLongWork()
{
    QWidget window;
    window.show();
    {
        WaitPanel wait(&window, u"Opening 'Emma'…"_s, Cancel::Possible);
        QVERIFY(waitForPanel(wait));
        QCOMPARE(shownPanel()->labelText(), u"Opening 'Emma'…"_s);
        QCOMPARE(shownPanel()->parentWidget(), &window);
        QVERIFY(shownPanel()->findChild<QPushButton*>());
    }
    QVERIFY(!shownPanel());
}

void WaitPanelTest::moves()
{
    WaitPanel wait(nullptr, u"Working"_s, Cancel::Possible);
    QVERIFY(waitForPanel(wait, 0, 1000));
    const Progress progress = wait.progress();
    QTRY_VERIFY((progress(250, 1000), barValue() == 250));
    QTRY_VERIFY((progress(1000, 1000), barValue() == 1000));
    QVERIFY(shownPanel()); // until the work is done, not until the bar is full
    constexpr qint64 huge = qint64{1} << 50;
    QTRY_VERIFY((progress(huge / 2, huge), barValue() == 500));
}

void WaitPanelTest::survivesWorkOfNoSize()
{
    WaitPanel wait(nullptr, u"Working"_s, Cancel::Possible);
    QVERIFY(waitForPanel(wait, 0, 0));
    QVERIFY(barValue() <= 0);
}

void WaitPanelTest::letsWindowsRepaint()
{
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    WaitPanel wait(nullptr, u"Working"_s, Cancel::Possible);
    QVERIFY(waitForPanel(wait));
    bool ran = false;
    QTimer::singleShot(0, this, [&ran] { ran = true; });
    QTRY_VERIFY((wait.report(1, 100), ran));
}

void WaitPanelTest::takesTheInputOfOtherWindows()
{
    QPushButton button;
    button.resize(100, 50);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QSignalSpy clicked(&button, &QPushButton::clicked);
    {
        WaitPanel wait(nullptr, u"Saving"_s, Cancel::Impossible);
        QVERIFY(waitForPanel(wait));
        QTest::mouseClick(button.windowHandle(), Qt::LeftButton, {}, QPoint(50, 25));
        QVERIFY(clicked.isEmpty());
        QCOMPARE(QApplication::activeModalWidget(), shownPanel());
    }
    QTest::mouseClick(button.windowHandle(), Qt::LeftButton, {}, QPoint(50, 25));
    QCOMPARE(clicked.size(), 1);
}

void WaitPanelTest::isLeftByItsButton()
{
    WaitPanel wait(nullptr, u"Opening"_s, Cancel::Possible);
    QVERIFY(waitForPanel(wait));
    shownPanel()->findChild<QPushButton*>()->click();
    QVERIFY_THROWS_EXCEPTION(OperationCancelled, goOn(wait));
}

void WaitPanelTest::isLeftByEscape()
{
    WaitPanel wait(nullptr, u"Opening"_s, Cancel::Possible);
    QVERIFY(waitForPanel(wait));
    QVERIFY(QTest::qWaitForWindowActive(shownPanel()));
    QTest::keyClick(shownPanel(), Qt::Key_Escape);
    QVERIFY_THROWS_EXCEPTION(OperationCancelled, goOn(wait));
}

void WaitPanelTest::cannotBeLeftWhereTheWorkCannot_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Escape") << true;
    QTest::newRow("closing the panel") << false;
}

void WaitPanelTest::cannotBeLeftWhereTheWorkCannot()
{
    QFETCH(const bool, byKey);
    WaitPanel wait(nullptr, u"Saving"_s, Cancel::Impossible);
    QVERIFY(waitForPanel(wait));
    QVERIFY(!shownPanel()->findChild<QPushButton*>());
    QVERIFY(QTest::qWaitForWindowActive(shownPanel()));
    if (byKey)
        QTest::keyClick(shownPanel(), Qt::Key_Escape);
    else
        shownPanel()->close();
    QVERIFY(shownPanel());
    QTRY_VERIFY((wait.report(500, 1000), barValue() == 500));
}

void WaitPanelTest::knowsWhetherAnyIsWaiting()
{
    QVERIFY(!Waiting::isWaiting());
    {
        const WaitPanel outer(nullptr, u"Outer"_s, Cancel::Possible);
        QVERIFY(Waiting::isWaiting());
        {
            const WaitPanel inner(nullptr, u"Inner"_s, Cancel::Possible);
            QVERIFY(Waiting::isWaiting());
        }
        QVERIFY(Waiting::isWaiting());
    }
    QVERIFY(!Waiting::isWaiting());
}

void WaitPanelTest::outlivesItsWindow_data()
{
    QTest::addColumn<bool>("isShown");
    QTest::newRow("before it comes up") << false;
    QTest::newRow("while it is up") << true;
}

void WaitPanelTest::outlivesItsWindow()
{
    QFETCH(const bool, isShown);
    auto window = std::make_unique<QWidget>();
    WaitPanel wait(window.get(), u"Working"_s, Cancel::Possible);
    if (isShown)
        QVERIFY(waitForPanel(wait));
    window.reset();
    QVERIFY(!shownPanel());
    QVERIFY(waitForPanel(wait));
}

QTEST_MAIN(WaitPanelTest)
#include "WaitPanelTest.moc"
