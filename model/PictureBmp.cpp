#include "model/PictureBmp.h"

#include "model/PictureBytes.h"

#include <cstdlib>
#include <limits>

namespace tomely {

namespace {

constexpr qint64 fileHeaderBytes = 14;
constexpr quint32 oldestHeaderBytes = 12; // of the first version, with 16-bit sizes

enum class Compression : quint32 { None = 0, Runs8 = 1, Runs4 = 2, BitFields = 3 };

Compression compressionOf(QByteArrayView bytes)
{
    if (littleNumberAt(bytes, fileHeaderBytes, 4) == oldestHeaderBytes)
        return Compression::None;
    return static_cast<Compression>(littleNumberAt(bytes, 30, 4));
}

// Runs end with a mark. Cut off before it, the rows that are missing would be black.
bool endsItsRuns(QByteArrayView runs, bool isFourBits)
{
    qint64 position = 0;
    while (position + 2 <= runs.size()) {
        const quint32 count = littleNumberAt(runs, position, 1);
        const quint32 value = littleNumberAt(runs, position + 1, 1);
        position += 2;
        if (count > 0)
            continue;
        if (value == 1)
            return true;
        if (value == 2) {
            position += 2; // a step to the right and down
        } else if (value > 2) {
            const qint64 literal = isFourBits ? (qint64(value) + 1) / 2 : qint64(value);
            position += literal + literal % 2;
        }
    }
    return false;
}

} // namespace

std::optional<PictureHeader> readBmpHeader(QByteArrayView bytes)
{
    constexpr qint64 smallestHeader = fileHeaderBytes + oldestHeaderBytes;
    if (bytes.size() < smallestHeader)
        return {};
    PictureHeader header;
    if (littleNumberAt(bytes, fileHeaderBytes, 4) == oldestHeaderBytes) {
        header.storedSize = QSize(static_cast<int>(littleNumberAt(bytes, 18, 2)),
            static_cast<int>(littleNumberAt(bytes, 20, 2)));
    } else {
        // A negative height says that the first row is the upper one.
        const auto height = static_cast<qint32>(littleNumberAt(bytes, 22, 4));
        if (height == std::numeric_limits<qint32>::min())
            return {};
        header.storedSize =
            QSize(static_cast<qint32>(littleNumberAt(bytes, 18, 4)), std::abs(height));
    }
    // As indices and in 32 bits, or in 32 bits alone.
    header.workingBytesPerPixel = 5;
    return header;
}

PictureBody inspectBmp(QByteArrayView bytes, const PictureHeader& header)
{
    const qint64 start = littleNumberAt(bytes, 10, 4);
    const bool isOldest = littleNumberAt(bytes, fileHeaderBytes, 4) == oldestHeaderBytes;
    const qint64 bits = littleNumberAt(bytes, isOldest ? 24 : 28, 2);
    PictureBody body;
    body.isBearable = bits <= 32;
    switch (compressionOf(bytes)) {
    case Compression::None:
    case Compression::BitFields: {
        const qint64 rowBytes = (header.storedSize.width() * bits + 31) / 32 * 4;
        body.isWhole = start + rowBytes * header.storedSize.height() <= bytes.size();
        break;
    }
    case Compression::Runs8:
    case Compression::Runs4:
        body.isWhole = start <= bytes.size()
            && endsItsRuns(bytes.sliced(start), compressionOf(bytes) == Compression::Runs4);
        break;
    }
    return body;
}

} // namespace tomely
