#include "platform/ArchiveCursor.h"

#include "platform/ArchiveError.h"

#include <bit>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace tomely {

void ArchiveCursor::failAtEnd() const
{
    throw ArchiveError(m_offset, u"the stream ends too early"_s);
}

void ArchiveCursor::failForBytes(qint64 count) const
{
    throw ArchiveError(
        m_offset, u"a value of %1 bytes with %2 bytes left"_s.arg(count).arg(bytesLeft()));
}

void ArchiveCursor::failForLength(qint64 start, qint64 length) const
{
    if (length < 0)
        throw ArchiveError(start, u"a negative length"_s);
    throw ArchiveError(start, u"a length of %1 with %2 bytes left"_s.arg(length).arg(bytesLeft()));
}

template <class Number>
Number ArchiveCursor::takeRaw()
{
    const QByteArrayView bytes = takeBytes(sizeof(Number));
    return m_bigEndian ? qFromBigEndian<Number>(bytes.data())
                       : qFromLittleEndian<Number>(bytes.data());
}

qint64 ArchiveCursor::takeLongerInteger(Sign sign)
{
    const qint64 start = m_offset;
    const quint8 lead = takeByte();
    if (lead == archive::TwoByteInteger) {
        const quint16 value = takeRaw<quint16>();
        return sign == Sign::Signed ? qint64(static_cast<qint16>(value)) : qint64(value);
    }
    if (lead == archive::FourByteInteger) {
        const quint32 value = takeRaw<quint32>();
        return sign == Sign::Unsigned ? qint64(value) : qint64(static_cast<qint32>(value));
    }
    throw ArchiveError(start, u"byte 0x%1 where an integer was expected"_s.arg(lead, 2, 16));
}

double ArchiveCursor::takeReal(RealWidth width)
{
    if (peekByte() != archive::Real)
        return static_cast<double>(takeInteger());
    ++m_offset;
    return width == RealWidth::Float ? double(std::bit_cast<float>(takeRaw<quint32>()))
                                     : std::bit_cast<double>(takeRaw<quint64>());
}

} // namespace tomely
