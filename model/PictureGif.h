// The blocks of a GIF up to the end of its first frame, which is all that is shown of it.

#pragma once

#include "model/PictureStructure.h"

namespace tomely {

std::optional<PictureHeader> readGifHeader(QByteArrayView bytes);

PictureBody inspectGif(QByteArrayView bytes, const PictureHeader& header);

} // namespace tomely
