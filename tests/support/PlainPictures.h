// Encoded pictures of one colour, for tests to which it does not matter what is to be seen.

#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QImage>

namespace tomely::samples {

/// `format` as the toolkit's image writer calls it.
inline QByteArray plainPicture(const QColor& color, QSize size, const char* format = "JPEG")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

} // namespace tomely::samples
