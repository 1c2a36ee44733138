// The marker segments of a JPEG: its size, how it is to be turned, how many scans it has and
// whether it reaches its end.

#pragma once

#include "model/PictureStructure.h"

namespace tomely {

std::optional<PictureHeader> readJpegHeader(QByteArrayView bytes);

PictureBody inspectJpeg(QByteArrayView bytes, const PictureHeader& header);

} // namespace tomely
