#include "platform/ArchiveTypes.h"

#include "platform/ArchiveError.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace tomely::archive {

namespace {

qint64 takeWholeReal(ArchiveCursor& cursor, ArchiveCursor::RealWidth width)
{
    // Up to here a double tells every whole number from the next one.
    constexpr double largest = 9007199254740992.0;
    const qint64 start = cursor.offset();
    const double real = cursor.takeReal(width);
    if (!(std::abs(real) <= largest) || real != std::trunc(real))
        throw ArchiveError(start, u"a real that is no whole number"_s);
    return static_cast<qint64>(real);
}

qint64 takeUnsigned(ArchiveCursor& cursor)
{
    const qint64 start = cursor.offset();
    const qint64 number = cursor.takeInteger(ArchiveCursor::Sign::Unsigned);
    if (number < 0)
        throw ArchiveError(start, u"a negative number of an unsigned type"_s);
    return number;
}

} // namespace

bool isIntegerType(QByteArrayView type)
{
    return type.size() == 1 && QByteArrayView("ilqsILQS").contains(type.front());
}

bool isBytesType(QByteArrayView type, qint64 count)
{
    if (type.size() < 3 || !type.startsWith('[') || !type.endsWith("c]"))
        return false;
    const QByteArrayView digits = type.sliced(1, type.size() - 3);
    const bool onlyDigits = std::all_of(
        digits.begin(), digits.end(), [](char digit) { return digit >= '0' && digit <= '9'; });
    bool fits = false;
    return onlyDigits && digits.toLongLong(&fits) == count && fits;
}

qint64 takeNumber(ArchiveCursor& cursor, QByteArrayView type)
{
    switch (type.size() == 1 ? type.front() : '\0') {
    case 's':
    case 'i':
    case 'l':
    case 'q':
        return cursor.takeInteger();
    case 'S':
    case 'I':
    case 'L':
    case 'Q':
        return takeUnsigned(cursor);
    case 'c': {
        const int byte = cursor.takeByte();
        return byte < 0x80 ? byte : byte - 0x100;
    }
    case 'C':
    case 'B':
        return cursor.takeByte();
    case 'f':
        return takeWholeReal(cursor, ArchiveCursor::RealWidth::Float);
    case 'd':
        return takeWholeReal(cursor, ArchiveCursor::RealWidth::Double);
    default:
        throw ArchiveError(
            cursor.offset(), u"a number of the unknown type %1"_s.arg(ArchiveError::quoted(type)));
    }
}

} // namespace tomely::archive
