#include "model/PicturePng.h"

#include "model/PictureBytes.h"

#include <algorithm>
#include <array>

namespace tomely {

namespace {

constexpr qint64 signatureBytes = 8;
constexpr qint64 frameBytes = 12; // length, name and checksum of a chunk

constexpr qint64 widthAt = signatureBytes + 8;
constexpr qint64 heightAt = widthAt + 4;
constexpr qint64 depthAt = heightAt + 4;

struct Chunk {
    QByteArrayView all; // length, name, content, checksum
    QByteArrayView name;
};

// The chunk at `offset`; nothing when it is not whole.
std::optional<Chunk> chunkAt(QByteArrayView bytes, qint64 offset)
{
    const qint64 left = bytes.size() - offset;
    const qint64 length = bigNumberAt(bytes, offset, 4);
    if (left < frameBytes || length > left - frameBytes)
        return {};
    return Chunk{bytes.sliced(offset, frameBytes + length), bytes.sliced(offset + 4, 4)};
}

// What the rows of a picture take unpacked, with the byte in front of each; no less than its own
// kind of colours does.
qint64 largestRows(QByteArrayView bytes, const PictureHeader& header)
{
    constexpr qint64 mostSamples = 4;
    const qint64 bits = bigNumberAt(bytes, depthAt, 1) * mostSamples;
    return header.storedSize.height() * (header.storedSize.width() * bits / 8 + 2);
}

bool isNeeded(QByteArrayView name)
{
    constexpr std::array<QByteArrayView, 9> needed{
        "IHDR", "PLTE", "IDAT", "IEND", "tRNS", "gAMA", "cHRM", "sRGB", "iCCP"};
    return std::find(needed.begin(), needed.end(), name) != needed.end();
}

} // namespace

std::optional<PictureHeader> readPngHeader(QByteArrayView bytes)
{
    const std::optional<Chunk> chunk = chunkAt(bytes, signatureBytes);
    if (!chunk || chunk->name != "IHDR")
        return {};
    PictureHeader header;
    // A number beyond 31 bits is against the format and comes out negative, which is no size.
    header.storedSize = QSize(static_cast<int>(bigNumberAt(bytes, widthAt, 4)),
        static_cast<int>(bigNumberAt(bytes, heightAt, 4)));
    // As indices and in 32 bits, or in 32 bits alone; grey of 16 bits has 8 bytes a pixel beside
    // its own 2 while its colour space changes.
    header.workingBytesPerPixel = bigNumberAt(bytes, depthAt, 1) == 16 ? 12 : 5;
    return header;
}

PictureBody inspectPng(QByteArrayView bytes, const PictureHeader& header)
{
    PictureBody body;
    qint64 offset = signatureBytes;
    qint64 neededBytes = signatureBytes;
    qint64 packedBytes = 0;
    while (const std::optional<Chunk> chunk = chunkAt(bytes, offset)) {
        offset += chunk->all.size();
        if (isNeeded(chunk->name))
            neededBytes += chunk->all.size();
        if (chunk->name == "IDAT")
            packedBytes += chunk->all.size();
        if (chunk->name == "IEND") {
            body.isWhole = true;
            break;
        }
    }
    // The decoder unpacks whatever follows the last row to the end, a thousandfold of its length.
    body.isBearable = packedBytes <= 2 * largestRows(bytes, header) + 100'000;
    // The same without extras, and a profile of at most 8 MB before and after it is unpacked.
    body.decoderBytes = (neededBytes < bytes.size() ? neededBytes : 0) + 20'000'000;
    return body;
}

QByteArray withoutExtras(const QByteArray& bytes)
{
    QByteArrayView view(bytes);
    qint64 neededBytes = signatureBytes;
    qint64 offset = signatureBytes;
    while (const std::optional<Chunk> chunk = chunkAt(view, offset)) {
        offset += chunk->all.size();
        if (isNeeded(chunk->name))
            neededBytes += chunk->all.size();
    }
    // What is left is a chunk that is cut off; the pixels may be in it.
    const QByteArrayView rest = view.sliced(offset);
    if (neededBytes + rest.size() == bytes.size())
        return bytes;
    QByteArray kept;
    kept.reserve(neededBytes + rest.size());
    kept.append(view.first(signatureBytes));
    offset = signatureBytes;
    while (const std::optional<Chunk> chunk = chunkAt(view, offset)) {
        offset += chunk->all.size();
        if (isNeeded(chunk->name))
            kept.append(chunk->all);
    }
    kept.append(rest);
    return kept;
}

} // namespace tomely
