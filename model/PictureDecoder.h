// From the bytes of a picture to upright pixels in the screen's colours, within the limits of time
// and memory. Keeps nothing.

#pragma once

#include "model/Picture.h"
#include "model/PictureStructure.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace tomely {

/// `header` is what readPictureHeader gave for `bytes`. With an empty `wanted`, all pixels of it;
/// else as few as are needed for the picture fitted into `wanted`, which is as many as there are
/// when it is no larger. Null when it cannot be decoded within the limits.
QImage decodePicture(
    const QByteArray& bytes, const PictureHeader& header, QSize wanted, MissingPart missingPart);

/// The same pixels in sRGB, 8 bits a colour, RGB32 when opaque and else ARGB32_Premultiplied,
/// without colour space, resolution, texts or device pixel ratio.
QImage plainPixels(QImage image);

/// The size of a picture of `size` fitted into `wanted`, sides rounded up; `size` itself when it is
/// not larger or when `wanted` is empty.
QSize fittedSize(QSize size, QSize wanted);

} // namespace tomely
