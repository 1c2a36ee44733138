#include "editor/PictureTransfer.h"

#include "model/PictureLimits.h"
#include "tests/support/Files.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QMimeData>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>
#include <QUrl>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QImage speckled(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 7 % 256, y * 11 % 256, (x + y) * 5 % 256));
    }
    return image;
}

QByteArray encoded(const QImage& image, const QByteArray& format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, format);
    return writer.write(image) ? bytes : QByteArray();
}

/// One red pixel.
QByteArray gif()
{
    return QByteArray::fromHex("47494638376101000100800000ff0000ffffff2c000000000100010000020244"
                               "01003b");
}

QByteArray png(QSize size)
{
    return encoded(speckled(size), "png");
}

bool samePixels(const QImage& one, const QImage& other)
{
    return !one.isNull()
        && one.convertToFormat(QImage::Format_ARGB32)
        == other.convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class PictureTransferTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsEachFormat_data();
    void readsEachFormat();
    void readsADecodedPicture();
    void readsALocalFile();
    void keepsTheBytesOfAFile();
    void prefersTheFile();
    void takesTheFirstFileThatIsAPicture();
    void takesTheBytesWhenTheFileIsNoPicture();
    void takesTheNextFormatWhenTheBestIsDamaged();
    void neverLetsTheToolkitDecodeWhatIsDamaged();
    void findsNoPicture_data();
    void findsNoPicture();
    void refusesAFileThatIsTooLarge();
    void doesNotWaitForAPipe();
    void neverFetchesFromTheNetwork();
    void tellsOffers_data();
    void tellsOffers();
    void dragsOfferTiffAlone();
    void tiffKeepsThePixels_data();
    void tiffKeepsThePixels();
    void tiffOfNothingIsNothing();
    void givesItsOwnPictureAsItIs();
    void copiesOfferTheDecodedPicture();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QUrl file(const QString& name, const QByteArray& bytes) const
    {
        return samples::writeFile(path(name), bytes) ? QUrl::fromLocalFile(path(name)) : QUrl();
    }

    QTemporaryDir m_folder;
};

void PictureTransferTest::readsEachFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QSize>("size");
    const QSize size(13, 17);
    for (const char* const name : {"png", "tiff", "jpeg", "webp", "bmp"}) {
        QTest::newRow(name) << "image/"_L1 + QLatin1StringView(name)
                            << encoded(speckled(size), name) << size;
    }
    QTest::newRow("gif") << u"image/gif"_s << gif() << QSize(1, 1);
}

void PictureTransferTest::readsEachFormat()
{
    QFETCH(const QString, format);
    QFETCH(const QByteArray, bytes);
    QFETCH(const QSize, size);
    QVERIFY(!bytes.isEmpty());
    QMimeData data;
    data.setData(format, bytes);
    QVERIFY(offersPicture(data));
    const Picture picture = pictureFrom(data);
    QVERIFY(picture.isValid());
    QCOMPARE(picture.size(), size);
    QCOMPARE(picture.image().size(), size);
}

void PictureTransferTest::readsADecodedPicture()
{
    QMimeData data;
    data.setImageData(speckled({13, 17}));
    QVERIFY(offersPicture(data));
    QVERIFY(samePixels(pictureFrom(data).image(), speckled({13, 17})));
}

void PictureTransferTest::readsALocalFile()
{
    QMimeData data;
    data.setUrls({file(u"cover with ümlaut & space.dat"_s, png({20, 30}))});
    QVERIFY(offersPicture(data));
    QVERIFY(samePixels(pictureFrom(data).image(), speckled({20, 30})));
}

void PictureTransferTest::keepsTheBytesOfAFile()
{
    QMimeData data;
    data.setUrls({file(u"passing.png"_s, png({20, 30}))});
    const Picture picture = pictureFrom(data);
    QVERIFY(samples::writeFile(path(u"passing.png"_s), png({5, 5})));
    QVERIFY(samePixels(picture.image(), speckled({20, 30})));
    QVERIFY(QFile::remove(path(u"passing.png"_s)));
    QVERIFY(samePixels(picture.image(), speckled({20, 30})));
}

