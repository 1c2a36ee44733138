// Streams written by hand, byte for byte, for the tests of the archive classes.
#pragma once

#include <QByteArray>

namespace tomely::samples {

// From hexadecimal digits, spaced as one likes, and 'texts' in single quotes.
inline QByteArray fromHex(const QByteArray& description)
{
    QByteArray bytes;
    const QList<QByteArray> pieces = description.split('\'');
    for (qsizetype i = 0; i < pieces.size(); ++i)
        bytes += i % 2 == 0 ? QByteArray::fromHex(pieces[i]) : pieces[i];
    return bytes;
}

inline QByteArray littleEndian(const QByteArray& description)
{
    return fromHex("04 0B 'streamtyped' 81 E8 03" + description);
}

inline QByteArray bigEndian(const QByteArray& description)
{
    return fromHex("04 0B 'typedstream' 81 03 E8" + description);
}

// The text "string value" alone.
inline QByteArray oneString()
{
    return fromHex("04 0B 73 74 72 65 61 6D 74 79 70 65 64 81 E8 03"
                   "84 01 40 84 84 84 08 4E 53 53 74 72 69 6E 67 01 84 84 08 4E 53 4F 62 6A 65 63"
                   "74 00 85 84 01 2B 0C 73 74 72 69 6E 67 20 76 61 6C 75 65 86");
}

// How a file begins: the blocks 4 and 2, and of a dictionary of two entries the first key, "1".
inline QByteArray beginningOfFile()
{
    return fromHex("04 0B 73 74 72 65 61 6D 74 79 70 65 64 81 E8 03"
                   "84 01 2B 04 00 00 00 04  92 04 00 00 00 02  84 01 40 84"
                   "84 84 13 'NSMutableDictionary' 00 84 84 0C 'NSDictionary' 00"
                   "84 84 08 'NSObject' 00 85 84 01 69 02"
                   "93 84 84 84 08 'NSString' 01 95 92 01 31 86");
}

// The block 4; a dictionary of 42 and 44 to one "A" and of 300 to "é"; four bytes of data; nil.
inline QByteArray wholeStream()
{
    return fromHex(
        "04 0B 73 74 72 65 61 6D 74 79 70 65 64 81 E8 03 84 01 2B 04 00 00 00 04 84 01 40 84"
        "84 84 13 4E 53 4D 75 74 61 62 6C 65 44 69 63 74 69 6F 6E 61 72 79 00 84 84 0C 4E"
        "53 44 69 63 74 69 6F 6E 61 72 79 00 84 84 08 4E 53 4F 62 6A 65 63 74 00 85 84 01"
        "69 03 93 84 84 84 08 4E 53 4E 75 6D 62 65 72 00 84 84 07 4E 53 56 61 6C 75 65 00"
        "95 84 01 2A 84 97 97 2A 86 93 84 84 84 08 4E 53 53 74 72 69 6E 67 01 95 92 01 41"
        "86 93 84 97 9A 99 97 2C 86 93 9A 93 84 97 9A 99 97 81 2C 01 86 93 84 9B 92 02 C3"
        "A9 86 86 93 84 84 84 06 4E 53 44 61 74 61 00 95 97 04 84 04 5B 34 63 5D FF D8 FF"
        "D9 86 93 85");
}

} // namespace tomely::samples
