#include "model/Picture.h"

#include "tests/support/PictureSamples.h"

#include <QColorSpace>
#include <QImageReader>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using namespace tomely::samples;

namespace {

bool isNearly(QRgb found, QColor wanted, int tolerance = 10)
{
    return std::abs(qRed(found) - wanted.red()) <= tolerance
        && std::abs(qGreen(found) - wanted.green()) <= tolerance
        && std::abs(qBlue(found) - wanted.blue()) <= tolerance;
}

// The colours of the quarters, from the upper left clockwise, as letters.
QString quarterLetters(const QImage& image)
{
    const int right = image.width() * 3 / 4;
    const int lower = image.height() * 3 / 4;
    const int left = image.width() / 4;
    const int upper = image.height() / 4;
    QString letters;
    for (const QPoint point :
        {QPoint(left, upper), QPoint(right, upper), QPoint(right, lower), QPoint(left, lower)}) {
        const QRgb pixel = image.pixel(point);
        letters += isNearly(pixel, Qt::red, 40) ? u'r'
            : isNearly(pixel, Qt::green, 40)    ? u'g'
            : isNearly(pixel, Qt::blue, 40)     ? u'b'
            : isNearly(pixel, Qt::yellow, 40)   ? u'y'
                                                : u'?';
    }
    return letters;
}

bool isPlain(const QImage& image)
{
    return !image.colorSpace().isValid() && image.textKeys().isEmpty()
        && image.devicePixelRatio() == 1
        && image.dotsPerMeterX() == QImage(1, 1, QImage::Format_RGB32).dotsPerMeterX();
}

} // namespace

class PictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isNoPictureAtFirst();
    void readsEveryFormatByItsContent_data();
    void readsEveryFormatByItsContent();
    void refusesWhatIsNoPicture_data();
    void refusesWhatIsNoPicture();
    void turnsPicturesUpright_data();
    void turnsPicturesUpright();
    void turnsLargePicturesUpright_data();
    void turnsLargePicturesUpright();
    void turnsTiffsUpright_data();
    void turnsTiffsUpright();
    void knowsTheTrueSizeOfALargePicture();
    void decodesNoMoreThanIsNeeded_data();
    void decodesNoMoreThanIsNeeded();
    void convertsProfilesToScreenColors_data();
    void convertsProfilesToScreenColors();
    void readsPrintingColors_data();
    void readsPrintingColors();
    void ignoresAProfileThatMakesNoSense();
    void makesEightBitsOfDeepColors_data();
    void makesEightBitsOfDeepColors();
    void keepsTransparency();
    void showsTheFirstFrameOfAnAnimation();
    void keepsPixelsOnly();
    void takesDecodedPictures_data();
    void takesDecodedPictures();
    void refusesDecodedPicturesThatAreNone();
    void showsWhatIsLeftOfAStoredPicture();
};

void PictureTest::isNoPictureAtFirst()
{
    const Picture picture;
    QVERIFY(!picture.isValid());
    QVERIFY(picture.size().isEmpty());
    QVERIFY(picture.image().isNull());
    QVERIFY(picture.imageFor(QSize(10, 10)).isNull());
}

void PictureTest::readsEveryFormatByItsContent_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QImage image = plainImage(QSize(40, 30), Qt::red);
    for (const char* format : {"jpeg", "png", "gif", "bmp", "webp", "tiff"})
        QTest::newRow(format) << encodedIn(format, image);
    QTest::newRow("progressive jpeg") << encoded(image, "jpeg", 90, true);
    const QImage grey = plainImage(QSize(40, 30), QColor(90, 90, 90));
    QTest::newRow("grey jpeg") << encoded(
        grey.convertToFormat(QImage::Format_Grayscale8), "jpeg", 90);
    QTest::newRow("jpeg with bytes behind it") << encoded(image, "jpeg", 90) + "and more";
    QTest::newRow("palette png") << encoded(image.convertToFormat(QImage::Format_Indexed8), "png");
    QTest::newRow("palette bmp") << encoded(image.convertToFormat(QImage::Format_Indexed8), "bmp");
    QTest::newRow("lossless webp") << encoded(image, "webp", 100);
}

