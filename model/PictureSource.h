// The bytes of a picture for a decoder, which dry up when it has worked on them for too long: a few
// bytes can stand for hours of unpacking, in ways that are not all known beforehand.

#pragma once

#include "model/PictureLimits.h"

#include <QByteArray>
#include <QIODevice>

#include <ctime>

namespace tomely {

class PictureSource : public QIODevice {
public:
    /// Open for reading; the time runs from now and is that of the processor, so that a busy
    /// machine does not lose pictures.
    explicit PictureSource(QByteArray bytes, int seconds = PictureLimits::MaximumSeconds);

    /// True when the decoder was refused bytes; whatever it made of the rest is worth nothing.
    bool isExhausted() const { return m_isExhausted; }

    bool isSequential() const override { return false; }

    qint64 size() const override { return m_bytes.size(); }

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    QByteArray m_bytes;
    std::clock_t m_end;
    bool m_isExhausted = false;
};

} // namespace tomely
