#include "model/BookImages.h"

#include "model/BookEntry.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"
#include "tests/support/PictureSamples.h"

#include <QColorSpace>
#include <QTemporaryDir>
#include <QtTest>

#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace tomely;
using namespace tomely::samples;

namespace {

QImage decoded(const QByteArray& jpeg)
{
    return QImage::fromData(jpeg, "jpeg");
}

// The tables by which a JPEG's numbers are rounded tell its quality.
QList<QByteArray> roundingTables(const QByteArray& jpeg)
{
    QList<QByteArray> tables;
    for (qsizetype at = jpeg.indexOf("\xFF\xDB"); at >= 0; at = jpeg.indexOf("\xFF\xDB", at + 2))
        tables.append(jpeg.sliced(at, 2 + static_cast<quint8>(jpeg.at(at + 3))));
    return tables;
}

QList<QByteArray> tablesOfQuality(int quality)
{
    return roundingTables(encoded(quarters(QSize(16, 16)), "jpeg", quality));
}

} // namespace

class BookImagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void knowsTheBoundsOfEachSlot();
    void bringsASizeWithinABound_data();
    void bringsASizeWithinABound();
    void findsWhatIsTooLarge_data();
    void findsWhatIsTooLarge();
    void readsTheQuality_data();
    void readsTheQuality();
    void readsWhetherToScale_data();
    void readsWhetherToScale();
    void storesAPictureInItsSlot_data();
    void storesAPictureInItsSlot();
    void dropsPicturesOfNoQuality_data();
    void dropsPicturesOfNoQuality();
    void encodesInThePreferredQuality_data();
    void encodesInThePreferredQuality();
    void encodesAgainWhatFits();
    void laysTransparencyOnWhite_data();
    void laysTransparencyOnWhite();
    void storesPixelsOnly();
    void storesUprightPictures();
    void scalesSmoothly();
    void givesNothingForNoPicture();
    void clearsASlotThatGetsNoPicture();
    void scalesThePicturesOfABook();
    void leavesPicturesThatFit();
    void leavesPicturesThatCannotBeDecoded();
    void losesPicturesThatCannotBeStored();
    void readsHeadersOfManyBooksQuickly();
    void answersTheStoredPicture();
    void staysWithinLimitsForAHostilePicture();

private:
    void setScaling(bool isOn) { m_defaults->setBool(PreferenceKeys::ScaleImages, isOn); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<UserDefaults> m_defaults;
};

void BookImagesTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_defaults = std::make_unique<UserDefaults>(m_folder->filePath(u"Tomely.ini"_s));
}

void BookImagesTest::cleanup()
{
    m_defaults.reset();
}

void BookImagesTest::knowsTheBoundsOfEachSlot()
{
    QCOMPARE(imageBound(1), QSize(218, 313));
    QCOMPARE(imageBound(2), QSize(218, 313));
    QCOMPARE(imageBound(3), QSize(106, 147));
    QCOMPARE(imageBound(4), QSize(106, 147));
    QCOMPARE(imageBound(5), QSize(219, 147));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, imageBound(0));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, imageBound(6));
}

