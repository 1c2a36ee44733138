// How many columns of a terminal a text takes. The C library's answer depends on the locale and
// knows nothing in the C locale; this one is the same everywhere.

#pragma once

#include <QString>

namespace tomely {

/// East Asian wide characters and pictographs count 2, marks and invisible characters 0, everything
/// else 1.
int displayWidth(QStringView text);

/// `text`, cut at the right with an ellipsis when it is wider than `width` (1 or more). Marks stay
/// with the character that they belong to.
QString fittedTo(const QString& text, int width);

} // namespace tomely
