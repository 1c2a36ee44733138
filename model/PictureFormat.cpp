#include "model/PictureFormat.h"

namespace tomely {

PictureFormat pictureFormat(QByteArrayView bytes)
{
    if (bytes.startsWith("\xFF\xD8\xFF"))
        return PictureFormat::Jpeg;
    if (bytes.startsWith("\x89PNG\r\n\x1A\n"))
        return PictureFormat::Png;
    if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a"))
        return PictureFormat::Gif;
    if (bytes.startsWith("BM"))
        return PictureFormat::Bmp;
    if (bytes.startsWith("RIFF") && bytes.sliced(4).size() >= 8
        && bytes.sliced(8).startsWith("WEBP"))
        return PictureFormat::WebP;
    // The variant with 64-bit offsets is for files far above the limits.
    if (bytes.startsWith(QByteArrayView("II*\0", 4))
        || bytes.startsWith(QByteArrayView("MM\0*", 4)))
        return PictureFormat::Tiff;
    return PictureFormat::None;
}

QByteArray readerName(PictureFormat format)
{
    switch (format) {
    case PictureFormat::Jpeg:
        return "jpeg";
    case PictureFormat::Png:
        return "png";
    case PictureFormat::Gif:
        return "gif";
    case PictureFormat::Bmp:
        return "bmp";
    case PictureFormat::WebP:
        return "webp";
    case PictureFormat::Tiff:
        return "tiff";
    case PictureFormat::None:
        break;
    }
    return {};
}

} // namespace tomely
