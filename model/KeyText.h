// Keys of books, groups and columns: the decimal text of an integer. Keys are always plain digits;
// files that other machines wrote may carry digit-grouping marks, which are dropped on reading.

#pragma once

#include <QString>

#include <map>
#include <optional>

namespace tomely {

/// The key text of `number`: plain decimal digits whatever the locale.
QString keyText(qint32 number);

/// The number that a key text names, or nothing when it is not a plain decimal number of 32 bits.
std::optional<qint32> keyNumber(QStringView key);

/// No key is longer: a stream can refer to one long text over and over for a few bytes each, and
/// every comparison would read all of it.
inline constexpr qsizetype longestKey = 64;

/// `key` as this program writes it: digits of any script become ASCII digits and grouping marks go
/// ("1,000" and "1 000" become "1000"). A text that is not a number with marks is kept as it is, up
/// to longestKey characters.
QString normalizedKey(const QString& key);

/// Ascending numeric order of key texts; texts that are no numbers follow, by character values.
struct KeyOrder {
    using is_transparent = void;

    bool operator()(QStringView left, QStringView right) const;
};

/// A dictionary that enumerates in ascending numeric order of its keys.
template <class Value>
using KeyDictionary = std::map<QString, Value, KeyOrder>;

} // namespace tomely
