// Numbers at the start of a text that a person typed or another program exported: "1999?", "
// 12,50". The readings never fail, do not depend on the locale, and know nothing of what the number
// means.

#pragma once

#include <QStringView>

namespace tomely {

// The white space that is skipped in front of a number is ASCII's: space, tab, line feed, vertical
// tab, form feed and carriage return. Only the digits '0' to '9' count as digits, whatever other
// scripts write.

/// Reads [sign] digits. Gives 0 when there is no number; a number beyond 32 bits gives the nearest
/// 32-bit value.
[[nodiscard]] qint32 leadingInt(QStringView text) noexcept;

/// The same for 64 bits.
[[nodiscard]] qint64 leadingInt64(QStringView text) noexcept;

/// Reads [sign] digits [. digits] [e [sign] digits], where either side of the point may be missing
/// but not both. No hexadecimal, "inf" or "nan". Gives 0 when there is no number; a number too
/// large for a double gives plus or minus HUGE_VAL, one too small gives plus or minus 0.
[[nodiscard]] double leadingDouble(QStringView text);

} // namespace tomely
