#include "model/PictureWebP.h"

#include "model/PictureBytes.h"

namespace tomely {

namespace {

constexpr qint64 containerBytes = 12; // "RIFF", length, "WEBP"
constexpr qint64 chunkHeaderBytes = 8; // name and length
constexpr qint64 firstContent = containerBytes + chunkHeaderBytes;
constexpr quint32 sideMask = 0x3FFF; // 14 bits; what is above says how to enlarge when shown

int number(quint32 value)
{
    return static_cast<int>(value);
}

QSize sizeIn(QByteArrayView bytes)
{
    const QByteArrayView name = bytes.sliced(containerBytes, 4);
    if (name == "VP8 ") {
        constexpr qint64 sides = firstContent + 6; // after the frame tag and its start code
        return {number(littleNumberAt(bytes, sides, 2) & sideMask),
            number(littleNumberAt(bytes, sides + 2, 2) & sideMask)};
    }
    if (name == "VP8L") {
        const quint32 sides = littleNumberAt(bytes, firstContent + 1, 4);
        return {number(sides & sideMask) + 1, number(sides >> 14 & sideMask) + 1};
    }
    if (name == "VP8X") {
        return {number(littleNumberAt(bytes, firstContent + 4, 3)) + 1,
            number(littleNumberAt(bytes, firstContent + 7, 3)) + 1};
    }
    return {};
}

} // namespace

std::optional<PictureHeader> readWebPHeader(QByteArrayView bytes)
{
    constexpr qint64 longestHeader = firstContent + 10;
    if (bytes.size() < longestHeader)
        return {};
    PictureHeader header;
    header.storedSize = sizeIn(bytes);
    // The decoder's own rows of a picture without loss, a frame, the picture the frame is laid on.
    header.workingBytesPerPixel = 13;
    return header;
}

PictureBody inspectWebP(QByteArrayView bytes, const PictureHeader& /*header*/)
{
    PictureBody body;
    const qint64 end = littleNumberAt(bytes, 4, 4) + chunkHeaderBytes;
    body.isWhole = end <= bytes.size();
    body.isBearable = true;
    body.decoderBytes = bytes.size(); // the reader takes a copy of the file
    return body;
}

} // namespace tomely
