// How much a picture of a book may cost. Pictures come from web pages, drops and files of other
// people, so each limit holds against what a header claims before anything is made of it.

#pragma once

#include <QtGlobal>

namespace tomely::PictureLimits {

/// Width or height in pixels: JPEG and GIF can say no more than 65,535, and painting and scaling
/// reckon sides of 32-bit fixed point.
inline constexpr int MaximumSide = 65'000;

/// A file of a picture. An uncompressed scan of a large folded poster is half of this.
inline constexpr qint64 MaximumEncodedBytes = 200'000'000;

/// All that exists at once while a picture is decoded: its file, what the decoder allocates and the
/// pixels. With the program itself, about 80 MB with a large collection, that is below 512 MiB. A
/// photograph of 60 megapixels takes 330 MB of it.
inline constexpr qint64 MaximumWorkingBytes = 450'000'000;

/// Comments, thumbnails and profiles beside the pixels of a JPEG. The decoder keeps them and makes
/// texts of them, in several times their size; cameras write well below one megabyte.
inline constexpr qint64 MaximumMetadataBytes = 16'000'000;

/// Pixels times scans of a JPEG, since every scan goes over the whole picture and need be only a
/// few bytes long. A photograph of 60 megapixels in the usual 10 scans has 600,000,000; the
/// limit is a few seconds of work.
inline constexpr qint64 MaximumScannedPixels = 1'000'000'000;

/// What a decoder may work on one picture; the largest within the other limits takes two seconds of
/// a slow machine.
inline constexpr int MaximumSeconds = 8;

/// Strips or tiles of a TIFF, for each of which the decoder keeps a record.
inline constexpr qint64 MaximumTiffPieces = 1'000'000;

/// Side of the square into which a new picture is reduced when it is first read: a well of the
/// editor on a display of double density, so that it is not decoded again to be shown.
inline constexpr int PreviewSide = 640;

/// A turned photograph is decoded in bands of so many pixels, each turned on its own, so that it
/// never exists twice.
inline constexpr qint64 BandPixels = 12'000'000;

} // namespace tomely::PictureLimits