void BookImagesTest::bringsASizeWithinABound_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("bound");
    QTest::addColumn<QSize>("scaled");
    const QSize cover(218, 313);
    QTest::newRow("twice the bound") << QSize(436, 626) << cover << cover;
    QTest::newRow("wide") << QSize(800, 400) << cover << QSize(218, 109);
    QTest::newRow("high") << QSize(400, 800) << cover << QSize(156, 313);
    QTest::newRow("only too wide") << QSize(219, 100) << cover << QSize(218, 99);
    QTest::newRow("only too high") << QSize(100, 314) << cover << QSize(99, 313);
    QTest::newRow("square by a pixel") << QSize(219, 219) << cover << QSize(218, 218);
    QTest::newRow("as large as the bound") << cover << cover << cover;
    QTest::newRow("smaller") << QSize(10, 20) << cover << QSize(10, 20);
    QTest::newRow("narrow strip") << QSize(1, 1000) << cover << QSize(0, 313);
    QTest::newRow("flat strip") << QSize(10000, 1) << cover << QSize(218, 0);
    QTest::newRow("cut, not rounded") << QSize(1000, 999) << QSize(106, 147) << QSize(106, 105);
    QTest::newRow("no bound") << QSize(10, 10) << QSize(0, 10) << QSize(0, 0);
    QTest::newRow("negative bound") << QSize(10, 10) << QSize(-5, 10) << QSize(0, 0);
    QTest::newRow("largest bound")
        << QSize(2000, 3000) << QSize(0x7FFFFFFF, 0x7FFFFFFF) << QSize(2000, 3000);
}

void BookImagesTest::bringsASizeWithinABound()
{
    QFETCH(const QSize, size);
    QFETCH(const QSize, bound);
    QFETCH(const QSize, scaled);
    QCOMPARE(scaledSize(size, bound), scaled);
}

void BookImagesTest::findsWhatIsTooLarge_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isTooLarge");
    QTest::newRow("no picture") << QSize() << false;
    QTest::newRow("smaller") << QSize(10, 10) << false;
    QTest::newRow("as large") << QSize(106, 147) << false;
    QTest::newRow("too wide") << QSize(107, 147) << true;
    QTest::newRow("too high") << QSize(106, 148) << true;
}

void BookImagesTest::findsWhatIsTooLarge()
{
    QFETCH(const QSize, size);
    QFETCH(const bool, isTooLarge);
    const Picture picture =
        size.isValid() ? Picture::fromImage(plainImage(size, Qt::red)) : Picture();
    QCOMPARE(shouldScaleImage(picture, 106, 147), isTooLarge);
}

void BookImagesTest::readsTheQuality_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<float>("quality"); // 0 for none
    QTest::newRow("absent") << QString() << 0.7F;
    QTest::newRow("0") << u"0"_s << 0.7F;
    for (int tenths = 1; tenths <= 10; ++tenths) {
        QTest::newRow(qPrintable(QString::number(tenths)))
            << QString::number(tenths) << static_cast<float>(tenths) / 10.0F;
    }
    QTest::newRow("11") << u"11"_s << 0.0F;
    QTest::newRow("-1") << u"-1"_s << 0.0F;
    QTest::newRow("no number") << u"best"_s << 0.7F;
    QTest::newRow("0 in 32 bits") << u"4294967296"_s << 0.7F;
    QTest::newRow("5 in 32 bits") << u"4294967301"_s << 0.5F;
    QTest::newRow("negative in 32 bits") << u"4294967295"_s << 0.0F;
}

void BookImagesTest::readsTheQuality()
{
    QFETCH(const QString, stored);
    QFETCH(const float, quality);
    if (!stored.isNull())
        m_defaults->setString(PreferenceKeys::ImageQuality, stored);
    const std::optional<float> found = imageQuality(*m_defaults);
    QCOMPARE(found.has_value(), quality > 0);
    QCOMPARE(found.value_or(0.0F), quality);
}

void BookImagesTest::readsWhetherToScale_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("isOn");
    QTest::newRow("absent") << QString() << false;
    QTest::newRow("0") << u"0"_s << false;
    QTest::newRow("1") << u"1"_s << true;
    QTest::newRow("2") << u"2"_s << true;
    QTest::newRow("-1") << u"-1"_s << true;
    QTest::newRow("255") << u"255"_s << true;
    QTest::newRow("256") << u"256"_s << false;
    QTest::newRow("257") << u"257"_s << true;
    QTest::newRow("-256") << u"-256"_s << false;
    QTest::newRow("true") << u"true"_s << true;
    QTest::newRow("Yes") << u"Yes"_s << true;
    QTest::newRow("false") << u"false"_s << false;
}

