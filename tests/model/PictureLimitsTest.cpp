// Pictures that cost more than they show: each must be refused, or shown, in little time and
// memory.

#include "model/Picture.h"
#include "model/PictureSource.h"

#include "tests/support/PictureSamples.h"

#include <QElapsedTimer>
#include <QFile>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using namespace tomely::samples;

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

// The sanitizer keeps what is freed for a while.
constexpr qint64 mostKilobytes = isSanitized ? 2 * 512 * 1024 : 512 * 1024;
constexpr qint64 mostMilliseconds = 5000;

// The most memory that the process ever had, in kilobytes.
qint64 peakKilobytes()
{
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmHWM:"))
            return line.sliced(6).simplified().split(' ').first().toLongLong();
    }
    return -1;
}

const QList<QByteArray>& formats()
{
    static const QList<QByteArray> all{"jpeg", "png", "gif", "bmp", "webp", "tiff"};
    return all;
}

} // namespace

class PictureLimitsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void readsWhatTheHandMadeHeadersClaim_data();
    void readsWhatTheHandMadeHeadersClaim();
    void refusesGiantClaims_data();
    void refusesGiantClaims();
    void refusesPicturesThatAreCutOff_data();
    void refusesPicturesThatAreCutOff();
    void refusesPicturesOfEmptySize_data();
    void refusesPicturesOfEmptySize();
    void refusesAPngThatUnpacksWithoutEnd();
    void readsAPngWithoutItsTexts();
    void readsAnEmptyPngThatPacksWell();
    void refusesAGifThatUnpacksWithoutEnd();
    void refusesAGifWithTooFewPixels();
    void refusesManyScans();
    void refusesAGiantTile_data();
    void refusesAGiantTile();
    void refusesPiecesThatAreNotThere();
    void refusesMetadataWithoutEnd();
    void driesUpForADecoderThatTakesTooLong();
    void readsALargePhotograph_data();
    void readsALargePhotograph();

private:
    QElapsedTimer m_time;
};

void PictureLimitsTest::init()
{
    m_time.start();
}

void PictureLimitsTest::cleanup()
{
    QVERIFY2(m_time.elapsed() < mostMilliseconds * (isSanitized ? 4 : 1),
        qPrintable(QString::number(m_time.elapsed())));
    const qint64 peak = peakKilobytes();
    QVERIFY(peak > 0);
    QVERIFY2(peak < mostKilobytes, qPrintable(QString::number(peak)));
}

// Else the next test would pass for another reason than the size.
void PictureLimitsTest::readsWhatTheHandMadeHeadersClaim_data()
{
    QTest::addColumn<QByteArray>("format");
    for (const QByteArray& format : formats())
        QTest::newRow(format.constData()) << format;
}

void PictureLimitsTest::readsWhatTheHandMadeHeadersClaim()
{
    QFETCH(const QByteArray, format);
    QCOMPARE(Picture::fromStored(claiming(format, 16, 16)).size(), QSize(16, 16));
    QCOMPARE(Picture::fromStored(claiming(format, 5000, 3000)).size(), QSize(5000, 3000));
}

void PictureLimitsTest::refusesGiantClaims_data()
{
    QTest::addColumn<QByteArray>("bytes");
    for (const QByteArray& format : formats()) {
        QTest::addRow("%s square", format.constData()) << claiming(format, 60000, 60000);
        QTest::addRow("%s wide", format.constData()) << claiming(format, 65500, 1);
        QTest::addRow("%s high", format.constData()) << claiming(format, 1, 65500);
    }
    QTest::newRow("png beyond 31 bits") << claiming("png", 0xFFFFFFFF, 0xFFFFFFFF);
    QTest::newRow("bmp beyond 31 bits") << claiming("bmp", 0x7FFFFFFF, 0x80000000);
    QTest::newRow("tiff beyond 31 bits") << claiming("tiff", 0xFFFFFFFF, 0xFFFFFFFF);
}

void PictureLimitsTest::refusesGiantClaims()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(!Picture::fromEncoded(bytes).isValid());
    QVERIFY(!Picture::fromStored(bytes).isValid());
    QVERIFY(Picture::fromStored(bytes).image().isNull());
    QVERIFY(Picture::fromStored(bytes).imageFor(QSize(100, 100)).isNull());
}

