// The chunks of a WebP picture: its size and whether it reaches its end.

#pragma once

#include "model/PictureStructure.h"

namespace tomely {

std::optional<PictureHeader> readWebPHeader(QByteArrayView bytes);

PictureBody inspectWebP(QByteArrayView bytes, const PictureHeader& header);

} // namespace tomely
