// The growing bytes of an archive that is being written, and the forms of numbers and texts in it.
// It knows nothing of groups, objects or tables.

#pragma once

#include "platform/ArchiveFormat.h"

#include <QByteArray>
#include <QStringConverter>
#include <QStringView>

namespace tomely {

class ArchiveBuffer {
public:
    /// The largest length, count or number that the stream's integers can say.
    static constexpr qint64 LargestInteger = 0x7FFFFFFF;

    qsizetype size() const { return m_size; }

    const char* data() const { return m_begin; }

    /// Gives up what was written from there on.
    void truncate(qsizetype size) { m_size = size; }

    void appendByte(quint8 byte);
    void appendBytes(QByteArrayView bytes);

    /// In the shortest form that fits.
    void appendInteger(qint32 value);

    /// A number of bytes or entries; throws ArchiveError when it is above LargestInteger.
    void appendLength(qsizetype length);

    /// The number of bytes and then the text in UTF-8; a surrogate without its other half becomes
    /// U+FFFD. Throws ArchiveError as appendLength does.
    void appendText(QStringView text);

    /// The bytes; the buffer is empty then.
    QByteArray take();

private:
    char* reserve(qsizetype count);
    void grow(qsizetype needed);
    void appendLongerInteger(qint32 value);

    QByteArray m_bytes; // sized ahead of what is written, and never shared
    char* m_begin =
        nullptr; // of m_bytes, which would otherwise look at every use whether it is shared
    qsizetype m_capacity = 0;
    qsizetype m_size = 0;
    QStringEncoder m_encoder{QStringEncoder::Utf8, QStringEncoder::Flag::Stateless};
};

// A large archive is written byte by byte, nearly all of it in integers of one byte.

/// Room for so many more bytes.
inline char* ArchiveBuffer::reserve(qsizetype count)
{
    if (count > m_capacity - m_size) [[unlikely]]
        grow(m_size + count);
    return m_begin + m_size;
}

inline void ArchiveBuffer::appendByte(quint8 byte)
{
    *reserve(1) = static_cast<char>(byte);
    ++m_size;
}

inline void ArchiveBuffer::appendInteger(qint32 value)
{
    if (value < archive::SmallestByteInteger || value > archive::LargestByteInteger) {
        appendLongerInteger(value);
        return;
    }
    *reserve(1) = static_cast<char>(value);
    ++m_size;
}

} // namespace tomely
