#include "platform/widgets/ScreenFrames.h"

#include <QtTest>

#include <limits>

using namespace tomely;

Q_DECLARE_METATYPE(QList<QRect>)

class ScreenFramesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void turnsFramesIntoTheFilesAndBack_data();
    void turnsFramesIntoTheFilesAndBack();
    void roundsToWholePoints();
    void survivesFramesOfDamagedFiles_data();
    void survivesFramesOfDamagedFiles();
    void movesAFrameWithinReach_data();
    void movesAFrameWithinReach();
};

void ScreenFramesTest::turnsFramesIntoTheFilesAndBack_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QRectF>("stored");
    const QRect screen(0, 0, 1920, 1080);
    QTest::newRow("whole screen") << screen << screen << QRectF(0, 0, 1920, 1080);
    QTest::newRow("upper left") << screen << QRect(0, 0, 800, 600) << QRectF(0, 480, 800, 600);
    QTest::newRow("lower right") << screen << QRect(1120, 480, 800, 600)
                                 << QRectF(1120, 0, 800, 600);
    QTest::newRow("screen above") << screen << QRect(10, -1060, 800, 600)
                                  << QRectF(10, 1540, 800, 600);
    QTest::newRow("screen below") << screen << QRect(10, 1100, 800, 600)
                                  << QRectF(10, -620, 800, 600);
    QTest::newRow("primary screen elsewhere")
        << QRect(1280, 200, 1920, 1080) << QRect(1290, 210, 800, 600) << QRectF(10, 470, 800, 600);
}

void ScreenFramesTest::turnsFramesIntoTheFilesAndBack()
{
    QFETCH(const QRect, screen);
    QFETCH(const QRect, frame);
    QFETCH(const QRectF, stored);
    QCOMPARE(frameForFile(frame, screen), stored);
    QCOMPARE(frameFromFile(stored, screen), frame);
}

void ScreenFramesTest::roundsToWholePoints()
{
    const QRect frame = frameFromFile(QRectF(10.4, 20.6, 800.5, 599.5), QRect(0, 0, 1920, 1080));
    QCOMPARE(frame, QRect(10, 1080 - 21 - 600, 801, 600));
}

void ScreenFramesTest::survivesFramesOfDamagedFiles_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("negative infinite") << -std::numeric_limits<double>::infinity();
    QTest::newRow("largest") << std::numeric_limits<double>::max();
}

void ScreenFramesTest::survivesFramesOfDamagedFiles()
{
    QFETCH(const double, value);
    const QRect frame = frameFromFile(QRectF(value, value, value, value), QRect(0, 0, 1920, 1080));
    constexpr int largest = 100'000;
    for (const int coordinate : {frame.x(), frame.y(), frame.width(), frame.height()})
        QVERIFY(coordinate >= -largest && coordinate <= largest);
}

void ScreenFramesTest::movesAFrameWithinReach_data()
{
    QTest::addColumn<QList<QRect>>("screens");
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QRect>("moved");
    const QList<QRect> one{QRect(0, 0, 1920, 1080)};
    const QList<QRect> two{QRect(0, 0, 1920, 1080), QRect(1920, 0, 1920, 1080)};
    const QSize size(800, 600);
    const auto at = [size](int x, int y) {
        return QRect(QPoint(x, y), size);
    };
    QTest::newRow("within") << one << at(100, 100) << at(100, 100);
    QTest::newRow("partly out, can be dragged") << one << at(1800, 900) << at(1800, 900);
    QTest::newRow("a sliver is left") << one << at(1900, 100) << at(1120, 100);
    QTest::newRow("on a screen that is gone") << one << at(2500, 100) << at(1120, 100);
    QTest::newRow("on the second screen") << two << at(2500, 100) << at(2500, 100);
    QTest::newRow("title bar above") << one << at(100, -20) << at(100, 0);
    QTest::newRow("below") << one << at(100, 1070) << at(100, 480);
    QTest::newRow("left of everything") << one << at(-790, 100) << at(0, 100);
    QTest::newRow("larger than the screen and away")
        << one << QRect(5000, 5000, 3000, 2000) << QRect(0, 0, 3000, 2000);
    QTest::newRow("no screens") << QList<QRect>() << at(5000, 5000) << at(5000, 5000);
}

void ScreenFramesTest::movesAFrameWithinReach()
{
    QFETCH(const QList<QRect>, screens);
    QFETCH(const QRect, frame);
    QFETCH(const QRect, moved);
    QCOMPARE(frameWithinReach(frame, screens), moved);
}

QTEST_GUILESS_MAIN(ScreenFramesTest)
#include "ScreenFramesTest.moc"
