#include "model/PictureJpeg.h"

#include "model/PictureBytes.h"
#include "model/PictureLimits.h"

#include <algorithm>
#include <cstring>

namespace tomely {

namespace {

// The second bytes of markers.
enum Marker : quint8 {
    Stuffing = 0x00, // a byte 0xFF of the compressed data
    Temporary = 0x01,
    BaselineFrame = 0xC0,
    ExtendedFrame = 0xC1,
    ProgressiveFrame = 0xC2,
    HuffmanTables = 0xC4,
    FirstArithmeticFrame = 0xC8,
    ArithmeticConditions = 0xCC,
    LastFrame = 0xCF,
    FirstRestart = 0xD0,
    LastRestart = 0xD7,
    Start = 0xD8,
    End = 0xD9,
    Scan = 0xDA,
    FirstApplication = 0xE0,
    Exif = 0xE1,
    LastApplication = 0xEF,
    Comment = 0xFE,
    Fill = 0xFF
};

bool isFrame(quint8 marker)
{
    return marker >= BaselineFrame && marker <= LastFrame && marker != HuffmanTables
        && marker != FirstArithmeticFrame && marker != ArithmeticConditions;
}

// Arithmetic coding, lossless and hierarchical pictures are not used by anything that shows or
// takes photographs, and the first is ten times slower.
bool isUsualFrame(quint8 marker)
{
    return marker == BaselineFrame || marker == ExtendedFrame || marker == ProgressiveFrame;
}

bool isMetadata(quint8 marker)
{
    return (marker >= FirstApplication && marker <= LastApplication) || marker == Comment;
}

bool standsAlone(quint8 marker)
{
    return marker == Stuffing || marker == Temporary
        || (marker >= FirstRestart && marker <= LastRestart);
}

struct Segment {
    quint8 marker = End;
    QByteArrayView content; // without the length
    bool isWhole = false;
};

// Steps from marker to marker; what is compressed lies between them and holds no marker.
class Segments {
public:
    explicit Segments(QByteArrayView bytes) : m_bytes(bytes) { }

    // Nothing at the end of the bytes.
    std::optional<Segment> next()
    {
        const std::optional<quint8> marker = nextMarker();
        if (!marker)
            return {};
        Segment segment{*marker, {}, true};
        if (*marker == Start || *marker == End)
            return segment;
        const qint64 length = bigNumberAt(m_bytes, m_position, 2);
        segment.isWhole = length >= 2 && length <= m_bytes.size() - m_position;
        if (segment.isWhole)
            segment.content = m_bytes.sliced(m_position + 2, length - 2);
        m_position = std::min<qint64>(m_position + std::max<qint64>(length, 2), m_bytes.size());
        return segment;
    }

private:
    std::optional<quint8> nextMarker()
    {
        while (m_position < m_bytes.size()) {
            const void* found = std::memchr(m_bytes.data() + m_position, Fill,
                static_cast<std::size_t>(m_bytes.size() - m_position));
            if (!found)
                break;
            m_position = static_cast<const char*>(found) - m_bytes.data() + 1;
            while (m_position < m_bytes.size() && static_cast<quint8>(m_bytes[m_position]) == Fill)
                ++m_position;
            if (m_position == m_bytes.size())
                break;
            const auto marker = static_cast<quint8>(m_bytes[m_position]);
            ++m_position;
            if (!standsAlone(marker))
                return marker;
        }
        m_position = m_bytes.size();
        return {};
    }

