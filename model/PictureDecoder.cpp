#include "model/PictureDecoder.h"

#include "model/PictureLimits.h"
#include "model/PicturePng.h"
#include "model/PictureSource.h"

#include <QColorSpace>
#include <QImageReader>
#include <QTransform>

#include <algorithm>
#include <cstring>
#include <memory>

namespace tomely {

namespace {

using Transformation = QImageIOHandler::Transformation;

// One reading of the bytes by the toolkit.
class Reading {
public:
    Reading(const QByteArray& bytes, PictureFormat format) : m_source(bytes)
    {
        // The toolkit's own bound is for all formats alike and too low for a photograph.
        constexpr int megabyte = 1 << 20;
        QImageReader::setAllocationLimit(
            static_cast<int>(PictureLimits::MaximumWorkingBytes / megabyte + 1));
        m_reader.setDevice(&m_source);
        m_reader.setFormat(readerName(format));
        m_reader.setAutoDetectImageFormat(false);
        m_reader.setAutoTransform(false); // the readers of some formats do not know how
    }

    void setScaledSize(QSize size) { m_reader.setScaledSize(size); }

    void setClipRect(QRect clip) { m_reader.setClipRect(clip); }

    // Null when the picture cannot be decoded, or not in time.
    QImage read()
    {
        QImage image = m_reader.read();
        return m_source.isExhausted() ? QImage() : image;
    }

private:
    PictureSource m_source;
    QImageReader m_reader;
};

QImage turnedUpright(QImage image, QImageIOHandler::Transformations transformation)
{
    const bool isMirrored = transformation.testFlag(Transformation::TransformationMirror);
    const bool isFlipped = transformation.testFlag(Transformation::TransformationFlip);
    if (isMirrored || isFlipped)
        image = std::move(image).mirrored(isMirrored, isFlipped);
    if (transformation.testFlag(Transformation::TransformationRotate90))
        image = image.transformed(QTransform().rotate(90));
    return image;
}

// The decoder makes n eighths of a JPEG for much less than the whole of it.
QSize eighths(QSize size, int count)
{
    constexpr int whole = 8;
    const auto part = [count](int side) {
        return static_cast<int>((qint64(side) * count + whole - 1) / whole);
    };
    return {part(size.width()), part(size.height())};
}

QSize reducedJpegSize(QSize size, QSize needed)
{
    int count = 1;
    while (eighths(size, count).width() < needed.width()
        || eighths(size, count).height() < needed.height())
        ++count;
    return eighths(size, count);
}

// Turning needs a second picture. Done band by band, that is small; the bands above are decoded
// again for each, which takes a photograph's reader some tenths of a second.
QImage readTurnedInBands(const QByteArray& bytes, const PictureHeader& header)
{
    const QSize size = header.storedSize;
    const int bandRows =
        static_cast<int>(std::max<qint64>(PictureLimits::BandPixels / size.width(), 1));
    // Whether the first row as stored becomes the last column.
    const bool startsAtRight = !header.transformation.testFlag(Transformation::TransformationFlip);
    QImage upright;
    for (int row = 0; row < size.height(); row += bandRows) {
        const int rows = std::min(bandRows, size.height() - row);
        Reading reading(bytes, header.format);
        reading.setClipRect(QRect(0, row, size.width(), rows));
        const QImage band = turnedUpright(plainPixels(reading.read()), header.transformation);
        if (band.size() != QSize(rows, size.width()))
            return {};
        if (upright.isNull())
            upright = QImage(header.uprightSize(), band.format());
        if (upright.isNull() || upright.format() != band.format())
            return {};
        const int column = startsAtRight ? size.height() - row - rows : row;
        constexpr qsizetype pixelBytes = sizeof(QRgb);
        for (int line = 0; line < band.height(); ++line) {
            std::memcpy(upright.scanLine(line) + column * pixelBytes, band.constScanLine(line),
                static_cast<std::size_t>(rows * pixelBytes));
        }
    }
    return upright;
}

QImage readJpeg(
    const QByteArray& bytes, const PictureHeader& header, QSize needed, const PictureBody& body)
{
    // A picture that is gathered from many scans is not begun again for every band.
    constexpr qint64 oneBand = PictureLimits::BandPixels;
    if (needed == header.storedSize && header.isTurned() && header.pixels() > oneBand
        && body.scans == 1)
        return readTurnedInBands(bytes, header);
    QImage image;
    {
        const QSize size = reducedJpegSize(header.storedSize, needed);
        Reading reading(bytes, header.format);
        if (size != header.storedSize)
            reading.setScaledSize(size);
        image = reading.read();
        if (image.size() != size)
            return {};
    }
    return turnedUpright(plainPixels(std::move(image)), header.transformation);
}

QImage readOther(const QByteArray& bytes, const PictureHeader& header, QSize needed)
{
    QImage image;
    {
        const bool isPng = header.format == PictureFormat::Png;
        Reading reading(isPng ? withoutExtras(bytes) : bytes, header.format);
        image = reading.read();
    }
    if (image.size() != header.storedSize)
        return {};
    image = plainPixels(std::move(image));
    if (needed != header.storedSize)
        image = image.scaled(needed, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return turnedUpright(std::move(image), header.transformation);
}

// The same memory under a new head: what is known of a picture beside its pixels cannot all be
// taken from it otherwise, and a copy would be as large as the picture.
QImage withoutMetadata(QImage image)
{
    auto kept = std::make_unique<QImage>(std::move(image));
    uchar* pixels = kept->bits();
    QImage bare(
        pixels, kept->width(), kept->height(), kept->bytesPerLine(), kept->format(),
        [](void* owner) { delete static_cast<QImage*>(owner); }, kept.get());
    if (!bare.isNull())
        static_cast<void>(kept.release()); // it belongs to the picture that shows its pixels
    return bare;
}

} // namespace

QImage decodePicture(
    const QByteArray& bytes, const PictureHeader& header, QSize wanted, MissingPart missingPart)
{
    const PictureBody body = inspectPicture(bytes, header);
    const qint64 workingBytes =
        bytes.size() + header.pixels() * header.workingBytesPerPixel + body.decoderBytes;
    if (!body.isBearable || workingBytes > PictureLimits::MaximumWorkingBytes)
        return {};
    if (!body.isWhole && missingPart == MissingPart::Refused)
        return {};
    const QSize fitted = fittedSize(header.uprightSize(), wanted);
    const QSize needed = header.isTurned() ? fitted.transposed() : fitted;
    if (header.format == PictureFormat::Jpeg)
        return readJpeg(bytes, header, needed, body);
    return readOther(bytes, header, needed);
}

QImage plainPixels(QImage image)
{
    if (image.isNull())
        return {};
    const QColorSpace screen(QColorSpace::SRgb);
    if (image.colorSpace().isValid() && image.colorSpace() != screen)
        image.convertToColorSpace(screen);
    const QImage::Format format =
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    if (image.format() != format)
        image.convertTo(format);
    return image.isNull() ? image : withoutMetadata(std::move(image));
}

QSize fittedSize(QSize size, QSize wanted)
{
    if (wanted.isEmpty() || (size.width() <= wanted.width() && size.height() <= wanted.height()))
        return size;
    const auto share = [](qint64 side, qint64 bound, qint64 of) {
        return static_cast<int>(std::max<qint64>((side * bound + of - 1) / of, 1));
    };
    const bool isWider =
        qint64(size.width()) * wanted.height() > qint64(size.height()) * wanted.width();
    return isWider ? QSize(wanted.width(), share(size.height(), wanted.width(), size.width()))
                   : QSize(share(size.width(), wanted.height(), size.height()), wanted.height());
}

} // namespace tomely
