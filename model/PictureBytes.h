// Numbers within the bytes of a picture. What lies beyond the end reads as 0, so a caller checks
// lengths once, where they matter, and never reads outside.

#pragma once

#include <QByteArrayView>

namespace tomely {

enum class ByteOrder { LittleEndian, BigEndian };

/// The number of `count` bytes (1 to 4) at `offset`; 0 when not all of them are there.
inline quint32 numberAt(QByteArrayView bytes, qint64 offset, int count, ByteOrder order)
{
    if (offset < 0 || offset > bytes.size() - count)
        return 0;
    quint32 number = 0;
    for (int index = 0; index < count; ++index) {
        const int place = order == ByteOrder::BigEndian ? index : count - 1 - index;
        number = number << 8 | static_cast<quint8>(bytes[offset + place]);
    }
    return number;
}

inline quint32 bigNumberAt(QByteArrayView bytes, qint64 offset, int count)
{
    return numberAt(bytes, offset, count, ByteOrder::BigEndian);
}

inline quint32 littleNumberAt(QByteArrayView bytes, qint64 offset, int count)
{
    return numberAt(bytes, offset, count, ByteOrder::LittleEndian);
}

} // namespace tomely