void BookImagesTest::readsWhetherToScale()
{
    QFETCH(const QString, stored);
    QFETCH(const bool, isOn);
    if (!stored.isNull())
        m_defaults->setString(PreferenceKeys::ScaleImages, stored);
    QCOMPARE(prefersScaledImages(*m_defaults), isOn);
    const Picture picture = Picture::fromImage(plainImage(QSize(300, 300), Qt::red));
    const QSize size = decoded(scaleAndSaveAsJPEG(picture, 100, 100, *m_defaults)).size();
    QCOMPARE(size, isOn ? QSize(100, 100) : QSize(300, 300));
}

void BookImagesTest::storesAPictureInItsSlot_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<bool>("isScaling");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("stored");
    QTest::newRow("twice its place") << 1 << true << QSize(436, 626) << QSize(218, 313);
    QTest::newRow("wide cover") << 1 << true << QSize(800, 400) << QSize(218, 109);
    QTest::newRow("back") << 2 << true << QSize(800, 400) << QSize(218, 109);
    QTest::newRow("that fits") << 3 << true << QSize(100, 100) << QSize(100, 100);
    QTest::newRow("in the third") << 3 << true << QSize(212, 294) << QSize(106, 147);
    QTest::newRow("in the fourth") << 4 << true << QSize(1000, 100) << QSize(106, 10);
    QTest::newRow("in the fifth") << 5 << true << QSize(438, 294) << QSize(219, 147);
    QTest::newRow("not scaled") << 1 << false << QSize(2000, 3000) << QSize(2000, 3000);
    QTest::newRow("large") << 1 << true << QSize(2000, 3000) << QSize(208, 313);
    QTest::newRow("single pixel") << 5 << true << QSize(1, 1) << QSize(1, 1);
}

void BookImagesTest::storesAPictureInItsSlot()
{
    QFETCH(const int, slot);
    QFETCH(const bool, isScaling);
    QFETCH(const QSize, size);
    QFETCH(const QSize, stored);
    setScaling(isScaling);
    const QImage image = plainImage(size, Qt::blue);
    using Setter = void (BookEntry::*)(const Picture&, const UserDefaults&);
    constexpr std::array<Setter, BookEntry::ImageCount> setters{&BookEntry::setImage1,
        &BookEntry::setImage2, &BookEntry::setImage3, &BookEntry::setImage4, &BookEntry::setImage5};
    for (const Picture& picture :
        {Picture::fromImage(image), Picture::fromEncoded(encoded(image, "jpeg", 95)),
            Picture::fromEncoded(encoded(image, "png"))}) {
        BookEntry book;
        (book.*setters.at(static_cast<std::size_t>(slot - 1)))(picture, *m_defaults);
        const QByteArray jpeg = book.getImageData(slot);
        QVERIFY(jpeg.startsWith("\xFF\xD8\xFF"));
        QCOMPARE(decoded(jpeg).size(), stored);
        for (int other = 1; other <= BookEntry::ImageCount; ++other)
            QCOMPARE(book.getImageData(other).isNull(), other != slot);
    }
}

void BookImagesTest::dropsPicturesOfNoQuality_data()
{
    QTest::addColumn<int>("quality");
    QTest::addColumn<bool>("isScaling");
    for (const int quality : {11, -1, 100, -7}) {
        QTest::addRow("%d scaled", quality) << quality << true;
        QTest::addRow("%d not scaled", quality) << quality << false;
    }
}

void BookImagesTest::dropsPicturesOfNoQuality()
{
    QFETCH(const int, quality);
    QFETCH(const bool, isScaling);
    m_defaults->setInteger(PreferenceKeys::ImageQuality, quality);
    setScaling(isScaling);
    BookEntry book;
    book.setImageData(1, "before");
    book.setImage1(Picture::fromImage(quarters(QSize(50, 50))), *m_defaults);
    QVERIFY(book.getImageData(1).isNull());
    QVERIFY(!book.hasImages());
}

