// Case-insensitive comparison of texts: a simple fold of each character by itself, without locale
// rules, so that a list has the same order on every machine and a German sharp s stays itself.

#pragma once

#include <QStringView>

#include <vector>

namespace tomely {

/// Appends the case-folded characters of `text` to `bytes`, as UTF-8. Byte order of two folded
/// texts is the order of their characters' values. A lone surrogate is kept as its own three bytes.
void appendFolded(QStringView text, std::vector<char>& bytes);

/// Below, at or above 0 as `left` stands before, with or after `right`.
int compareIgnoringCase(QStringView left, QStringView right);

/// True when `part` stands somewhere in `text`; an empty part always does.
bool containsIgnoringCase(QStringView text, QStringView part);

/// True when `left` stands before `right`: the order of names in menus and side bars.
inline bool lessIgnoringCase(QStringView left, QStringView right)
{
    return compareIgnoringCase(left, right) < 0;
}

} // namespace tomely
