#include "editor/DraggableImageView.h"

#include "tests/editor/WellSamples.h"

#include <QClipboard>
#include <QToolTip>
#include <QtTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace tomely;

// What an image well shows.
class ImageWellLooksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsThePictureWithinItsFrame();
    void staysSharpWhenItGrows();
    void emptyWellSaysWhatToDo();
    void smallWellsLeaveOutWhatDoesNotFit();
    void showsItsFocus();
    void showsADamagedPictureAsSuch();
    void asksForTheRoomOfItsBound();
};

void ImageWellLooksTest::init()
{
    QGuiApplication::clipboard()->clear();
}

void ImageWellLooksTest::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void ImageWellLooksTest::showsThePictureWithinItsFrame()
{
    Well well;
    well.resize(106, 206);
    const QColor frame = frameColor(well);
    QVERIFY(frame != QColor(Qt::white));
    well.setPicture(plainPicture({2000, 4000}));
    const QImage shot = well.grab().toImage();
    QCOMPARE(well.pictureRect(), QRectF(3, 3, 100, 200));
    QCOMPARE(shot.pixelColor(3, 3), QColor(Qt::red));
    QCOMPARE(shot.pixelColor(102, 202), QColor(Qt::red));
    QCOMPARE(shot.pixelColor(2, 100), QColor(Qt::white));
    QCOMPARE(shot.pixelColor(53, 0), frame);
    well.clear();
    QVERIFY(colorAt(well, {3, 100}) != QColor(Qt::red));
}

void ImageWellLooksTest::staysSharpWhenItGrows()
{
    const int stripeCount = 750; // more than a small picture of them could show
    QImage stripes(4 * stripeCount, 60, QImage::Format_RGB32);
    for (int y = 0; y < stripes.height(); ++y) {
        for (int x = 0; x < stripes.width(); ++x)
            stripes.setPixel(x, y, x / 4 % 2 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    }
    Well well;
    well.resize(60, 60);
    well.setPicture(Picture::fromEncoded(png(stripes)));
    well.grab();
    well.resize(2 * stripeCount + 6, 60);
    const QImage shot = well.grab().toImage();
    int edges = 0;
    for (int x = 4; x < well.width() - 4; ++x) {
        const bool dark = qGray(shot.pixel(x, 30)) < 128;
        edges += dark != (qGray(shot.pixel(x - 1, 30)) < 128) ? 1 : 0;
    }
    QVERIFY2(edges > stripeCount - 5, qPrintable(QString::number(edges)));
}

void ImageWellLooksTest::emptyWellSaysWhatToDo()
{
    Well well;
    const QRect below(10, wellSize.height() / 2 + 5, wellSize.width() - 20, 100);
    QVERIFY(hasInk(well, below));
    const QImage without = well.grab().toImage();
    well.setBound({218, 313});
    QVERIFY(well.grab().toImage() != without);
    well.setPicture(plainPicture({4, 4}));
    QVERIFY(!hasInk(well, {10, 180, 190, 100}));
}

void ImageWellLooksTest::smallWellsLeaveOutWhatDoesNotFit()
{
    Well well;
    well.resize(106, 147);
    well.setBound({106, 147});
    for (const int pointSize : {8, 12, 16, 20, 30, 60}) {
        QFont font = well.font();
        font.setPointSize(pointSize);
        well.setFont(font);
        // Nothing touches the edge, so nothing is cut off; and the icon is always there.
        QVERIFY(!hasInk(well, {4, 8, 2, 131}));
        QVERIFY(!hasInk(well, {100, 8, 2, 131}));
        QVERIFY(!hasInk(well, {8, 4, 90, 2}));
        QVERIFY(!hasInk(well, {8, 141, 90, 2}));
        QVERIFY(hasInk(well, {30, 20, 46, 100}));
    }
    well.resize(12, 12); // smaller than its icon
    well.grab();
}

void ImageWellLooksTest::showsItsFocus()
{
    QWidget window;
    auto* const column = new QVBoxLayout(&window);
    auto* const one = new Well;
    auto* const other = new Well;
    column->addWidget(one);
    column->addWidget(other);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    one->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(one->hasFocus());
    QCOMPARE(frameColor(*one), QColor(Qt::blue));
    QVERIFY(frameColor(*other) != QColor(Qt::blue));
    QTest::keyClick(one, Qt::Key_Tab);
    QVERIFY(other->hasFocus());
    QCOMPARE(frameColor(*other), QColor(Qt::blue));
    QTest::mouseClick(one, Qt::LeftButton);
    QVERIFY(one->hasFocus());
}

void ImageWellLooksTest::showsADamagedPictureAsSuch()
{
    // The header of a picture without any of its rows.
    const Picture damaged = Picture::fromStored(png({300, 300}).first(33));
    if (!damaged.isValid() || !damaged.imageFor({100, 100}).isNull())
        return; // something is left of it, and that is shown
    Well well;
    const QImage empty = well.grab().toImage();
    well.setPicture(damaged);
    const QImage shot = well.grab().toImage();
    QVERIFY(shot != empty);
    QVERIFY(hasInk(well, {10, wellSize.height() / 2 + 5, wellSize.width() - 20, 100}));
    QVERIFY(well.dragPicture().isNull());
    QVERIFY(!well.copy());
}

void ImageWellLooksTest::asksForTheRoomOfItsBound()
{
    Well well;
    well.setBound({106, 147});
    QCOMPARE(well.bound(), QSize(106, 147));
    QCOMPARE(well.sizeHint(), QSize(112, 153)); // a picture of that size is shown as it is
}

QTEST_MAIN(ImageWellLooksTest)
#include "ImageWellLooksTest.moc"
