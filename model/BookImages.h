// How a picture becomes the JPEG that a book stores: within the bounds of its place when the person
// wants that, in the quality that the person chose. It knows no book.

#pragma once

#include "model/Picture.h"

#include <QByteArray>
#include <QSize>

#include <optional>

namespace tomely {

class UserDefaults;

/// The width and height in pixels that a picture in slot 1 to 5 of a book is scaled down to.
/// Another slot is the caller's mistake and throws std::out_of_range.
QSize imageBound(int slot);

/// True when the picture is wider or higher than that; false for no picture.
bool shouldScaleImage(const Picture& picture, qint32 maxWidth, qint32 maxHeight);

/// The picture as JPEG, scaled down when the person's preferences say so. Null when there is no
/// picture, when it cannot be decoded, when the preferred quality is none, or when a side would be
/// shorter than a pixel.
QByteArray scaleAndSaveAsJPEG(
    const Picture& picture, qint32 maxWidth, qint32 maxHeight, const UserDefaults& defaults);

/// The same, where the caller says whether to scale down.
QByteArray scaleAndSaveAsJPEGScaled(const Picture& picture, qint32 maxWidth, qint32 maxHeight,
    bool scaleImage, const UserDefaults& defaults);

/// Whether new pictures are to be scaled down. The preference is a flag, but it may have been
/// written as a number, of which the lowest byte counts.
bool prefersScaledImages(const UserDefaults& defaults);

/// The JPEG quality that the person prefers, above 0 and up to 1: the preference is in tenths, and
/// 0.7 when it is absent or 0. Nothing when it is outside that range.
std::optional<float> imageQuality(const UserDefaults& defaults);

/// The size of a picture of `size` brought within `bound`: never larger, in the same proportions,
/// sides cut to whole pixels. A side may come out as 0; a bound that is empty gives an empty size.
QSize scaledSize(QSize size, QSize bound);

} // namespace tomely