void BookImagesTest::encodesInThePreferredQuality_data()
{
    QTest::addColumn<int>("preference");
    QTest::addColumn<int>("quality");
    QTest::newRow("absent") << 0 << 70;
    for (int tenths = 1; tenths <= 10; ++tenths)
        QTest::newRow(qPrintable(QString::number(tenths))) << tenths << tenths * 10;
}

void BookImagesTest::encodesInThePreferredQuality()
{
    QFETCH(const int, preference);
    QFETCH(const int, quality);
    m_defaults->setInteger(PreferenceKeys::ImageQuality, preference);
    const Picture picture = Picture::fromImage(quarters(QSize(500, 500)));
    QVERIFY(tablesOfQuality(quality) != tablesOfQuality(quality - 10));
    for (const bool isScaling : {true, false}) {
        const QByteArray jpeg = scaleAndSaveAsJPEGScaled(picture, 100, 100, isScaling, *m_defaults);
        QCOMPARE(roundingTables(jpeg), tablesOfQuality(quality));
    }
}

void BookImagesTest::encodesAgainWhatFits()
{
    m_defaults->setInteger(PreferenceKeys::ImageQuality, 3);
    setScaling(true);
    const QByteArray given = encoded(quarters(QSize(100, 100)), "jpeg", 95);
    BookEntry book;
    book.setImage3(Picture::fromEncoded(given), *m_defaults);
    QVERIFY(book.getImageData(3) != given);
    QCOMPARE(roundingTables(book.getImageData(3)), tablesOfQuality(30));
}

void BookImagesTest::laysTransparencyOnWhite_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("onPaper");
    QTest::newRow("clear") << QColor(0, 0, 0, 0) << QColor(Qt::white);
    QTest::newRow("half black") << QColor(0, 0, 0, 128) << QColor(127, 127, 127);
    QTest::newRow("half red") << QColor(255, 0, 0, 128) << QColor(255, 127, 127);
    QTest::newRow("opaque") << QColor(0, 0, 255) << QColor(Qt::blue);
}

void BookImagesTest::laysTransparencyOnWhite()
{
    QFETCH(const QColor, color);
    QFETCH(const QColor, onPaper);
    m_defaults->setInteger(PreferenceKeys::ImageQuality, 10);
    const QImage image = plainImage(QSize(300, 300), color, QImage::Format_ARGB32);
    const Picture picture = Picture::fromEncoded(encoded(image, "png"));
    for (const bool isScaling : {true, false}) {
        const QImage stored =
            decoded(scaleAndSaveAsJPEGScaled(picture, 100, 100, isScaling, *m_defaults));
        const QColor found = stored.pixelColor(50, 50);
        QVERIFY(std::abs(found.red() - onPaper.red()) <= 3);
        QVERIFY(std::abs(found.green() - onPaper.green()) <= 3);
        QVERIFY(std::abs(found.blue() - onPaper.blue()) <= 3);
    }
    QCOMPARE(picture.image().pixelColor(50, 50).alpha(), color.alpha()); // itself it stays clear
}

void BookImagesTest::storesPixelsOnly()
{
    QImage image = quarters(QSize(300, 300));
    image.setText(u"Comment"_s, u"taken at home"_s);
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(11811);
    image.setColorSpace(QColorSpace(QColorSpace::DisplayP3));
    const QByteArray given = encoded(image, "jpeg", 90);
    QVERIFY(given.contains("taken at home") && given.contains("ICC_PROFILE"));
    for (const Picture& picture : {Picture::fromEncoded(given), Picture::fromImage(image)}) {
        for (const bool isScaling : {true, false}) {
            const QByteArray jpeg =
                scaleAndSaveAsJPEGScaled(picture, 100, 100, isScaling, *m_defaults);
            QVERIFY(!jpeg.contains("taken at home"));
            QVERIFY(!jpeg.contains("ICC_PROFILE"));
            // The first segment: no unit, and pixels as wide as they are high.
            QCOMPARE(jpeg.sliced(6, 12), QByteArray("JFIF\0\1\1\0\0\1\0\1", 12));
            QVERIFY(!decoded(jpeg).isNull());
        }
    }
}