void PictureTest::readsEveryFormatByItsContent()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(!bytes.isEmpty());
    for (const Picture& picture : {Picture::fromEncoded(bytes), Picture::fromStored(bytes)}) {
        QVERIFY(picture.isValid());
        QCOMPARE(picture.size(), QSize(40, 30));
        const QImage image = picture.image();
        QCOMPARE(image.size(), QSize(40, 30));
        QVERIFY(isPlain(image));
        const bool isGrey = qstrcmp(QTest::currentDataTag(), "grey jpeg") == 0;
        QVERIFY(isNearly(image.pixel(20, 15), isGrey ? QColor(90, 90, 90) : QColor(Qt::red)));
    }
}

void PictureTest::refusesWhatIsNoPicture_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray vectors =
        "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect width='9' "
        "height='9'/></svg>";
    QTest::newRow("null") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text") << QByteArray("not a picture");
    QTest::newRow("vectors") << vectors;
    QTest::newRow("vectors of XML") << "<?xml version='1.0'?>\n" + vectors;
    QTest::newRow("packed vectors") << QByteArray("\x1F\x8B\x08\0\0\0\0\0\0\0", 10);
    QTest::newRow("pixmap") << encoded(plainImage(QSize(4, 4), Qt::red), "ppm");
    QTest::newRow("xpm") << encoded(plainImage(QSize(4, 4), Qt::red), "xpm");
    QTest::newRow("icon") << encoded(plainImage(QSize(4, 4), Qt::red), "ico");
    QTest::newRow("sound in the container of WebP") << QByteArray("RIFF\x24\0\0\0WAVEfmt ", 16);
    for (const char* format : {"jpeg", "png", "gif", "bmp", "webp", "tiff"}) {
        const QByteArray bytes = encodedIn(format, plainImage(QSize(4, 4), Qt::red));
        for (const int count : {2, 3, 4, 8, 12})
            QTest::addRow("first %d bytes of %s", count, format) << bytes.first(count);
    }
}

void PictureTest::refusesWhatIsNoPicture()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(!Picture::fromEncoded(bytes).isValid());
    QVERIFY(!Picture::fromStored(bytes).isValid());
    QVERIFY(Picture::fromStored(bytes).image().isNull());
}

// As stored: red, green, blue, yellow from the upper left clockwise.
static void addOrientations()
{
    QTest::addColumn<quint32>("orientation");
    QTest::addColumn<bool>("isTurned");
    QTest::addColumn<QString>("letters");
    QTest::newRow("0 is none") << 0U << false << u"rgby"_s;
    QTest::newRow("1 upright") << 1U << false << u"rgby"_s;
    QTest::newRow("2 mirrored") << 2U << false << u"gryb"_s;
    QTest::newRow("3 upside down") << 3U << false << u"byrg"_s;
    QTest::newRow("4 flipped") << 4U << false << u"ybgr"_s;
    QTest::newRow("5 along the diagonal") << 5U << true << u"rybg"_s;
    QTest::newRow("6 to the right") << 6U << true << u"yrgb"_s;
    QTest::newRow("7 along the other diagonal") << 7U << true << u"bgry"_s;
    QTest::newRow("8 to the left") << 8U << true << u"gbyr"_s;
    QTest::newRow("9 is none") << 9U << false << u"rgby"_s;
}

void PictureTest::turnsPicturesUpright_data()
{
    addOrientations();
}

void PictureTest::turnsPicturesUpright()
{
    QFETCH(const quint32, orientation);
    QFETCH(const bool, isTurned);
    QFETCH(const QString, letters);
    const QByteArray jpeg = encoded(quarters(QSize(2000, 1000)), "jpeg", 90);
    for (const bool isBigEndian : {false, true}) {
        const QByteArray bytes = withOrientation(jpeg, orientation, isBigEndian);
        for (const Picture& picture : {Picture::fromEncoded(bytes), Picture::fromStored(bytes)}) {
            const QSize size = isTurned ? QSize(1000, 2000) : QSize(2000, 1000);
            QCOMPARE(picture.size(), size);
            QCOMPARE(picture.image().size(), size);
            QCOMPARE(quarterLetters(picture.image()), letters);
            const QImage reduced = picture.imageFor(QSize(100, 100));
            QVERIFY(reduced.width() < 1000);
            QCOMPARE(reduced.height() > reduced.width(), isTurned);
            QCOMPARE(quarterLetters(reduced), letters);
        }
    }
}

