// Numbers as a person reads and types them in a field: with the decimal mark of their locale, but
// without group separators or currency signs, so that what is shown is always read back.

#pragma once

#include <QString>
#include <QStringView>

class QLocale;

namespace tomely {

/// Reads like leadingDouble(), but the decimal mark of the locale is a point too: with "," as the
/// mark both "12,5" and "12.5" are twelve and a half. The first mark of either kind is the one that
/// counts.
[[nodiscard]] double localDouble(QStringView text, const QLocale& locale);

/// The fewest digits that localDouble() reads back as the very same number, in digits of ASCII
/// whatever the locale writes. Infinity and what is not a number give a text that reads as 0.
[[nodiscard]] QString numberText(double number, const QLocale& locale);

} // namespace tomely