void BookImagesTest::storesUprightPictures()
{
    const QByteArray turned = withOrientation(encoded(quarters(QSize(400, 200)), "jpeg", 95), 6);
    const QByteArray jpeg =
        scaleAndSaveAsJPEGScaled(Picture::fromEncoded(turned), 218, 313, true, *m_defaults);
    const QImage stored = decoded(jpeg);
    QCOMPARE(stored.size(), QSize(156, 313));
    QVERIFY(stored.pixelColor(120, 50).red() > 200); // the first pixel went to the right
    QVERIFY(!jpeg.contains("Exif"));
}

void BookImagesTest::scalesSmoothly()
{
    // Lines of a pixel become grey, not black or white.
    QImage lines(QSize(1000, 1000), QImage::Format_RGB32);
    for (int y = 0; y < lines.height(); ++y) {
        for (int x = 0; x < lines.width(); ++x)
            lines.setPixel(x, y, x % 2 == 0 ? 0xFF000000 : 0xFFFFFFFF);
    }
    for (const Picture& picture :
        {Picture::fromImage(lines), Picture::fromEncoded(encoded(lines, "png")),
            Picture::fromEncoded(encoded(lines, "jpeg", 100))}) {
        const QImage stored =
            decoded(scaleAndSaveAsJPEGScaled(picture, 100, 100, true, *m_defaults));
        for (int x = 10; x < 90; ++x)
            QVERIFY(std::abs(stored.pixelColor(x, 50).green() - 127) < 30);
    }
}

void BookImagesTest::givesNothingForNoPicture()
{
    QVERIFY(scaleAndSaveAsJPEG(Picture(), 100, 100, *m_defaults).isNull());
    QVERIFY(scaleAndSaveAsJPEGScaled(Picture(), 100, 100, true, *m_defaults).isNull());
    const Picture strip = Picture::fromImage(plainImage(QSize(1000, 1), Qt::red));
    QVERIFY(scaleAndSaveAsJPEGScaled(strip, 100, 100, true, *m_defaults).isNull());
    QVERIFY(!scaleAndSaveAsJPEGScaled(strip, 100, 100, false, *m_defaults).isNull());
    QVERIFY(scaleAndSaveAsJPEGScaled(strip, 0, 100, true, *m_defaults).isNull());
    QVERIFY(scaleAndSaveAsJPEGScaled(strip, -1, -1, true, *m_defaults).isNull());
}

void BookImagesTest::clearsASlotThatGetsNoPicture()
{
    BookEntry book;
    book.setImage2(Picture::fromImage(quarters(QSize(20, 20))), *m_defaults);
    QVERIFY(book.hasImages());
    const quint64 before = book.changeStamp();
    book.setImage2({}, *m_defaults);
    QVERIFY(!book.hasImages());
    QVERIFY(book.changeStamp() > before);
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, book.setImage(6, {}, *m_defaults));
}

void BookImagesTest::scalesThePicturesOfABook()
{
    setScaling(false); // which is about new pictures
    BookEntry book;
    const QByteArray large = encoded(quarters(QSize(400, 300)), "jpeg", 90);
    const QByteArray small = encoded(quarters(QSize(100, 100)), "jpeg", 90);
    book.setImageData(1, large);
    book.setImageData(2, small);
    book.setImageData(4, large);
    book.setImageData(5, withOrientation(large, 6));
    const quint64 before = book.changeStamp();
    QCOMPARE(book.scaleEachImage(*m_defaults), 3);
    QVERIFY(book.changeStamp() > before);
    QCOMPARE(book.getImage1().size(), QSize(218, 163));
    QCOMPARE(book.getImageData(2), small);
    QVERIFY(book.getImageData(3).isNull());
    QCOMPARE(book.getImage4().size(), QSize(106, 79));
    QCOMPARE(book.getImage5().size(), QSize(110, 147));
    QCOMPARE(book.scaleEachImage(*m_defaults), 0);
}