    QByteArrayView m_bytes;
    qint64 m_position = 0;
};

quint32 exifOrientation(QByteArrayView content)
{
    constexpr QByteArrayView signature("Exif\0\0", 6);
    if (!content.startsWith(signature))
        return 0;
    const QByteArrayView tiff = content.sliced(signature.size());
    if (!tiff.startsWith("II") && !tiff.startsWith("MM"))
        return 0;
    const ByteOrder order = tiff.startsWith("II") ? ByteOrder::LittleEndian : ByteOrder::BigEndian;
    constexpr quint32 orientationTag = 0x0112;
    constexpr quint32 shortType = 3;
    constexpr int entryBytes = 12;
    const qint64 directory = numberAt(tiff, 4, 4, order);
    const qint64 entries = numberAt(tiff, directory, 2, order);
    for (qint64 index = 0; index < entries; ++index) {
        const qint64 entry = directory + 2 + index * entryBytes;
        if (numberAt(tiff, entry, 2, order) == orientationTag
            && numberAt(tiff, entry + 2, 2, order) == shortType)
            return numberAt(tiff, entry + 8, 2, order);
    }
    return 0;
}

struct Frame {
    QSize size;
    int components = 0;
    double coefficientsPerPixel = 0; // how many numbers a scan leaves behind
    bool isUsual = false;
};

Frame readFrame(const Segment& segment)
{
    const QByteArrayView content = segment.content;
    Frame frame;
    frame.isUsual = isUsualFrame(segment.marker);
    frame.size = QSize(
        static_cast<int>(bigNumberAt(content, 3, 2)), static_cast<int>(bigNumberAt(content, 1, 2)));
    frame.components = static_cast<int>(bigNumberAt(content, 5, 1));
    constexpr int componentBytes = 3;
    int largestAcross = 1;
    int largestDown = 1;
    int samples = 0;
    for (int index = 0; index < frame.components; ++index) {
        const quint32 sampling = bigNumberAt(content, 7 + qint64(index) * componentBytes, 1);
        const int across = static_cast<int>(sampling >> 4);
        const int down = static_cast<int>(sampling & 0xF);
        largestAcross = std::max(largestAcross, across);
        largestDown = std::max(largestDown, down);
        samples += across * down;
    }
    frame.coefficientsPerPixel = double(samples) / (largestAcross * largestDown);
    return frame;
}

} // namespace

std::optional<PictureHeader> readJpegHeader(QByteArrayView bytes)
{
    Segments segments(bytes);
    PictureHeader header;
    quint32 orientation = 0;
    while (const std::optional<Segment> segment = segments.next()) {
        if (!segment->isWhole || segment->marker == End || segment->marker == Scan)
            return {};
        if (segment->marker == Exif && orientation == 0)
            orientation = exifOrientation(segment->content);
        if (!isFrame(segment->marker))
            continue;
        const Frame frame = readFrame(*segment);
        if (!frame.isUsual)
            return {};
        header.storedSize = frame.size;
        header.transformation = transformationOf(orientation);
        // Colours in place; grey ones become a second, coloured picture, and turning takes a band.
        header.workingBytesPerPixel = 5;
        return header;
    }
    return {};
}

PictureBody inspectJpeg(QByteArrayView bytes, const PictureHeader& header)
{
    PictureBody body;
    body.scans = 0;
    Segments segments(bytes);
    Frame frame;
    bool isProgressive = false;
    qint64 frames = 0;
    qint64 scannedComponents = 0;
    qint64 metadataBytes = 0;
    bool isSound = true;
    while (const std::optional<Segment> segment = segments.next()) {
        isSound = isSound && segment->isWhole;
        if (segment->marker == End) {
            body.isWhole = isSound && scannedComponents >= frame.components && frames > 0;
            break;
        }
        if (isMetadata(segment->marker)) {
            metadataBytes += segment->content.size();
        } else if (isFrame(segment->marker)) {
            ++frames;
            frame = readFrame(*segment);
            isProgressive = segment->marker == ProgressiveFrame;
        } else if (segment->marker == Scan) {
            ++body.scans;
            scannedComponents += bigNumberAt(segment->content, 0, 1);
        }
    }
    body.isBearable = frames == 1 && metadataBytes <= PictureLimits::MaximumMetadataBytes
        && body.scans * header.pixels() <= PictureLimits::MaximumScannedPixels;
    // The decoder keeps every comment and profile, and makes texts of the comments.
    body.decoderBytes = 4 * metadataBytes;
    // Scans that each bring a part of the picture are gathered as coefficients of 16 bits.
    if (isProgressive || body.scans > 1) {
        body.decoderBytes +=
            static_cast<qint64>(2 * frame.coefficientsPerPixel * double(header.pixels()));
        // It is turned as a whole, since every band would need all scans.
        if (header.isTurned())
            body.decoderBytes += 3 * header.pixels();
    }
    return body;
}

} // namespace tomely