void PictureTest::turnsLargePicturesUpright_data()
{
    addOrientations();
}

void PictureTest::turnsLargePicturesUpright()
{
    QFETCH(const quint32, orientation);
    QFETCH(const QString, letters);
    // So large that it is turned in bands; each row of it differs from the next.
    static const QByteArray upright = [] {
        QImage stored = quarters(QSize(4000, 4001));
        for (int y = 0; y < stored.height(); ++y)
            stored.setPixel(2000, y, y % 256 < 128 ? 0xFF000000 : 0xFFFFFFFF);
        return encoded(stored, "jpeg", 95);
    }();
    const QByteArray jpeg = withOrientation(upright, orientation);
    const Picture picture = Picture::fromStored(jpeg);
    const QImage image = picture.image();
    QCOMPARE(image.size(), picture.size());
    QCOMPARE(quarterLetters(image), letters);
    QByteArray copy = jpeg;
    QBuffer buffer(&copy);
    QImageReader reader(&buffer, "jpeg");
    reader.setAutoTransform(true);
    QCOMPARE(image, reader.read().convertToFormat(QImage::Format_RGB32));
}

void PictureTest::turnsTiffsUpright_data()
{
    addOrientations();
}

void PictureTest::turnsTiffsUpright()
{
    QFETCH(const quint32, orientation);
    QFETCH(const bool, isTurned);
    QFETCH(const QString, letters);
    QByteArray pixels;
    const QImage stored = quarters(QSize(40, 20)).convertToFormat(QImage::Format_RGB888);
    for (int y = 0; y < stored.height(); ++y)
        pixels.append(reinterpret_cast<const char*>(stored.constScanLine(y)), stored.width() * 3);
    const auto length = static_cast<quint32>(pixels.size());
    const QByteArray bytes =
        tiff(pixels + littleNumber(8, 2) + littleNumber(8, 2) + littleNumber(8, 2),
            {{256, 40}, {257, 20}, {258, 8 + length, 3}, {259, 1}, {262, 2}, {273, 8},
                {274, orientation}, {277, 3}, {278, 20}, {279, length}});
    const Picture picture = Picture::fromEncoded(bytes);
    QCOMPARE(picture.size(), isTurned ? QSize(20, 40) : QSize(40, 20));
    QCOMPARE(picture.image().size(), picture.size());
    QCOMPARE(quarterLetters(picture.image()), letters);
}

void PictureTest::knowsTheTrueSizeOfALargePicture()
{
    const QByteArray bytes = encoded(plainImage(QSize(3001, 2003), Qt::blue), "jpeg");
    const Picture picture = Picture::fromEncoded(bytes);
    QCOMPARE(picture.size(), QSize(3001, 2003));
    QVERIFY(picture.imageFor(QSize(100, 100)).width() < 1000);
    QCOMPARE(picture.size(), QSize(3001, 2003));
    QCOMPARE(picture.image().size(), QSize(3001, 2003));
}

void PictureTest::decodesNoMoreThanIsNeeded_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("wanted");
    QTest::addColumn<QSize>("least");
    for (const char* format : {"jpeg", "png"}) {
        const auto row = [format](const char* name, QSize size, QSize wanted, QSize least) {
            QTest::addRow("%s %s", format, name) << QByteArray(format) << size << wanted << least;
        };
        row("in a well", {2000, 3000}, {218, 313}, {209, 313});
        row("wide", {4000, 1000}, {218, 313}, {218, 55});
        row("narrow strip", {4000, 3}, {100, 100}, {100, 1});
        row("smaller than wanted", {50, 60}, {218, 313}, {50, 60});
        row("beyond the preview", {2000, 2000}, {1500, 1500}, {1500, 1500});
        row("nearly all", {2000, 2000}, {1999, 1999}, {1999, 1999});
        row("all", {2000, 2000}, {2000, 2000}, {2000, 2000});
    }
}