void PictureLimitsTest::refusesPicturesThatAreCutOff_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QImage image = noise(QSize(60, 50));
    for (const QByteArray& format : formats())
        QTest::newRow(format.constData()) << encodedIn(format, image);
    QTest::newRow("progressive jpeg") << encoded(image, "jpeg", 80, true);
    QTest::newRow("lossless webp") << encoded(image, "webp", 100);
    QTest::newRow("turned jpeg") << withOrientation(encoded(image, "jpeg"), 6);
    const QByteArray content(40 * 40, 'x');
    QTest::newRow("tiff with its directory first") << [&content] {
        // The same bytes as another program would lay them out: directory, then pixels.
        const QByteArray last = greyTiff(40, 40, content);
        const qsizetype directory = 8 + content.size();
        QByteArray first = last.first(4) + littleNumber(8, 4) + last.sliced(directory);
        const auto pixels = static_cast<quint32>(first.size());
        first.replace(8 + 2 + 5 * 12 + 8, 4, littleNumber(pixels, 4)); // the sixth entry
        return first + content;
    }();
    // Two runs of 4 pixels a row and the mark of its end, for two rows, then that of the picture's.
    QByteArray runs =
        encoded(plainImage(QSize(8, 2), Qt::red).convertToFormat(QImage::Format_Indexed8), "bmp");
    const auto start = static_cast<qsizetype>(static_cast<quint8>(runs.at(10)))
        + static_cast<quint8>(runs.at(11)) * 256;
    runs.replace(28, 6, littleNumber(8, 2) + littleNumber(1, 4)); // 8 bits a pixel, as runs
    QTest::newRow("bmp of runs") << runs.first(start) + QByteArray("\4\0\4\0\0\0\4\0\4\0\0\1", 12);
}

void PictureLimitsTest::refusesPicturesThatAreCutOff()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(Picture::fromEncoded(bytes).isValid());
    const qsizetype step = std::max<qsizetype>(bytes.size() / 60, 1);
    for (qsizetype cut = 1; cut < bytes.size(); cut += cut < 12 ? 1 : step) {
        const QByteArray rest = bytes.first(bytes.size() - cut);
        QVERIFY2(!Picture::fromEncoded(rest).isValid(), qPrintable(QString::number(cut)));
        // One that is stored may show the rest, but always in its own size.
        const Picture stored = Picture::fromStored(rest);
        const QImage image = stored.image();
        QVERIFY(image.isNull() || image.size() == stored.size());
    }
}

void PictureLimitsTest::refusesPicturesOfEmptySize_data()
{
    QTest::addColumn<QByteArray>("bytes");
    for (const QByteArray& format : formats()) {
        if (format == "webp")
            continue; // its sizes count from 1
        QTest::addRow("%s without width", format.constData()) << claiming(format, 0, 5);
        QTest::addRow("%s without height", format.constData()) << claiming(format, 5, 0);
    }
}

void PictureLimitsTest::refusesPicturesOfEmptySize()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(!Picture::fromEncoded(bytes).isValid());
    QVERIFY(!Picture::fromStored(bytes).isValid());
}

void PictureLimitsTest::refusesAPngThatUnpacksWithoutEnd()
{
    // 200 MB of zeros in 200 kB, behind ten rows that need ten bytes each.
    const QByteArray bytes = png(QSize(10, 10), deflated(QByteArray(200'000'000, '\0')));
    m_time.start(); // packing them is the test's own work
    QVERIFY(!Picture::fromEncoded(bytes).isValid());
    QVERIFY(Picture::fromStored(bytes).image().isNull());
    QVERIFY(m_time.elapsed() < 1000);
}

void PictureLimitsTest::readsAPngWithoutItsTexts()
{
    const QByteArray unpacking = deflated(QByteArray(7'900'000, 'a'));
    QByteArray texts;
    for (int index = 0; index < 400; ++index) {
        texts +=
            pngChunk("zTXt", "key" + QByteArray::number(index) + QByteArray(2, '\0') + unpacking);
    }
    const QByteArray bytes = png(QSize(2, 2), deflated(QByteArray(6, '\0')), texts);
    m_time.start();
    QCOMPARE(Picture::fromEncoded(bytes).image().size(), QSize(2, 2));
    QCOMPARE(Picture::fromStored(bytes).image().size(), QSize(2, 2));
}

