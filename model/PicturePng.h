// The chunks of a PNG: its size, whether it reaches its end, and which of them are needed for its
// pixels.

#pragma once

#include "model/PictureStructure.h"

namespace tomely {

std::optional<PictureHeader> readPngHeader(QByteArrayView bytes);

PictureBody inspectPng(QByteArrayView bytes, const PictureHeader& header);

/// The same PNG with the chunks alone that its pixels and colours are made of. The rest are texts
/// that unpack to gigabytes and animations. Gives `bytes` itself when there is nothing to leave
/// out.
QByteArray withoutExtras(const QByteArray& bytes);

} // namespace tomely
