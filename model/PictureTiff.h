// The directory of a TIFF's first picture: its size, how it is to be turned and where the pieces
// of its pixels are.

#pragma once

#include "model/PictureStructure.h"

namespace tomely {

std::optional<PictureHeader> readTiffHeader(QByteArrayView bytes);

PictureBody inspectTiff(QByteArrayView bytes, const PictureHeader& header);

} // namespace tomely