void BookImagesTest::leavesPicturesThatFit()
{
    BookEntry book;
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
        book.setImageData(slot, encoded(plainImage(imageBound(slot), Qt::red), "jpeg", 40));
    const BookEntry earlier = book;
    const quint64 before = BookEntry::lastChange();
    QCOMPARE(book.scaleEachImage(*m_defaults), 0);
    QCOMPARE(BookEntry::lastChange(), before);
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
        QCOMPARE(book.getImageData(slot), earlier.getImageData(slot));
}

void BookImagesTest::leavesPicturesThatCannotBeDecoded()
{
    BookEntry book;
    const QByteArray headerAlone = encoded(noise(QSize(1000, 1000)), "png").first(100);
    const QByteArray hostile = claiming("jpeg", 60000, 60000);
    book.setImageData(1, "not a picture");
    book.setImageData(2, headerAlone);
    book.setImageData(3, hostile);
    QVERIFY(book.getPicture(2).isValid());
    const quint64 before = BookEntry::lastChange();
    QCOMPARE(book.scaleEachImage(*m_defaults), 0);
    QCOMPARE(BookEntry::lastChange(), before);
    QCOMPARE(book.getImageData(1), QByteArray("not a picture"));
    QCOMPARE(book.getImageData(2), headerAlone);
    QCOMPARE(book.getImageData(3), hostile);
}

void BookImagesTest::losesPicturesThatCannotBeStored()
{
    m_defaults->setInteger(PreferenceKeys::ImageQuality, 11);
    BookEntry book;
    const QByteArray small = encoded(quarters(QSize(100, 100)), "jpeg", 90);
    book.setImageData(1, encoded(quarters(QSize(400, 300)), "jpeg", 90));
    book.setImageData(2, small);
    QCOMPARE(book.scaleEachImage(*m_defaults), 1);
    QVERIFY(book.getImageData(1).isNull());
    QCOMPARE(book.getImageData(2), small);
}

void BookImagesTest::readsHeadersOfManyBooksQuickly()
{
    BookEntry book;
    // Decoding it takes some milliseconds, its header some microseconds.
    book.setImageData(1, encoded(noise(QSize(218, 313)), "jpeg", 90));
    QElapsedTimer time;
    time.start();
    for (int count = 0; count < 10'000; ++count)
        QCOMPARE(book.scaleEachImage(*m_defaults), 0);
    QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
}

void BookImagesTest::answersTheStoredPicture()
{
    BookEntry book;
    QVERIFY(!book.getPicture(1).isValid());
    book.setImageData(1, encoded(quarters(QSize(40, 30)), "jpeg", 90));
    QCOMPARE(book.getPicture(1).size(), QSize(40, 30));
    QCOMPARE(book.getPicture(1).image(), book.getImage1());
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, static_cast<void>(book.getPicture(0)));
}

void BookImagesTest::staysWithinLimitsForAHostilePicture()
{
    BookEntry book;
    for (const char* format : {"jpeg", "png", "gif", "bmp", "webp", "tiff"}) {
        book.setImageData(1, claiming(format, 60000, 60000));
        QElapsedTimer time;
        time.start();
        QVERIFY(book.getImage1().isNull());
        QVERIFY(book.getFirstImage().isNull());
        QVERIFY(time.elapsed() < 1000);
    }
    book.setImageData(1, "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    QVERIFY(book.getImage1().isNull());
}

QTEST_GUILESS_MAIN(BookImagesTest)
#include "BookImagesTest.moc"
