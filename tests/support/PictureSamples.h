// Pictures for tests, as bytes: sound ones of every format, and ones made by hand that claim, lack
// or repeat what a picture should not.

#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QImageWriter>
#include <QList>

#include <algorithm>
#include <array>

namespace tomely::samples {

inline QByteArray bigNumber(quint32 number, int count)
{
    QByteArray bytes;
    for (int shift = (count - 1) * 8; shift >= 0; shift -= 8)
        bytes.append(static_cast<char>(number >> shift));
    return bytes;
}

inline QByteArray littleNumber(quint32 number, int count)
{
    QByteArray bytes = bigNumber(number, count);
    std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

inline QImage plainImage(QSize size, QColor color, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, format);
    image.fill(color);
    return image;
}

/// Red, green, blue and yellow quarters, from the upper left clockwise: blue is the lower right.
inline QImage quarters(QSize size)
{
    constexpr std::array<QRgb, 4> colors{0xFFFF0000, 0xFF00FF00, 0xFFFFFF00, 0xFF0000FF};
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        const std::size_t first = y < size.height() / 2 ? 0 : 2;
        std::fill(row, row + size.width() / 2, colors.at(first));
        std::fill(row + size.width() / 2, row + size.width(), colors.at(first + 1));
    }
    return image;
}

/// Pixels that compress badly, the same in every run.
inline QImage noise(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    quint32 state = 12345;
    for (int y = 0; y < size.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            state = state * 1664525 + 1013904223;
            row[x] = 0xFF000000 | state >> 8;
        }
    }
    return image;
}

inline QByteArray encoded(
    const QImage& image, const QByteArray& format, int quality = -1, bool isProgressive = false)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    writer.setProgressiveScanWrite(isProgressive);
    return writer.write(image) ? bytes : QByteArray();
}

/// One frame of a GIF of one colour, its codes never longer than 3 bits.
inline QByteArray gifFrame(QSize size, int color = 1)
{
    constexpr quint32 clear = 4;
    constexpr quint32 end = 5;
    QByteArray codes;
    quint32 buffer = 0;
    int buffered = 0;
    const auto put = [&](quint32 code) {
        buffer |= code << buffered;
        buffered += 3;
        while (buffered >= 8) {
            codes.append(static_cast<char>(buffer));
            buffer >>= 8;
            buffered -= 8;
        }
    };
    for (int pixel = 0; pixel < size.width() * size.height(); ++pixel) {
        if (pixel % 2 == 0)
            put(clear); // before the codes grow by a bit
        put(static_cast<quint32>(color));
    }
    put(end);
    put(0);
    put(0);
    QByteArray frame = "," + littleNumber(0, 4)
        + littleNumber(static_cast<quint32>(size.width()), 2)
        + littleNumber(static_cast<quint32>(size.height()), 2) + QByteArray(1, '\0')
        + QByteArray(1, '\2');
    for (qsizetype start = 0; start < codes.size(); start += 255) {
        const QByteArray piece = codes.mid(start, 255);
        frame += static_cast<char>(piece.size()) + piece;
    }
    return frame + '\0';
}

/// The screen of a GIF in black, red, green and blue, before its frames.
inline QByteArray gifStart(QSize size)
{
    return "GIF89a" + littleNumber(static_cast<quint32>(size.width()), 2)
        + littleNumber(static_cast<quint32>(size.height()), 2) + QByteArray("\x91\0\0", 3)
        + QByteArray("\0\0\0\xFF\0\0\0\xFF\0\0\0\xFF", 12);
}

inline QByteArray gif(QSize size, int color = 1)
{
    return gifStart(size) + gifFrame(size, color) + ';';
}

/// `image` in `format`, "gif" among them, of which only the size is taken over.
inline QByteArray encodedIn(const QByteArray& format, const QImage& image)
{
    return format == "gif" ? gif(image.size()) : encoded(image, format, 90);
}

inline QByteArray jpegSegment(int marker, const QByteArray& content)
{
    return "\xFF" + bigNumber(static_cast<quint32>(marker), 1)
        + bigNumber(static_cast<quint32>(content.size() + 2), 2) + content;
}

