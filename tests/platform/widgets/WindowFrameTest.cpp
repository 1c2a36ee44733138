#include "platform/widgets/ScreenFrames.h"

#include <QLabel>
#include <QScreen>
#include <QtTest>
#include <QWidget>

using namespace tomely;

namespace {

/// The window as its window manager shows it, with its title bar.
QRect outerFrame(const QWidget& window)
{
    return window.frameGeometry();
}

bool hasTitleBar(const QWidget& window)
{
    return window.frameGeometry().height() > window.geometry().height();
}

QRect screenFrame()
{
    return QGuiApplication::primaryScreen()->geometry();
}

} // namespace

class WindowFrameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void restoresAFrameWithItsTitleBar();
    void keepsAFrameOverManyRounds();
    void bringsAWindowBackFromAScreenThatIsGone();
    void makesNoWindowLargerThanTheScreens();
    void leavesAWindowAloneOnceItIsRestored();
    void forgetsAWindowThatIsGone();
};

void WindowFrameTest::restoresAFrameWithItsTitleBar()
{
    const QRect wanted(300, 200, 700, 500);
    QWidget window;
    FrameRestorer::restore(window, frameForFile(wanted, screenFrame()));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(hasTitleBar(window));
    QTRY_COMPARE(outerFrame(window), wanted);
    QCOMPARE(currentFrameForFile(window, {}), frameForFile(wanted, screenFrame()));
}

void WindowFrameTest::keepsAFrameOverManyRounds()
{
    const QRectF first = frameForFile(QRect(250, 150, 640, 480), screenFrame());
    QRectF stored = first;
    for (int round = 0; round < 4; ++round) {
        QWidget window;
        FrameRestorer::restore(window, stored);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_VERIFY(hasTitleBar(window));
        QTRY_COMPARE(currentFrameForFile(window, stored), first);
        stored = currentFrameForFile(window, stored);
    }
}

void WindowFrameTest::bringsAWindowBackFromAScreenThatIsGone()
{
    QWidget window;
    FrameRestorer::restore(
        window, frameForFile(QRect(screenFrame().right() + 500, 100, 700, 500), screenFrame()));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(hasTitleBar(window));
    QTRY_VERIFY(screenFrame().contains(outerFrame(window)));
    QTRY_COMPARE(outerFrame(window).size(), QSize(700, 500));
}

void WindowFrameTest::makesNoWindowLargerThanTheScreens()
{
    QWidget window;
    FrameRestorer::restore(window, QRectF(0, 0, 1e300, 1e300));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(hasTitleBar(window));
    QTRY_VERIFY(outerFrame(window).width() <= screenFrame().width());
    QTRY_VERIFY(outerFrame(window).height() <= screenFrame().height());
}

void WindowFrameTest::leavesAWindowAloneOnceItIsRestored()
{
    const QRect wanted(300, 200, 700, 500);
    QWidget window;
    FrameRestorer::restore(window, frameForFile(wanted, screenFrame()));
    window.show();
    QTRY_VERIFY(hasTitleBar(window));
    QTRY_COMPARE(outerFrame(window), wanted);
    QTRY_VERIFY(window.findChildren<QObject*>(QString(), Qt::FindDirectChildrenOnly).isEmpty());
    window.resize(500, 400);
    QTRY_COMPARE(window.size(), QSize(500, 400));
    window.hide();
    window.show();
    QTRY_VERIFY(hasTitleBar(window));
    QCOMPARE(window.size(), QSize(500, 400));
}

void WindowFrameTest::forgetsAWindowThatIsGone()
{
    {
        QWidget window;
        FrameRestorer::restore(window, QRectF(100, 100, 640, 480));
    }
    QWidget other;
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
}

QTEST_MAIN(WindowFrameTest)
#include "WindowFrameTest.moc"