void PictureLimitsTest::readsAnEmptyPngThatPacksWell()
{
    const QByteArray bytes = png(QSize(8000, 8000), deflated(QByteArray(8001 * 8000, '\0')));
    QVERIFY(bytes.size() < 100'000);
    QCOMPARE(Picture::fromEncoded(bytes).size(), QSize(8000, 8000));
}

void PictureLimitsTest::refusesAGifThatUnpacksWithoutEnd()
{
    // A screen of four pixels under a frame of four thousand million, and a frame of many more than
    // it says.
    const QByteArray wide = gifStart(QSize(2, 2)) + "," + littleNumber(0, 4)
        + littleNumber(65000, 2) + littleNumber(65000, 2) + gifFrame(QSize(2, 2)).sliced(9) + ';';
    QVERIFY(!Picture::fromEncoded(wide).isValid());
    QVERIFY(Picture::fromStored(wide).image().isNull());
    QByteArray frame = gifFrame(QSize(4000, 4000));
    frame.replace(5, 4, littleNumber(2, 2) + littleNumber(2, 2));
    const QByteArray deep = gifStart(QSize(2, 2)) + frame + ';';
    QVERIFY(!Picture::fromEncoded(deep).isValid());
    QVERIFY(Picture::fromStored(deep).image().isNull());
}

void PictureLimitsTest::refusesAGifWithTooFewPixels()
{
    QByteArray frame = gifFrame(QSize(10, 9));
    frame.replace(7, 2, littleNumber(10, 2));
    const QByteArray bytes = gifStart(QSize(10, 10)) + frame + ';';
    QVERIFY(!Picture::fromEncoded(bytes).isValid());
    QCOMPARE(Picture::fromStored(bytes).size(), QSize(10, 10));
}

void PictureLimitsTest::refusesManyScans()
{
    QVERIFY(Picture::fromEncoded(jpegOfScans(QSize(1000, 1000), 10)).isValid());
    const QByteArray bytes = jpegOfScans(QSize(1000, 1000), 5000);
    QVERIFY(bytes.size() < 100'000);
    QVERIFY(!Picture::fromEncoded(bytes).isValid());
    QVERIFY(Picture::fromStored(bytes).image().isNull());
    QVERIFY(Picture::fromStored(bytes).imageFor(QSize(10, 10)).isNull());
}

void PictureLimitsTest::refusesAGiantTile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray content(256, 'x');
    QTest::newRow("of 10 GB") << tiledTiff(16, 16, 100'000, content);
    QTest::newRow("of 400 MB") << tiledTiff(16, 16, 20'000, content);
    QTest::newRow("beyond 31 bits") << tiledTiff(16, 16, 0xFFFFFFF0, content);
    QTest::newRow("of nothing") << tiledTiff(16, 16, 0, content);
    QTest::newRow("strip of many samples") << tiff(content,
        {{256, 16}, {257, 16}, {258, 8}, {259, 1}, {262, 1}, {273, 8}, {277, 60'000}, {278, 16},
            {279, 256}});
}

void PictureLimitsTest::refusesAGiantTile()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(Picture::fromEncoded(tiledTiff(16, 16, 16, QByteArray(256, 'x'))).isValid());
    QVERIFY(!Picture::fromEncoded(bytes).isValid());
    QVERIFY(Picture::fromStored(bytes).image().isNull());
}

void PictureLimitsTest::refusesPiecesThatAreNotThere()
{
    QVERIFY(Picture::fromEncoded(greyTiff(16, 16, QByteArray(256, 'x'))).isValid());
    // A strip that begins or ends behind the file.
    for (const quint32 offset : {500U, 0xFFFFFFF0U}) {
        const QByteArray bytes = tiff(QByteArray(256, 'x'),
            {{256, 16}, {257, 16}, {258, 8}, {259, 1}, {262, 1}, {273, offset}, {277, 1}, {278, 16},
                {279, 256}});
        QVERIFY(!Picture::fromEncoded(bytes).isValid());
    }
    // Strips of one row each, of which only one is listed.
    QVERIFY(!Picture::fromEncoded(tiff(QByteArray(256, 'x'),
                                      {{256, 16}, {257, 16}, {258, 8}, {259, 1}, {262, 1}, {273, 8},
                                          {277, 1}, {278, 1}, {279, 16}}))
                 .isValid());
}

void PictureLimitsTest::refusesMetadataWithoutEnd()
{
    const QByteArray comment = jpegSegment(0xFE, QByteArray(65'000, 'c'));
    const QByteArray jpeg = encoded(plainImage(QSize(8, 8), Qt::red), "jpeg");
    const auto withComments = [&](int count) {
        return jpeg.first(2) + comment.repeated(count) + jpeg.sliced(2);
    };
    QVERIFY(Picture::fromEncoded(withComments(100)).isValid());
    QVERIFY(!Picture::fromEncoded(withComments(1000)).isValid());
    QVERIFY(Picture::fromStored(withComments(1000)).image().isNull());
}

void PictureLimitsTest::driesUpForADecoderThatTakesTooLong()
{
    PictureSource inTime("picture");
    QCOMPARE(inTime.readAll(), QByteArray("picture"));
    QVERIFY(inTime.seek(2));
    QCOMPARE(inTime.read(3), QByteArray("ctu"));
    inTime.seek(1000);
    char byte = 0;
    QCOMPARE(inTime.read(&byte, 1), 0); // never an error, which a decoder could take for a length
    QVERIFY(!inTime.isExhausted());
    PictureSource tooLate("picture", -1);
    QCOMPARE(tooLate.read(&byte, 1), 0);
    QVERIFY(tooLate.isExhausted());
}

void PictureLimitsTest::readsALargePhotograph_data()
{
    QTest::addColumn<quint32>("orientation");
    QTest::newRow("upright") << 1U;
    QTest::newRow("turned") << 6U;
}

void PictureLimitsTest::readsALargePhotograph()
{
    QFETCH(const quint32, orientation);
    const QSize stored(9000, 6700);
    static const QByteArray jpeg = encoded(quarters(QSize(9000, 6700)), "jpeg", 50);
    m_time.start();
    const QByteArray bytes = withOrientation(jpeg, orientation);
    const QSize size = orientation == 1 ? stored : stored.transposed();
    QCOMPARE(Picture::fromEncoded(bytes).size(), size);
    QCOMPARE(Picture::fromStored(bytes).image().size(), size);
}

QTEST_GUILESS_MAIN(PictureLimitsTest)
#include "PictureLimitsTest.moc"
