// The bytes and names that the archive's writer and reader must agree on. Nothing here knows how
// either works.

#pragma once

#include <QByteArrayView>
#include <QLatin1StringView>

namespace tomely::archive {

constexpr quint8 StreamVersion = 4;
constexpr QByteArrayView LittleEndianSignature("streamtyped");
constexpr QByteArrayView BigEndianSignature("typedstream");
constexpr qint32 SystemVersion = 1000;

/// What a byte in place of a number or a value announces. Of these and those up to the smallest
/// integer of one byte, none is a value by itself.
constexpr quint8 TwoByteInteger = 0x81;
constexpr quint8 FourByteInteger = 0x82;
constexpr quint8 Real = 0x83;
constexpr quint8 NewEntry = 0x84;
constexpr quint8 Nil = 0x85;
constexpr quint8 EndOfObject = 0x86;

constexpr qint32 SmallestByteInteger = -110;
constexpr qint32 LargestByteInteger = 127;

/// Entry 0 of a table is referred to by the smallest integer of one byte.
constexpr qint32 FirstReference = SmallestByteInteger;

/// The types of groups.
constexpr char BytesType = '+';
constexpr char ObjectType = '@';
constexpr char CharacterStringType = '*';
constexpr char IntegerType = 'i';

constexpr QLatin1StringView RootClass("NSObject");
constexpr QLatin1StringView StringClass("NSString");
constexpr QLatin1StringView MutableStringClass("NSMutableString");
constexpr QLatin1StringView DataClass("NSData");
constexpr QLatin1StringView MutableDataClass("NSMutableData");
constexpr QLatin1StringView ValueClass("NSValue");
constexpr QLatin1StringView NumberClass("NSNumber");
constexpr QLatin1StringView DictionaryClass("NSDictionary");
constexpr QLatin1StringView MutableDictionaryClass("NSMutableDictionary");

} // namespace tomely::archive
