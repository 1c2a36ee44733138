#include "model/BookImages.h"

#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>

#include <array>
#include <utility>

namespace tomely {

namespace {

constexpr int defaultTenths = 7;

// JPEG knows no transparency, and paper is white.
QImage onWhite(QImage image)
{
    if (!image.hasAlphaChannel())
        return image;
    {
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
        painter.fillRect(image.rect(), Qt::white);
    }
    image.convertTo(QImage::Format_RGB32);
    return image;
}

// The writer always notes a resolution, that of the screen if there is none.
void forgetResolution(QByteArray& jpeg)
{
    constexpr qsizetype segment = 2; // after the start marker
    constexpr qsizetype unit = segment + 11;
    if (jpeg.size() < unit + 5 || !jpeg.sliced(segment + 4).startsWith("JFIF"))
        return;
    jpeg.replace(unit, 5, QByteArray("\x00\x00\x01\x00\x01", 5)); // no unit, square pixels
}

QByteArray encodedAsJpeg(const QImage& image, float quality)
{
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    constexpr float writersBest = 100;
    writer.setQuality(qRound(quality * writersBest));
    if (!writer.write(image))
        return {};
    forgetResolution(jpeg);
    return jpeg;
}

} // namespace

QSize imageBound(int slot)
{
    constexpr std::array bounds{
        QSize(218, 313), QSize(218, 313), QSize(106, 147), QSize(106, 147), QSize(219, 147)};
    return bounds.at(static_cast<std::size_t>(slot - 1));
}

bool shouldScaleImage(const Picture& picture, qint32 maxWidth, qint32 maxHeight)
{
    return picture.isValid()
        && (picture.size().width() > maxWidth || picture.size().height() > maxHeight);
}

QByteArray scaleAndSaveAsJPEG(
    const Picture& picture, qint32 maxWidth, qint32 maxHeight, const UserDefaults& defaults)
{
    return scaleAndSaveAsJPEGScaled(
        picture, maxWidth, maxHeight, prefersScaledImages(defaults), defaults);
}

QByteArray scaleAndSaveAsJPEGScaled(const Picture& picture, qint32 maxWidth, qint32 maxHeight,
    bool scaleImage, const UserDefaults& defaults)
{
    const std::optional<float> quality = imageQuality(defaults);
    if (!picture.isValid() || !quality)
        return {};
    const QSize bound = scaleImage ? QSize(maxWidth, maxHeight) : picture.size();
    const QSize size = scaledSize(picture.size(), bound);
    if (size.isEmpty())
        return {};
    // Scaled from twice the size, so that a decoder's rough reduction is not what is seen.
    QImage image = size == picture.size() ? picture.image() : picture.imageFor(2 * size);
    if (!image.isNull() && image.size() != size)
        image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (image.isNull())
        return {};
    return encodedAsJpeg(onWhite(std::move(image)), *quality);
}

bool prefersScaledImages(const UserDefaults& defaults)
{
    constexpr qint64 lowestByte = 0xFF;
    const qint64 number = defaults.integerForKey(PreferenceKeys::ScaleImages);
    // A flag that is written as a word has no number.
    return number == 0 ? defaults.boolForKey(PreferenceKeys::ScaleImages)
                       : (number & lowestByte) != 0;
}

std::optional<float> imageQuality(const UserDefaults& defaults)
{
    const auto stored = static_cast<qint32>(defaults.integerForKey(PreferenceKeys::ImageQuality));
    const float quality = static_cast<float>(stored == 0 ? defaultTenths : stored) / 10.0F;
    if (quality <= 0 || quality > 1)
        return {};
    return quality;
}

QSize scaledSize(QSize size, QSize bound)
{
    if (bound.isEmpty())
        return {0, 0};
    if (size.width() <= bound.width() && size.height() <= bound.height())
        return size;
    // Single precision and cutting decide single pixels of what is stored: they stay as they are.
    const auto width = static_cast<float>(size.width());
    const auto height = static_cast<float>(size.height());
    const float acrossRatio = width / static_cast<float>(bound.width());
    const float downRatio = height / static_cast<float>(bound.height());
    if (acrossRatio > downRatio)
        return {bound.width(), static_cast<int>(height / acrossRatio)};
    return {static_cast<int>(width / downRatio), bound.height()};
}

} // namespace tomely
