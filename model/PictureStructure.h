// What the bytes of a picture say about it without being decoded, and whether they are all there.
// The toolkit's readers fill what is missing with grey and believe every size, so this is looked at
// first; it must not decode.

#pragma once

#include "model/PictureFormat.h"

#include <QByteArray>
#include <QImageIOHandler>
#include <QSize>

#include <optional>

namespace tomely {

/// From the first bytes alone.
struct PictureHeader {
    PictureFormat format = PictureFormat::None;
    QSize storedSize; // before it is turned upright
    QImageIOHandler::Transformations transformation; // what turns it upright
    int workingBytesPerPixel = 0; // the pixels in all forms that exist at once while decoding

    bool isTurned() const
    {
        return transformation.testFlag(QImageIOHandler::TransformationRotate90);
    }

    QSize uprightSize() const { return isTurned() ? storedSize.transposed() : storedSize; }

    qint64 pixels() const { return qint64(storedSize.width()) * storedSize.height(); }
};

/// From all of the bytes.
struct PictureBody {
    bool isWhole = false; // nothing that the header promises is missing
    bool isBearable = false; // the reader gets through it in time
    qint64 decoderBytes = 0; // what the reader holds beside the file and the pixels
    qint64 scans = 1; // how often the reader goes over the picture
};

/// Nothing when the bytes are not one of the formats, or when the header is not whole, makes no
/// sense or claims more than the limits.
std::optional<PictureHeader> readPictureHeader(QByteArrayView bytes);

/// Goes through the bytes whose header was read.
PictureBody inspectPicture(QByteArrayView bytes, const PictureHeader& header);

/// What turns a picture of this EXIF or TIFF orientation (1 to 8) upright; nothing for others.
QImageIOHandler::Transformations transformationOf(quint32 orientation);

} // namespace tomely
