#include "platform/widgets/ImageView.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QImage plain(QSize size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// The rectangle around all pixels of that colour.
QRect placeOf(const QColor& color, const QImage& image)
{
    QRect place;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                place |= QRect(x, y, 1, 1);
        }
    }
    return place;
}

QImage shot(ImageView& view)
{
    return view.grab().toImage();
}

} // namespace

class ImageViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fitsAPictureIntoItsPlace_data();
    void fitsAPictureIntoItsPlace();
    void showsThePictureCentred();
    void neverEnlargesPastTwice();
    void showsTheNewPictureOnly();
    void followsItsSize();
    void showsNothingWithoutAPicture();
    void survivesAPlaceWithoutRoom();
    void leavesTheGivenMargin();
};

void ImageViewTest::fitsAPictureIntoItsPlace_data()
{
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QRectF>("place");
    QTest::addColumn<QRectF>("fitted");
    const QRectF place(10, 20, 200, 100);
    QTest::newRow("same shape") << QSize(400, 200) << place << place;
    QTest::newRow("tall") << QSize(100, 200) << place << QRectF(85, 20, 50, 100);
    QTest::newRow("wide") << QSize(800, 200) << place << QRectF(10, 45, 200, 50);
    QTest::newRow("small") << QSize(20, 10) << place << QRectF(90, 60, 40, 20);
    QTest::newRow("twice") << QSize(100, 50) << place << place;
    QTest::newRow("nearly as large") << QSize(190, 80) << place << QRectF(15, 30, 190, 80);
    QTest::newRow("one pixel wide") << QSize(1, 1000) << place << QRectF(109.95, 20, 0.1, 100);
    QTest::newRow("no picture") << QSize(0, 0) << place << QRectF();
    QTest::newRow("null") << QSize() << place << QRectF();
    QTest::newRow("no place") << QSize(10, 10) << QRectF(0, 0, -5, 10) << QRectF();
}

void ImageViewTest::fitsAPictureIntoItsPlace()
{
    QFETCH(const QSize, image);
    QFETCH(const QRectF, place);
    QFETCH(const QRectF, fitted);
    const QRectF rect = fittedRect(image, place, 2);
    QCOMPARE(rect.topLeft(), fitted.topLeft());
    QCOMPARE(rect.size(), fitted.size());
}

void ImageViewTest::showsThePictureCentred()
{
    ImageView view;
    view.resize(220, 320);
    view.setImage(plain({400, 600}, Qt::red));
    const QRect place = placeOf(Qt::red, shot(view));
    QCOMPARE(place, QRect(10, 10, 200, 300));
}

void ImageViewTest::neverEnlargesPastTwice()
{
    ImageView view;
    view.resize(400, 400);
    view.setImage(plain({30, 20}, Qt::red));
    const QRect place = placeOf(Qt::red, shot(view));
    QCOMPARE(place.size(), QSize(60, 40));
    QCOMPARE(place, QRect(170, 180, 60, 40));
}

void ImageViewTest::showsTheNewPictureOnly()
{
    ImageView view;
    view.resize(200, 200);
    view.setImage(plain({400, 400}, Qt::red));
    QVERIFY(!placeOf(Qt::red, shot(view)).isEmpty());
    view.setImage(plain({400, 400}, Qt::green));
    QVERIFY(placeOf(Qt::red, shot(view)).isEmpty());
    QVERIFY(!placeOf(Qt::green, shot(view)).isEmpty());
    QCOMPARE(view.image().size(), QSize(400, 400));
}

void ImageViewTest::followsItsSize()
{
    ImageView view;
    view.setImage(plain({400, 400}, Qt::red));
    view.resize(120, 120);
    QCOMPARE(placeOf(Qt::red, shot(view)).size(), QSize(100, 100));
    view.resize(220, 320);
    QCOMPARE(placeOf(Qt::red, shot(view)).size(), QSize(200, 200));
}

void ImageViewTest::showsNothingWithoutAPicture()
{
    ImageView view;
    view.resize(200, 200);
    const QImage empty = shot(view);
    view.setImage(plain({400, 400}, Qt::red));
    QVERIFY(shot(view) != empty);
    view.setImage({});
    QCOMPARE(shot(view), empty);
}

void ImageViewTest::survivesAPlaceWithoutRoom()
{
    ImageView view;
    view.setImage(plain({1, 5000}, Qt::red));
    view.resize(200, 200);
    QVERIFY(!placeOf(Qt::red, shot(view)).isEmpty()); // never thinner than a pixel
    view.resize(5, 5);
    QVERIFY(placeOf(Qt::red, shot(view)).isEmpty());
}

void ImageViewTest::leavesTheGivenMargin()
{
    ImageView view;
    view.setPictureMargin(4);
    view.resize(108, 208);
    view.setImage(plain({400, 800}, Qt::red));
    QCOMPARE(view.pictureRect(), QRectF(4, 4, 100, 200));
    QCOMPARE(placeOf(Qt::red, shot(view)), QRect(4, 4, 100, 200));
}

QTEST_MAIN(ImageViewTest)
#include "ImageViewTest.moc"
