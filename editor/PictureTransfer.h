// Pictures on their way in and out of the program: what a drop or the clipboard offers becomes a
// picture, and a picture becomes what a drag or the clipboard offers. Knows no widgets.

#pragma once

#include "model/Picture.h"

#include <memory>

class QMimeData;

namespace tomely {

/// Whether `data` may hold a picture: a local file, or one of the formats that `pictureFrom` reads.
/// Reads no file and no picture, so it is quick enough for a drag that passes by.
bool offersPicture(const QMimeData& data);

/// The picture that `data` holds: the first local file that is a picture, else the first encoded
/// picture among its formats, else the picture that this program has decoded. Files are read
/// into memory and closed; addresses on the network are never fetched. Not valid when nothing in it
/// can be read as a picture.
Picture pictureFrom(const QMimeData& data);

/// What a drag of `picture` offers: the one format `image/tiff`, encoded when somebody asks for it.
std::unique_ptr<QMimeData> tiffMimeData(const Picture& picture);

/// What a copy of `picture` offers: the decoded picture, which every program takes. Null when it
/// cannot be decoded.
std::unique_ptr<QMimeData> clipboardMimeData(const Picture& picture);

} // namespace tomely
