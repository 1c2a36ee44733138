// The header of a BMP and whether its pixels are all there.

#pragma once

#include "model/PictureStructure.h"

namespace tomely {

std::optional<PictureHeader> readBmpHeader(QByteArrayView bytes);

PictureBody inspectBmp(QByteArrayView bytes, const PictureHeader& header);

} // namespace tomely
