// The kinds of pictures that the program reads, told by how their bytes begin. Names and types that
// others give them are not trusted. This must not decode anything.

#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace tomely {

enum class PictureFormat { None, Jpeg, Png, Gif, Bmp, WebP, Tiff };

/// None for everything else, vector drawings among it: they are programs rather than pictures.
PictureFormat pictureFormat(QByteArrayView bytes);

/// The name under which the toolkit knows the format's reader.
QByteArray readerName(PictureFormat format);

} // namespace tomely