void PictureTest::decodesNoMoreThanIsNeeded()
{
    QFETCH(const QByteArray, format);
    QFETCH(const QSize, size);
    QFETCH(const QSize, wanted);
    QFETCH(const QSize, least);
    const QByteArray bytes = encoded(quarters(size), format, 80);
    for (const Picture& picture : {Picture::fromEncoded(bytes), Picture::fromStored(bytes)}) {
        const QImage image = picture.imageFor(wanted);
        QVERIFY(image.width() >= least.width() && image.height() >= least.height());
        QVERIFY(image.width() <= size.width() && image.height() <= size.height());
        // A preview or an eighth of the side, whichever is larger, but never all of it for a well.
        if (wanted.width() < 640)
            QVERIFY(image.width() <= 640 || least == size);
    }
}

void PictureTest::convertsProfilesToScreenColors_data()
{
    QTest::addColumn<QByteArray>("format");
    for (const char* format : {"png", "jpeg", "tiff", "webp"})
        QTest::newRow(format) << QByteArray(format);
}

void PictureTest::convertsProfilesToScreenColors()
{
    QFETCH(const QByteArray, format);
    QImage wide = plainImage(QSize(16, 16), QColor(200, 100, 50));
    wide.setColorSpace(QColorSpace(QColorSpace::DisplayP3));
    const QImage expected = wide.convertedToColorSpace(QColorSpace(QColorSpace::SRgb));
    QVERIFY(std::abs(qRed(expected.pixel(8, 8)) - 200) > 8); // else nothing would be tested
    const Picture picture = Picture::fromEncoded(encoded(wide, format, 100));
    QVERIFY(picture.isValid());
    QVERIFY(isNearly(picture.image().pixel(8, 8), expected.pixelColor(8, 8), 3));
    QVERIFY(isPlain(picture.image()));
    QVERIFY(isNearly(Picture::fromImage(wide).image().pixel(8, 8), expected.pixelColor(8, 8), 3));
}

void PictureTest::readsPrintingColors_data()
{
    QTest::addColumn<QList<int>>("inks");
    QTest::addColumn<QColor>("color");
    QTest::newRow("paper") << QList<int>{0, 0, 0, 0} << QColor(Qt::white);
    QTest::newRow("black") << QList<int>{0, 0, 0, 255} << QColor(Qt::black);
    QTest::newRow("cyan") << QList<int>{255, 0, 0, 0} << QColor(Qt::cyan);
    QTest::newRow("red") << QList<int>{0, 255, 255, 0} << QColor(Qt::red);
}

void PictureTest::readsPrintingColors()
{
    QFETCH(const QList<int>, inks);
    QFETCH(const QColor, color);
    const QByteArray bytes = cmykJpeg({inks[0], inks[1], inks[2], inks[3]});
    // A profile of printing colours, as far as anybody looks at it.
    QByteArray profile(200, '\0');
    profile.replace(0, 4, bigNumber(200, 4));
    profile.replace(12, 12, "prtrCMYKLab ");
    profile.replace(36, 4, "acsp");
    const QByteArray content = QByteArray("ICC_PROFILE\0\1\1", 14) + profile;
    for (const QByteArray& jpeg : {bytes, withSegment(bytes, 0xE2, content)}) {
        const Picture picture = Picture::fromEncoded(jpeg);
        QVERIFY(picture.isValid());
        QVERIFY(isNearly(picture.image().pixel(4, 4), color));
        QVERIFY(isPlain(picture.image()));
    }
}

void PictureTest::ignoresAProfileThatMakesNoSense()
{
    const QByteArray jpeg = withSegment(encoded(plainImage(QSize(9, 9), Qt::green), "jpeg", 95),
        0xE2, QByteArray("ICC_PROFILE\0\1\1", 14) + QByteArray(300, 'x'));
    QVERIFY(isNearly(Picture::fromEncoded(jpeg).image().pixel(4, 4), Qt::green));
}

void PictureTest::makesEightBitsOfDeepColors_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QImage::Format>("depth");
    QTest::newRow("png") << QByteArray("png") << QImage::Format_RGBX64;
    QTest::newRow("grey png") << QByteArray("png") << QImage::Format_Grayscale16;
    QTest::newRow("tiff") << QByteArray("tiff") << QImage::Format_RGBX64;
    QTest::newRow("tiff of real numbers") << QByteArray("tiff") << QImage::Format_RGBX32FPx4;
}