/// `jpeg` with a segment behind its start.
inline QByteArray withSegment(const QByteArray& jpeg, int marker, const QByteArray& content)
{
    return jpeg.first(2) + jpegSegment(marker, content) + jpeg.sliced(2);
}

inline QByteArray exifContent(quint32 orientation, bool isBigEndian)
{
    const auto number = [isBigEndian](quint32 value, int count) {
        return isBigEndian ? bigNumber(value, count) : littleNumber(value, count);
    };
    return QByteArray("Exif\0\0", 6) + (isBigEndian ? "MM" : "II") + number(42, 2) + number(8, 4)
        + number(2, 2) // entries: a width, then the orientation
        + number(0x0100, 2) + number(4, 2) + number(1, 4) + number(7, 4) + number(0x0112, 2)
        + number(3, 2) + number(1, 4) + number(orientation, 2) + number(0, 2) + number(0, 4);
}

inline QByteArray withOrientation(
    const QByteArray& jpeg, quint32 orientation, bool isBigEndian = false)
{
    return withSegment(jpeg, 0xE1, exifContent(orientation, isBigEndian));
}

/// A JPEG of 8 by 8 pixels of one colour in four components, as the printing trade makes them:
/// cyan, magenta, yellow and black, each stored as 255 less the ink.
inline QByteArray cmykJpeg(std::array<int, 4> inks)
{
    QByteArray codes;
    quint32 buffer = 0;
    int buffered = 0;
    const auto put = [&](quint32 bits, int count) {
        for (int bit = count - 1; bit >= 0; --bit) {
            buffer = buffer << 1 | (bits >> bit & 1);
            if (++buffered == 8) {
                codes.append(static_cast<char>(buffer));
                if ((buffer & 0xFF) == 0xFF)
                    codes.append('\0');
                buffered = 0;
            }
        }
    };
    for (const int ink : inks) {
        const int mean = (255 - ink - 128) * 8;
        int category = 0;
        while (std::abs(mean) >> category)
            ++category;
        put(static_cast<quint32>(category), 4);
        put(static_cast<quint32>(mean < 0 ? mean + (1 << category) - 1 : mean), category);
        put(0, 1); // no other coefficient
    }
    put(0x7F, 7);
    QByteArray components;
    QByteArray scanned;
    for (char id = 1; id <= 4; ++id) {
        components += QByteArray{} + id + '\x11' + '\0';
        scanned += QByteArray{} + id + '\0';
    }
    QByteArray categories;
    for (char category = 0; category < 12; ++category)
        categories += category;
    const QByteArray lengths = QByteArray(3, '\0') + '\x0C' + QByteArray(12, '\0');
    return QByteArray("\xFF\xD8") + jpegSegment(0xEE, QByteArray("Adobe\0\x64\0\0\0\0\0", 12))
        + jpegSegment(0xDB, '\0' + QByteArray(64, '\1'))
        + jpegSegment(0xC0, QByteArray("\x08\0\x08\0\x08\x04", 6) + components)
        + jpegSegment(0xC4, '\0' + lengths + categories)
        + jpegSegment(0xC4, '\x10' + QByteArray("\1") + QByteArray(15, '\0') + '\0')
        + jpegSegment(0xDA, '\4' + scanned + QByteArray("\0\x3F\0", 3)) + codes
        + QByteArray("\xFF\xD9");
}

/// Where the frame header of a JPEG begins.
inline qsizetype jpegFrame(const QByteArray& jpeg)
{
    qsizetype at = 2;
    const auto byte = [&jpeg](qsizetype index) {
        return static_cast<quint8>(jpeg.at(index));
    };
    while (byte(at + 1) < 0xC0 || byte(at + 1) > 0xC2)
        at += 2 + byte(at + 2) * 256 + byte(at + 3);
    return at;
}

/// A progressive JPEG whose last scan comes `count` times more.
inline QByteArray jpegOfScans(QSize size, int count)
{
    const QByteArray jpeg = encoded(plainImage(size, Qt::gray), "jpeg", 50, true);
    const qsizetype scan = jpeg.lastIndexOf("\xFF\xDA");
    const qsizetype end = jpeg.size() - 2;
    return jpeg.first(end) + jpeg.sliced(scan, end - scan).repeated(count) + jpeg.sliced(end);
}