void PictureTransferTest::prefersTheFile()
{
    QMimeData data;
    data.setUrls({file(u"file.png"_s, png({20, 30}))});
    data.setData(u"image/png"_s, png({4, 5}));
    data.setImageData(speckled({6, 7}));
    QCOMPARE(pictureFrom(data).size(), QSize(20, 30));
}

void PictureTransferTest::takesTheFirstFileThatIsAPicture()
{
    QMimeData data;
    data.setUrls({QUrl(u"https://example.org/cover.png"_s), file(u"notes.txt"_s, "Emma, 1815"),
        file(u"first.png"_s, png({20, 30})), file(u"second.png"_s, png({40, 50}))});
    QVERIFY(offersPicture(data));
    QCOMPARE(pictureFrom(data).size(), QSize(20, 30));
}

void PictureTransferTest::takesTheBytesWhenTheFileIsNoPicture()
{
    QMimeData data;
    data.setUrls({file(u"notes.txt"_s, "Emma, 1815")});
    data.setData(u"image/png"_s, png({4, 5}));
    QCOMPARE(pictureFrom(data).size(), QSize(4, 5));
}

void PictureTransferTest::takesTheNextFormatWhenTheBestIsDamaged()
{
    QMimeData data;
    data.setData(u"image/png"_s, png({200, 200}).first(100));
    data.setData(u"image/bmp"_s, encoded(speckled({4, 5}), "bmp"));
    QCOMPARE(pictureFrom(data).size(), QSize(4, 5));
}

void PictureTransferTest::neverLetsTheToolkitDecodeWhatIsDamaged()
{
    QMimeData data;
    data.setData(u"image/png"_s, "no picture");
    data.setImageData(speckled({4, 5}));
    QVERIFY(!pictureFrom(data).isValid());
}

void PictureTransferTest::findsNoPicture_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QUrl() << QByteArray();
    QTest::newRow("a text file") << file(u"notes.txt"_s, "Emma, 1815") << QByteArray();
    QTest::newRow("named like a picture") << file(u"fake.png"_s, "no picture") << QByteArray();
    QTest::newRow("an empty file") << file(u"empty.png"_s, "") << QByteArray();
    QTest::newRow("a file cut off")
        << file(u"cut.png"_s, png({200, 200}).first(500)) << QByteArray();
    QTest::newRow("a folder") << QUrl::fromLocalFile(m_folder.path()) << QByteArray();
    QTest::newRow("a file that is gone")
        << QUrl::fromLocalFile(path(u"gone.png"_s)) << QByteArray();
    QTest::newRow("another machine's") << QUrl(u"file://elsewhere/cover.png"_s) << QByteArray();
    QTest::newRow("hostile bytes") << QUrl() << QByteArray("\x89PNG\r\n\x1a\n\xff\xff\xff\xffIHDR");
    QTest::newRow("bytes cut off") << QUrl() << png({200, 200}).first(500);
}

void PictureTransferTest::findsNoPicture()
{
    QFETCH(const QUrl, url);
    QFETCH(const QByteArray, bytes);
    QMimeData data;
    if (url.isValid())
        data.setUrls({url});
    if (!bytes.isNull())
        data.setData(u"image/png"_s, bytes);
    QVERIFY(!pictureFrom(data).isValid());
}

void PictureTransferTest::refusesAFileThatIsTooLarge()
{
    // What follows the end of a picture does not damage it, so only its size speaks against it.
    QMimeData data;
    data.setUrls({file(u"large.png"_s, png({20, 30}) + QByteArray(1000, '\0'))});
    QVERIFY(pictureFrom(data).isValid());
    QVERIFY(QFile::resize(path(u"large.png"_s), PictureLimits::MaximumEncodedBytes + 1));
    QVERIFY(!pictureFrom(data).isValid());
}

void PictureTransferTest::doesNotWaitForAPipe()
{
    const QString pipe = path(u"pipe.png"_s);
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(pipe)});
    QVERIFY(!pictureFrom(data).isValid());
}

void PictureTransferTest::neverFetchesFromTheNetwork()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QMimeData data;
    data.setUrls({QUrl(u"http://127.0.0.1:%1/cover.png"_s.arg(server.serverPort()))});
    QVERIFY(!offersPicture(data));
    QVERIFY(!pictureFrom(data).isValid());
    QVERIFY(!server.waitForNewConnection(50));
}

