#include "model/Picture.h"

#include "model/PictureDecoder.h"
#include "model/PictureLimits.h"

#include <algorithm>
#include <optional>

namespace tomely {

namespace {

constexpr QSize previewBound(PictureLimits::PreviewSide, PictureLimits::PreviewSide);

// True when `image` has at least the pixels of a picture of `size` fitted into `wanted`.
bool covers(const QImage& image, QSize size, QSize wanted)
{
    const QSize fitted = fittedSize(size, wanted);
    return image.width() >= fitted.width() && image.height() >= fitted.height();
}

} // namespace

Picture Picture::fromEncoded(const QByteArray& bytes)
{
    const std::optional<PictureHeader> header = readPictureHeader(bytes);
    if (!header)
        return {};
    QImage preview = decodePicture(bytes, *header, previewBound, MissingPart::Refused);
    if (preview.isNull())
        return {};
    Picture picture;
    picture.m_size = header->uprightSize();
    if (preview.size() != picture.m_size) {
        picture.m_encoded = bytes;
        // A decoder that reduces makes up to twice as many pixels as are needed.
        const QSize fitted = fittedSize(picture.m_size, previewBound);
        if (preview.size() != fitted)
            preview = preview.scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    picture.m_image = preview;
    return picture;
}

Picture Picture::fromStored(const QByteArray& bytes)
{
    const std::optional<PictureHeader> header = readPictureHeader(bytes);
    if (!header)
        return {};
    Picture picture;
    picture.m_encoded = bytes;
    picture.m_size = header->uprightSize();
    picture.m_missingPart = MissingPart::Shown;
    return picture;
}

Picture Picture::fromImage(const QImage& image)
{
    // As it was given, and in the screen's colours.
    const qint64 pixels = qint64(image.width()) * image.height();
    const qint64 workingBytes = pixels * (image.depth() / 8 + 2 * qint64(sizeof(QRgb)));
    if (image.isNull() || std::max(image.width(), image.height()) > PictureLimits::MaximumSide
        || workingBytes > PictureLimits::MaximumWorkingBytes)
        return {};
    Picture picture;
    picture.m_image = plainPixels(image);
    picture.m_size = picture.m_image.size();
    return picture;
}

QImage Picture::image() const
{
    return imageFor(m_size);
}

QImage Picture::imageFor(QSize wanted) const
{
    if (!isValid() || wanted.isEmpty())
        return {};
    if (m_encoded.isNull() || covers(m_image, m_size, wanted))
        return m_image;
    const std::optional<PictureHeader> header = readPictureHeader(m_encoded);
    return header ? decodePicture(m_encoded, *header, wanted, m_missingPart) : QImage();
}

} // namespace tomely
