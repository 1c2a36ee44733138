#include "model/PictureStructure.h"

#include "model/PictureBmp.h"
#include "model/PictureGif.h"
#include "model/PictureJpeg.h"
#include "model/PictureLimits.h"
#include "model/PicturePng.h"
#include "model/PictureTiff.h"
#include "model/PictureWebP.h"

#include <array>

namespace tomely {

namespace {

std::optional<PictureHeader> readHeaderOf(PictureFormat format, QByteArrayView bytes)
{
    switch (format) {
    case PictureFormat::Jpeg:
        return readJpegHeader(bytes);
    case PictureFormat::Png:
        return readPngHeader(bytes);
    case PictureFormat::Gif:
        return readGifHeader(bytes);
    case PictureFormat::Bmp:
        return readBmpHeader(bytes);
    case PictureFormat::WebP:
        return readWebPHeader(bytes);
    case PictureFormat::Tiff:
        return readTiffHeader(bytes);
    case PictureFormat::None:
        break;
    }
    return {};
}

bool isWithinLimits(QByteArrayView bytes, const PictureHeader& header)
{
    const QSize size = header.storedSize;
    return !size.isEmpty() && size.width() <= PictureLimits::MaximumSide
        && size.height() <= PictureLimits::MaximumSide
        && header.pixels() * header.workingBytesPerPixel + bytes.size()
        <= PictureLimits::MaximumWorkingBytes;
}

} // namespace

std::optional<PictureHeader> readPictureHeader(QByteArrayView bytes)
{
    if (bytes.size() > PictureLimits::MaximumEncodedBytes)
        return {};
    const PictureFormat format = pictureFormat(bytes);
    std::optional<PictureHeader> header = readHeaderOf(format, bytes);
    if (!header)
        return {};
    header->format = format;
    if (!isWithinLimits(bytes, *header))
        return {};
    return header;
}

PictureBody inspectPicture(QByteArrayView bytes, const PictureHeader& header)
{
    switch (header.format) {
    case PictureFormat::Jpeg:
        return inspectJpeg(bytes, header);
    case PictureFormat::Png:
        return inspectPng(bytes, header);
    case PictureFormat::Gif:
        return inspectGif(bytes, header);
    case PictureFormat::Bmp:
        return inspectBmp(bytes, header);
    case PictureFormat::WebP:
        return inspectWebP(bytes, header);
    case PictureFormat::Tiff:
        return inspectTiff(bytes, header);
    case PictureFormat::None:
        break;
    }
    return {};
}

QImageIOHandler::Transformations transformationOf(quint32 orientation)
{
    constexpr std::array transformations{QImageIOHandler::TransformationNone,
        QImageIOHandler::TransformationMirror, QImageIOHandler::TransformationRotate180,
        QImageIOHandler::TransformationFlip, QImageIOHandler::TransformationFlipAndRotate90,
        QImageIOHandler::TransformationRotate90, QImageIOHandler::TransformationMirrorAndRotate90,
        QImageIOHandler::TransformationRotate270};
    if (orientation < 1 || orientation > transformations.size())
        return QImageIOHandler::TransformationNone;
    return transformations.at(orientation - 1);
}

} // namespace tomely