void PictureTransferTest::tellsOffers_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("offers");
    for (const char* const name : {"png", "tiff", "jpeg", "webp", "bmp", "gif"})
        QTest::newRow(name) << "image/"_L1 + QLatin1StringView(name) << QByteArray("unread")
                            << true;
    QTest::newRow("text") << u"text/plain"_s << QByteArray("Emma") << false;
    QTest::newRow("a drawing") << u"image/svg+xml"_s << QByteArray("<svg/>") << false;
    QTest::newRow("a local file") << u"text/uri-list"_s << QByteArray("file:///tmp/a.png") << true;
    QTest::newRow("a file that is not there")
        << u"text/uri-list"_s << QByteArray("file:///nowhere/a.png") << true;
    QTest::newRow("an address") << u"text/uri-list"_s << QByteArray("https://example.org/a.png")
                                << false;
    QTest::newRow("an address and a file")
        << u"text/uri-list"_s << QByteArray("https://example.org/a.png\r\nfile:///tmp/a.png")
        << true;
    QTest::newRow("no addresses") << u"text/uri-list"_s << QByteArray() << false;
}

void PictureTransferTest::tellsOffers()
{
    QFETCH(const QString, format);
    QFETCH(const QByteArray, bytes);
    QMimeData data;
    data.setData(format, bytes);
    QTEST(offersPicture(data), "offers");
}

void PictureTransferTest::dragsOfferTiffAlone()
{
    const auto data = tiffMimeData(Picture::fromImage(speckled({13, 17})));
    QCOMPARE(data->formats(), QStringList{u"image/tiff"_s});
    QVERIFY(data->hasFormat(u"image/tiff"_s));
    QVERIFY(!data->hasFormat(u"image/png"_s));
    QVERIFY(!data->hasImage());
    QVERIFY(!data->hasUrls());
    QVERIFY(!data->hasText());
    QVERIFY(data->data(u"image/png"_s).isEmpty());
}

void PictureTransferTest::tiffKeepsThePixels_data()
{
    QTest::addColumn<Picture>("picture");
    QTest::addColumn<QImage>("pixels");
    const QImage plain = speckled({13, 17});
    QImage through = plain.convertToFormat(QImage::Format_ARGB32);
    through.setPixel(3, 4, qRgba(255, 0, 0, 128));
    through.setPixel(5, 6, qRgba(0, 0, 0, 0));
    QTest::newRow("decoded") << Picture::fromImage(plain) << plain;
    QTest::newRow("encoded") << Picture::fromEncoded(encoded(plain, "png")) << plain;
    QTest::newRow("see-through") << Picture::fromEncoded(encoded(through, "png")) << through;
    QTest::newRow("one pixel") << Picture::fromImage(speckled({1, 1})) << speckled({1, 1});
}

void PictureTransferTest::tiffKeepsThePixels()
{
    QFETCH(const Picture, picture);
    QFETCH(const QImage, pixels);
    const auto data = tiffMimeData(picture);
    const QByteArray tiff = data->data(u"image/tiff"_s);
    QVERIFY(tiff.startsWith("II*") || tiff.startsWith("MM"));
    QVERIFY(samePixels(QImage::fromData(tiff, "tiff"), pixels));
    QCOMPARE(data->data(u"image/tiff"_s), tiff);
}

void PictureTransferTest::tiffOfNothingIsNothing()
{
    QVERIFY(tiffMimeData({})->data(u"image/tiff"_s).isEmpty());
    QVERIFY(!pictureFrom(*tiffMimeData({})).isValid());
}

void PictureTransferTest::givesItsOwnPictureAsItIs()
{
    const Picture picture = Picture::fromImage(speckled({13, 17}));
    const Picture given = pictureFrom(*tiffMimeData(picture));
    QVERIFY(samePixels(given.image(), picture.image()));
}

void PictureTransferTest::copiesOfferTheDecodedPicture()
{
    const auto data = clipboardMimeData(Picture::fromEncoded(png({13, 17})));
    QVERIFY(data->hasImage());
    QVERIFY(samePixels(qvariant_cast<QImage>(data->imageData()), speckled({13, 17})));
    QVERIFY(samePixels(pictureFrom(*data).image(), speckled({13, 17})));
    QVERIFY(!clipboardMimeData({}));
}

QTEST_MAIN(PictureTransferTest)
#include "PictureTransferTest.moc"
