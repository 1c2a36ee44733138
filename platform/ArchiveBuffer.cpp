#include "platform/ArchiveBuffer.h"

#include "platform/ArchiveError.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <QtEndian>
#include <utility>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr qsizetype FirstCapacity = 4096;
constexpr qsizetype LargestIntegerForm = 5;
constexpr qsizetype BytesPerCodeUnit = 3;

qsizetype integerForm(qint64 value)
{
    if (value >= archive::SmallestByteInteger && value <= archive::LargestByteInteger)
        return 1;
    const bool fitsTwoBytes =
        value >= std::numeric_limits<qint16>::min() && value <= std::numeric_limits<qint16>::max();
    return fitsTwoBytes ? 3 : LargestIntegerForm;
}

// Writes the shortest form; there is room for it.
void writeInteger(char* to, qint32 value)
{
    switch (integerForm(value)) {
    case 1:
        *to = static_cast<char>(value);
        break;
    case 3:
        *to = static_cast<char>(archive::TwoByteInteger);
        qToLittleEndian(static_cast<qint16>(value), to + 1);
        break;
    default:
        *to = static_cast<char>(archive::FourByteInteger);
        qToLittleEndian(value, to + 1);
    }
}

} // namespace

// By half again: the cost of many small pieces stays linear.
void ArchiveBuffer::grow(qsizetype needed)
{
    m_bytes.resize(std::max({needed, m_capacity + m_capacity / 2, FirstCapacity}));
    m_begin = m_bytes.data();
    m_capacity = m_bytes.size();
}

void ArchiveBuffer::appendBytes(QByteArrayView bytes)
{
    if (bytes.isEmpty())
        return;
    std::memcpy(reserve(bytes.size()), bytes.data(), static_cast<std::size_t>(bytes.size()));
    m_size += bytes.size();
}

void ArchiveBuffer::appendLongerInteger(qint32 value)
{
    writeInteger(reserve(LargestIntegerForm), value);
    m_size += integerForm(value);
}

void ArchiveBuffer::appendLength(qsizetype length)
{
    if (length > LargestInteger)
        throw ArchiveError(m_size, u"a length of %1 that is too large to write"_s.arg(length));
    appendInteger(static_cast<qint32>(length));
}

// The length stands before the text but is known only after it: the text is written where it would
// begin if it were as long as it can be, which for a short one is its place, and moved otherwise.
void ArchiveBuffer::appendText(QStringView text)
{
    const qsizetype room =
        std::max(text.size() * BytesPerCodeUnit, m_encoder.requiredSpace(text.size()));
    const qsizetype guessedForm = integerForm(std::min<qint64>(room, LargestInteger));
    char* const start = reserve(guessedForm + room);
    const char* const end = m_encoder.appendToBuffer(start + guessedForm, text);
    const qsizetype length = end - (start + guessedForm);
    if (length > LargestInteger)
        throw ArchiveError(m_size, u"a text of %1 bytes that is too long to write"_s.arg(length));
    const qsizetype form = integerForm(length);
    if (form != guessedForm)
        std::memmove(start + form, start + guessedForm, static_cast<std::size_t>(length));
    writeInteger(start, static_cast<qint32>(length));
    m_size += form + length;
}

QByteArray ArchiveBuffer::take()
{
    m_bytes.truncate(m_size);
    m_begin = nullptr;
    m_capacity = 0;
    m_size = 0;
    return std::exchange(m_bytes, {});
}

} // namespace tomely
