// A place in an archive's bytes and what can be read there without knowing any table: raw bytes,
// and integers, lengths and reals in the stream's byte order. Nothing is read past the end.

#pragma once

#include "platform/ArchiveFormat.h"

#include <QByteArrayView>

namespace tomely {

class ArchiveCursor {
public:
    /// How the bytes of an integer longer than one byte are understood.
    enum class Sign {
        Signed,
        Length, // unsigned in two bytes, signed in four
        Unsigned,
    };

    enum class RealWidth { Float, Double };

    /// At the first byte, little-endian. The bytes must outlive the cursor.
    explicit ArchiveCursor(QByteArrayView data) : m_data(data) { }

    void setBigEndian(bool bigEndian) { m_bigEndian = bigEndian; }

    qint64 offset() const { return m_offset; }

    qint64 size() const { return m_data.size(); }

    qint64 bytesLeft() const { return m_data.size() - m_offset; }

    /// To an offset that has been read before.
    void moveTo(qint64 offset) { m_offset = offset; }

    // Each of the following throws ArchiveError when the bytes end before the value does.

    /// The next byte, without taking it.
    quint8 peekByte() const;
    quint8 takeByte();

    /// The next bytes, seen where they stand. count is not negative.
    QByteArrayView takeBytes(qint64 count);

    /// An integer of one, two or four bytes; throws ArchiveError when none stands here.
    qint64 takeInteger(Sign sign = Sign::Signed);

    /// A number of bytes; throws ArchiveError when it is negative or more than are left.
    qint64 takeLength();

    /// A real, written as one or as an integer; throws ArchiveError when neither stands here.
    double takeReal(RealWidth width);

private:
    template <class Number>
    Number takeRaw();

    qint64 takeLongerInteger(Sign sign);
    [[noreturn]] void failAtEnd() const;
    [[noreturn]] void failForBytes(qint64 count) const;
    [[noreturn]] void failForLength(qint64 start, qint64 length) const;

    QByteArrayView m_data;
    qint64 m_offset = 0;
    bool m_bigEndian = false;
};

// A large archive is read byte by byte, nearly all of it in integers of one byte.

inline quint8 ArchiveCursor::peekByte() const
{
    if (m_offset >= m_data.size()) [[unlikely]]
        failAtEnd();
    return static_cast<quint8>(m_data.data()[m_offset]);
}

inline quint8 ArchiveCursor::takeByte()
{
    const quint8 byte = peekByte();
    ++m_offset;
    return byte;
}

inline qint64 ArchiveCursor::takeInteger(Sign sign)
{
    const int byte = peekByte();
    const int value = byte <= archive::LargestByteInteger ? byte : byte - 0x100;
    if (value < archive::SmallestByteInteger) [[unlikely]]
        return takeLongerInteger(sign);
    ++m_offset;
    return value;
}

inline QByteArrayView ArchiveCursor::takeBytes(qint64 count)
{
    if (count > bytesLeft()) [[unlikely]]
        failForBytes(count);
    const QByteArrayView bytes(m_data.data() + m_offset, count);
    m_offset += count;
    return bytes;
}

inline qint64 ArchiveCursor::takeLength()
{
    const qint64 start = m_offset;
    const qint64 length = takeInteger(Sign::Length);
    if (length < 0 || length > bytesLeft()) [[unlikely]]
        failForLength(start, length);
    return length;
}

} // namespace tomely
