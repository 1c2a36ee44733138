// A picture of a book's cover or of whatever else somebody gives: its encoded bytes as they came
// and its true size. It is decoded no larger than somebody needs it, and never in more memory than
// a picture of a book is worth (see model/PictureLimits.h).

#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace tomely {

/// What to make of a picture of which a part is missing.
enum class MissingPart { Refused, Shown };

class Picture {
public:
    /// No picture.
    Picture() = default;

    /// A picture from outside: JPEG, PNG, GIF (its first frame), BMP, WebP or TIFF, told by its
    /// content. Not valid when it is none of them, damaged, cut off, or larger than the limits. All
    /// of it is decoded once to know.
    static Picture fromEncoded(const QByteArray& bytes);

    /// A picture that a collection holds: the same limits, but a damaged one shows what is left of
    /// it, since there is no better one. Reads only its header.
    static Picture fromStored(const QByteArray& bytes);

    /// A picture that another program or part decoded. Not valid when it is null or larger than the
    /// limits. Any resolution and device pixel ratio of it are forgotten.
    static Picture fromImage(const QImage& image);

    bool isValid() const { return !m_size.isEmpty(); }

    /// Width and height in pixels as a person sees it, orientation applied; empty when not valid.
    QSize size() const { return m_size; }

    /// All of it, upright, in sRGB, without colour space, resolution or device pixel ratio; null
    /// when it is not valid or cannot be decoded.
    QImage image() const;

    /// The same, decoded only as large as is needed to show or store it within `wanted` pixels: at
    /// least as large as the picture fitted into `wanted`, unless the picture itself is smaller.
    QImage imageFor(QSize wanted) const;

private:
    QByteArray m_encoded; // null when m_image is all of it
    MissingPart m_missingPart = MissingPart::Refused;
    QSize m_size;
    QImage m_image; // decoded; all of it, or a reduced one that was made on the way
};

} // namespace tomely
