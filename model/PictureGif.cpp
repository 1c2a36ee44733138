#include "model/PictureGif.h"

#include "model/PictureBytes.h"

#include <algorithm>
#include <array>

namespace tomely {

namespace {

enum Introducer : quint8 { Padding = 0x00, Extension = 0x21, Frame = 0x2C, Trailer = 0x3B };

constexpr qint64 screenBytes = 13; // signature and description of the screen

// Counts the pixels that compressed data stand for without making any.
class PixelCount {
public:
    explicit PixelCount(int rootBits) : m_rootBits(rootBits) { clear(); }

    // Takes in a byte; false when no more is wanted: the data ended or make no sense.
    bool add(quint8 byte)
    {
        m_buffer |= quint32(byte) << m_buffered;
        m_buffered += 8;
        while (m_buffered >= m_bits) {
            const quint32 code = m_buffer & ((1U << m_bits) - 1);
            m_buffer >>= m_bits;
            m_buffered -= m_bits;
            if (!addCode(code))
                return false;
        }
        return true;
    }

    qint64 pixels() const { return m_pixels; }

private:
    static constexpr int mostBits = 12;
    static constexpr quint32 mostCodes = 1U << mostBits;

    quint32 clearCode() const { return 1U << m_rootBits; }

    void clear()
    {
        m_bits = m_rootBits + 1;
        m_next = clearCode() + 2;
        m_previousLength = 0;
    }

    bool addCode(quint32 code)
    {
        if (code == clearCode()) {
            clear();
            return true;
        }
        if (code == clearCode() + 1 || code > m_next || (code == m_next && m_previousLength == 0))
            return false;
        const quint32 length = code < clearCode() ? 1
            : code == m_next                      ? m_previousLength + 1
                                                  : m_lengths.at(code);
        m_pixels += length;
        if (m_previousLength > 0 && m_next < mostCodes) {
            m_lengths.at(m_next) = m_previousLength + 1;
            ++m_next;
            if (m_next == 1U << m_bits && m_bits < mostBits)
                ++m_bits;
        }
        m_previousLength = length;
        return true;
    }

    int m_rootBits;
    int m_bits = 0;
    quint32 m_next = 0;
    quint32 m_previousLength = 0;
    std::array<quint32, mostCodes> m_lengths{};
    quint32 m_buffer = 0;
    int m_buffered = 0;
    qint64 m_pixels = 0;
};

// What follows the screen's description: blocks, of which some are chains of short pieces.
class Blocks {
public:
    explicit Blocks(QByteArrayView bytes) : m_bytes(bytes)
    {
        constexpr qint64 flags = 10;
        m_position = screenBytes + tableBytes(bigNumberAt(bytes, flags, 1));
    }

    bool isAtEnd() const { return m_position >= m_bytes.size(); }

    quint8 takeByte() { return static_cast<quint8>(bigNumberAt(m_bytes, m_position++, 1)); }

    // Left, top, width, height and the frame's own colours.
    QSize takeFrame()
    {
        const QSize size(static_cast<int>(littleNumberAt(m_bytes, m_position + 4, 2)),
            static_cast<int>(littleNumberAt(m_bytes, m_position + 6, 2)));
        m_position += 9 + tableBytes(bigNumberAt(m_bytes, m_position + 8, 1));
        return size;
    }

    // Hands out the bytes of a chain until `take` has enough; false when the chain is cut off.
    template <class Take>
    bool takeChain(Take take)
    {
        bool isWanted = true;
        while (!isAtEnd()) {
            const qint64 length = takeByte();
            if (length == 0)
                return true;
            if (length > m_bytes.size() - m_position)
                break;
            for (qint64 index = 0; isWanted && index < length; ++index)
                isWanted = take(static_cast<quint8>(m_bytes[m_position + index]));
            m_position += length;
        }
        return false;
    }

private:
    static qint64 tableBytes(quint32 flags)
    {
        constexpr quint32 hasTable = 0x80;
        return flags & hasTable ? 3 * (qint64(2) << (flags & 7)) : 0;
    }

    QByteArrayView m_bytes;
    qint64 m_position = 0;
};

// How the frame at the blocks' position fits what it says of itself.
PictureBody inspectFrame(Blocks& blocks, const PictureHeader& header)
{
    const QSize frame = blocks.takeFrame();
    const qint64 pixels = qint64(frame.width()) * frame.height();
    const int rootBits = blocks.takeByte();
    constexpr int mostRootBits = 8;
    if (rootBits < 1 || rootBits > mostRootBits)
        return {};
    // A reader goes through all data, even those beyond the frame and the screen.
    constexpr qint64 leastBound = 1 << 22; // of no weight, however small the picture is
    const qint64 most = 2 * std::max({pixels, header.pixels(), leastBound});
    PixelCount count(rootBits);
    PictureBody body;
    body.isWhole =
        blocks.takeChain([&](quint8 byte) { return count.add(byte) && count.pixels() <= most; });
    body.isWhole = body.isWhole && count.pixels() >= pixels;
    body.isBearable = count.pixels() <= most && pixels <= std::max(header.pixels(), leastBound);
    return body;
}

} // namespace

std::optional<PictureHeader> readGifHeader(QByteArrayView bytes)
{
    if (bytes.size() < screenBytes)
        return {};
    PictureHeader header;
    header.storedSize = QSize(static_cast<int>(littleNumberAt(bytes, 6, 2)),
        static_cast<int>(littleNumberAt(bytes, 8, 2)));
    // The screen that frames are laid on, and the frame that is handed out.
    header.workingBytesPerPixel = 9;
    return header;
}

PictureBody inspectGif(QByteArrayView bytes, const PictureHeader& header)
{
    Blocks blocks(bytes);
    PictureBody body;
    bool hasFrame = false;
    while (!blocks.isAtEnd()) {
        const quint8 introducer = blocks.takeByte();
        const auto skip = [](quint8) {
            return false;
        };
        if (introducer == Trailer)
            return body;
        bool isSound = introducer == Padding;
        if (introducer == Extension) {
            blocks.takeByte();
            isSound = blocks.takeChain(skip);
        } else if (introducer == Frame && !hasFrame) {
            body = inspectFrame(blocks, header);
            hasFrame = true;
            isSound = body.isWhole;
        } else if (introducer == Frame) {
            blocks.takeFrame();
            blocks.takeByte();
            isSound = blocks.takeChain(skip);
        }
        if (!isSound)
            break;
    }
    body.isWhole = false; // cut off, or something else than a block
    return body;
}

} // namespace tomely