void PictureTest::makesEightBitsOfDeepColors()
{
    QFETCH(const QByteArray, format);
    QFETCH(const QImage::Format, depth);
    const QImage deep = plainImage(QSize(20, 20), QColor(90, 90, 90)).convertToFormat(depth);
    const QImage image = Picture::fromEncoded(encoded(deep, format)).image();
    QCOMPARE(image.depth(), 32);
    QVERIFY(isNearly(image.pixel(10, 10), QColor(90, 90, 90), 2));
}

void PictureTest::keepsTransparency()
{
    const QImage clear = plainImage(QSize(20, 20), QColor(255, 0, 0, 128), QImage::Format_ARGB32);
    for (const char* format : {"png", "webp", "tiff"}) {
        const QImage image = Picture::fromEncoded(encoded(clear, format, 100)).image();
        QCOMPARE(image.format(), QImage::Format_ARGB32_Premultiplied);
        QVERIFY(std::abs(image.pixelColor(10, 10).alpha() - 128) <= 2);
    }
}

void PictureTest::showsTheFirstFrameOfAnAnimation()
{
    const QSize size(20, 20);
    const QByteArray animation =
        gifStart(size) + gifFrame(size, 2) + gifFrame(size, 3) + gifFrame(size, 1) + ';';
    QVERIFY(isNearly(Picture::fromEncoded(animation).image().pixel(10, 10), Qt::green));
    QVERIFY(isNearly(Picture::fromStored(animation).image().pixel(10, 10), Qt::green));
}

void PictureTest::keepsPixelsOnly()
{
    QImage image = plainImage(QSize(30, 20), Qt::blue);
    image.setText(u"Comment"_s, u"taken at home"_s);
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(11811);
    for (const char* format : {"jpeg", "png", "tiff"}) {
        const Picture picture = Picture::fromEncoded(encoded(image, format, 90));
        QCOMPARE(picture.size(), QSize(30, 20));
        QVERIFY(isPlain(picture.image()));
    }
    image.setDevicePixelRatio(2);
    const Picture picture = Picture::fromImage(image);
    QCOMPARE(picture.size(), QSize(30, 20));
    QVERIFY(isPlain(picture.image()));
    QVERIFY(image.textKeys().contains(u"Comment"_s)); // the caller's own stays as it was
}

void PictureTest::takesDecodedPictures_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::newRow("opaque") << QImage::Format_RGB32;
    QTest::newRow("transparent") << QImage::Format_ARGB32;
    QTest::newRow("premultiplied") << QImage::Format_ARGB32_Premultiplied;
    QTest::newRow("24 bits") << QImage::Format_RGB888;
    QTest::newRow("16 bits") << QImage::Format_RGB16;
    QTest::newRow("palette") << QImage::Format_Indexed8;
    QTest::newRow("deep") << QImage::Format_RGBA64;
}

void PictureTest::takesDecodedPictures()
{
    QFETCH(const QImage::Format, format);
    const QImage image = quarters(QSize(1000, 800)).convertToFormat(format);
    const Picture picture = Picture::fromImage(image);
    QCOMPARE(picture.size(), QSize(1000, 800));
    QCOMPARE(picture.image().depth(), 32);
    QCOMPARE(quarterLetters(picture.image()), u"rgby"_s);
}

void PictureTest::refusesDecodedPicturesThatAreNone()
{
    QVERIFY(!Picture::fromImage(QImage()).isValid());
    QVERIFY(!Picture::fromImage(QImage(70000, 1, QImage::Format_Mono)).isValid());
    QVERIFY(!Picture::fromImage(QImage(50000, 50000, QImage::Format_Mono)).isValid());
}

void PictureTest::showsWhatIsLeftOfAStoredPicture()
{
    const QByteArray jpeg = encoded(quarters(QSize(400, 400)), "jpeg", 90);
    const QByteArray cut = jpeg.first(jpeg.size() * 3 / 5);
    QVERIFY(!Picture::fromEncoded(cut).isValid());
    const Picture picture = Picture::fromStored(cut);
    QCOMPARE(picture.size(), QSize(400, 400));
    QCOMPARE(quarterLetters(picture.image()).first(2), u"rg"_s);
    QVERIFY(!picture.imageFor(QSize(40, 40)).isNull());
}

QTEST_GUILESS_MAIN(PictureTest)
#include "PictureTest.moc"
