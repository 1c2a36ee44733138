#include "model/PictureTiff.h"

#include "model/PictureBytes.h"
#include "model/PictureLimits.h"

#include <algorithm>
#include <array>

namespace tomely {

namespace {

enum class Tag : quint32 {
    Width = 256,
    Height = 257,
    BitsPerSample = 258,
    Compression = 259,
    StripOffsets = 273,
    Orientation = 274,
    SamplesPerPixel = 277,
    RowsPerStrip = 278,
    StripByteCounts = 279,
    PlanarConfiguration = 284,
    TileWidth = 322,
    TileHeight = 323,
    TileOffsets = 324,
    TileByteCounts = 325
};

constexpr qint64 headerBytes = 8;
constexpr qint64 entryBytes = 12;

struct Entry {
    quint32 type = 0;
    qint64 count = 0; // 0 when the entry is absent
    qint64 values = 0; // where they are
};

// The first directory of the file: all pictures but the first are left alone.
class Directory {
public:
    explicit Directory(QByteArrayView bytes)
        : m_bytes(bytes)
        , m_order(bytes.startsWith("II") ? ByteOrder::LittleEndian : ByteOrder::BigEndian)
        , m_start(number(4, 4))
    {
        const qint64 wholeEntries = (bytes.size() - m_start - 2) / entryBytes;
        m_entries = std::min<qint64>(number(m_start, 2), std::max<qint64>(wholeEntries, 0));
    }

    bool isPresent() const { return m_start >= headerBytes && m_entries > 0; }

    Entry entry(Tag tag) const
    {
        for (qint64 index = 0; index < m_entries; ++index) {
            const qint64 start = m_start + 2 + index * entryBytes;
            if (number(start, 2) != static_cast<quint32>(tag))
                continue;
            Entry found{number(start + 2, 2), number(start + 4, 4), start + 8};
            constexpr qint64 inlineBytes = 4;
            if (found.count * typeBytes(found.type) > inlineBytes)
                found.values = number(start + 8, 4);
            return found;
        }
        return {};
    }

    // True when the entry's values lie within the file and are of a type that counts.
    bool isReadable(const Entry& entry) const
    {
        const int bytes = typeBytes(entry.type);
        return bytes > 0 && entry.count > 0 && entry.values + entry.count * bytes <= m_bytes.size();
    }

    qint64 value(const Entry& entry, qint64 index) const
    {
        const int bytes = typeBytes(entry.type);
        return number(entry.values + index * bytes, bytes);
    }

    qint64 firstValue(Tag tag, qint64 absent) const
    {
        const Entry found = entry(tag);
        return isReadable(found) ? value(found, 0) : absent;
    }

    // The largest of the first few values: one for each kind of sample.
    qint64 largestValue(Tag tag, qint64 absent) const
    {
        const Entry found = entry(tag);
        if (!isReadable(found))
            return absent;
        qint64 largest = 0;
        for (qint64 index = 0; index < std::min<qint64>(found.count, 16); ++index)
            largest = std::max(largest, value(found, index));
        return largest;
    }

private:
    // 0 for types that neither count nor point.
    static int typeBytes(quint32 type)
    {
        switch (type) {
        case 1: // BYTE
            return 1;
        case 3: // SHORT
            return 2;
        case 4: // LONG
            return 4;
        default:
            return 0;
        }
    }

    quint32 number(qint64 offset, int count) const
    {
        return numberAt(m_bytes, offset, count, m_order);
    }

