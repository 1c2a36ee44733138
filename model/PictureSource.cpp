#include "model/PictureSource.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tomely {

PictureSource::PictureSource(QByteArray bytes, int seconds)
    : m_bytes(std::move(bytes))
    , m_end(std::clock() + seconds * CLOCKS_PER_SEC)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 PictureSource::readData(char* data, qint64 maxSize)
{
    if (std::clock() > m_end)
        m_isExhausted = true;
    const qint64 count = std::min<qint64>(maxSize, m_bytes.size() - pos());
    // Nothing rather than an error: a decoder was seen to take -1 for a length.
    if (m_isExhausted || count <= 0)
        return 0;
    std::memcpy(data, m_bytes.constData() + pos(), static_cast<std::size_t>(count));
    return count;
}

qint64 PictureSource::writeData(const char* /*data*/, qint64 /*size*/)
{
    return -1;
}

} // namespace tomely