inline quint32 checksum(const QByteArray& bytes)
{
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum & 1 ? sum >> 1 ^ 0xEDB88320 : sum >> 1;
    }
    return ~sum;
}

inline QByteArray pngChunk(const QByteArray& name, const QByteArray& content)
{
    return bigNumber(static_cast<quint32>(content.size()), 4) + name + content
        + bigNumber(checksum(name + content), 4);
}

/// zlib's form of `bytes`.
inline QByteArray deflated(const QByteArray& bytes)
{
    return qCompress(bytes, 9).sliced(4); // without the length that the toolkit writes in front
}

/// A PNG of grey pixels, of `depth` bits each, over the given packed rows.
inline QByteArray png(QSize size, const QByteArray& packedRows, const QByteArray& extraChunks = {})
{
    return QByteArray("\x89PNG\r\n\x1A\n")
        + pngChunk("IHDR",
            bigNumber(static_cast<quint32>(size.width()), 4)
                + bigNumber(static_cast<quint32>(size.height()), 4) + QByteArray("\x08\0\0\0\0", 5))
        + extraChunks + pngChunk("IDAT", packedRows) + pngChunk("IEND", {});
}

struct TiffEntry {
    quint32 tag = 0;
    quint32 value = 0; // or where the values are
    quint32 count = 1;
};

/// A TIFF in little-endian order: header, `content` at offset 8, then a directory of LONG values,
/// and SHORT ones where there are several.
inline QByteArray tiff(const QByteArray& content, const QList<TiffEntry>& entries)
{
    QByteArray bytes = QByteArray("II*\0", 4)
        + littleNumber(static_cast<quint32>(8 + content.size()), 4) + content
        + littleNumber(static_cast<quint32>(entries.size()), 2);
    for (const TiffEntry& entry : entries) {
        bytes += littleNumber(entry.tag, 2) + littleNumber(entry.count > 1 ? 3 : 4, 2)
            + littleNumber(entry.count, 4) + littleNumber(entry.value, 4);
    }
    return bytes + littleNumber(0, 4);
}

/// A grey TIFF of one strip without compression.
inline QByteArray greyTiff(quint32 width, quint32 height, const QByteArray& content)
{
    return tiff(content,
        {{256, width}, {257, height}, {258, 8}, {259, 1}, {262, 1}, {273, 8}, {277, 1},
            {278, height}, {279, static_cast<quint32>(content.size())}});
}

/// A grey TIFF of one tile of the given sides.
inline QByteArray tiledTiff(quint32 width, quint32 height, quint32 tile, const QByteArray& content)
{
    return tiff(content,
        {{256, width}, {257, height}, {258, 8}, {259, 1}, {262, 1}, {277, 1}, {322, tile},
            {323, tile}, {324, 8}, {325, static_cast<quint32>(content.size())}});
}

/// A small picture of `format` whose header claims another size.
inline QByteArray claiming(const QByteArray& format, quint32 width, quint32 height)
{
    const QImage image = plainImage(QSize(16, 16), Qt::red);
    if (format == "jpeg") {
        QByteArray jpeg = encoded(image, "jpeg");
        jpeg.replace(jpegFrame(jpeg) + 5, 4, bigNumber(height, 2) + bigNumber(width, 2));
        return jpeg;
    }
    if (format == "png")
        return png(QSize(int(width), int(height)), deflated(QByteArray(1000, '\0')));
    if (format == "gif")
        return gifStart(QSize(int(width), int(height))) + gifFrame(QSize(2, 2)) + ';';
    if (format == "bmp") {
        QByteArray bmp = encoded(image, "bmp");
        return bmp.replace(18, 8, littleNumber(width, 4) + littleNumber(height, 4));
    }
    if (format == "webp") {
        const QByteArray simple = encoded(image, "webp").sliced(12);
        const QByteArray chunks = "VP8X" + littleNumber(10, 4) + littleNumber(0, 4)
            + littleNumber(width - 1, 3) + littleNumber(height - 1, 3) + simple;
        return "RIFF" + littleNumber(static_cast<quint32>(chunks.size() + 4), 4) + "WEBP" + chunks;
    }
    return greyTiff(width, height, QByteArray(256, '\0'));
}

} // namespace tomely::samples