    QByteArrayView m_bytes;
    ByteOrder m_order;
    qint64 m_start = 0;
    qint64 m_entries = 0;
};

// What scanners, cameras and painting programs write: none, fax, LZW, JPEG, Deflate, PackBits. The
// decoder knows a dozen more, which are slow, old or rarely tried.
bool isUsualCompression(qint64 compression)
{
    constexpr std::array<qint64, 9> usual{1, 2, 3, 4, 5, 7, 8, 32773, 32946};
    return std::find(usual.begin(), usual.end(), compression) != usual.end();
}

qint64 dividedUp(qint64 dividend, qint64 divisor)
{
    return (dividend + divisor - 1) / divisor;
}

// How the pixels are cut up: into strips of whole rows, or into tiles.
struct Pieces {
    qint64 width = 0;
    qint64 height = 0;
    qint64 planes = 1; // one for each kind of sample, or one for all
    qint64 count = 0;
    qint64 bytes = 0; // of one, unpacked, in all planes
    Entry offsets;
    Entry byteCounts;
};

Pieces readPieces(const Directory& directory, QSize size)
{
    Pieces pieces;
    const bool isTiled =
        directory.entry(Tag::TileWidth).count > 0 || directory.entry(Tag::TileHeight).count > 0;
    if (isTiled) {
        pieces.width = directory.firstValue(Tag::TileWidth, 0);
        pieces.height = directory.firstValue(Tag::TileHeight, 0);
        pieces.offsets = directory.entry(Tag::TileOffsets);
        pieces.byteCounts = directory.entry(Tag::TileByteCounts);
    } else {
        pieces.width = size.width();
        pieces.height =
            std::min<qint64>(directory.firstValue(Tag::RowsPerStrip, size.height()), size.height());
    }
    if (pieces.offsets.count == 0) {
        pieces.offsets = directory.entry(Tag::StripOffsets);
        pieces.byteCounts = directory.entry(Tag::StripByteCounts);
    }
    constexpr qint64 mostSide = 1 << 24; // far above what is let through, far below an overflow
    if (pieces.width < 1 || pieces.height < 1 || pieces.width > mostSide
        || pieces.height > mostSide)
        return {};
    const qint64 samples = directory.firstValue(Tag::SamplesPerPixel, 1);
    const qint64 bits = directory.largestValue(Tag::BitsPerSample, 1);
    constexpr qint64 planesApart = 2;
    if (directory.firstValue(Tag::PlanarConfiguration, 1) == planesApart)
        pieces.planes = samples;
    pieces.bytes = dividedUp(pieces.width * pieces.height, 8) * bits * samples;
    pieces.count = dividedUp(size.width(), pieces.width) * dividedUp(size.height(), pieces.height)
        * pieces.planes;
    return pieces;
}

} // namespace

std::optional<PictureHeader> readTiffHeader(QByteArrayView bytes)
{
    const Directory directory(bytes);
    if (!directory.isPresent())
        return {};
    const qint64 width = directory.firstValue(Tag::Width, 0);
    const qint64 height = directory.firstValue(Tag::Height, 0);
    const qint64 samples = directory.firstValue(Tag::SamplesPerPixel, 1);
    const qint64 bits = directory.largestValue(Tag::BitsPerSample, 1);
    constexpr qint64 mostSamples = 16; // four colours, transparency and some more that are left out
    constexpr qint64 mostBits = 64;
    if (std::max(width, height) > PictureLimits::MaximumSide || samples > mostSamples
        || bits > mostBits || !isUsualCompression(directory.firstValue(Tag::Compression, 1)))
        return {};
    PictureHeader header;
    header.storedSize = QSize(static_cast<int>(width), static_cast<int>(height));
    header.transformation =
        transformationOf(static_cast<quint32>(directory.firstValue(Tag::Orientation, 1)));
    // As indices and in 32 bits, or in 32 bits alone; deep colours have 8 or 16 bytes beside.
    header.workingBytesPerPixel = bits > 16 ? 20 : bits > 8 ? 12 : 5;
    if (header.isTurned())
        header.workingBytesPerPixel += 4;
    return header;
}

PictureBody inspectTiff(QByteArrayView bytes, const PictureHeader& header)
{
    const Directory directory(bytes);
    const Pieces pieces = readPieces(directory, header.storedSize);
    PictureBody body;
    if (pieces.count == 0 || !directory.isReadable(pieces.offsets)
        || !directory.isReadable(pieces.byteCounts))
        return body;
    const qint64 listed = std::min(pieces.offsets.count, pieces.byteCounts.count);
    bool isWhole = listed >= pieces.count;
    qint64 packedBytes = 0;
    qint64 largestPiece = 0;
    for (qint64 index = 0; index < std::min(listed, pieces.count); ++index) {
        const qint64 length = directory.value(pieces.byteCounts, index);
        packedBytes += length;
        largestPiece = std::max(largestPiece, length);
        isWhole = isWhole && length > 0
            && directory.value(pieces.offsets, index) + length <= bytes.size();
    }
    body.isWhole = isWhole;
    // Tiles reach over the picture's edge, and pieces may share their bytes, but neither without
    // end: every piece is unpacked in full.
    constexpr qint64 oneTile = 1 << 24;
    body.isBearable = pieces.count <= PictureLimits::MaximumTiffPieces
        && pieces.count <= bytes.size() && packedBytes <= 4 * bytes.size()
        && pieces.count * pieces.width * pieces.height
            <= 4 * header.pixels() * pieces.planes + oneTile;
    // A piece packed and unpacked, and the records of all.
    body.decoderBytes =
        pieces.bytes + std::min<qint64>(largestPiece, bytes.size()) + 64 * pieces.count;
    return body;
}

} // namespace tomely
