// The names of months as lists of books show them, in English.

#pragma once

#include <QString>

namespace tomely {

/// "January" to "December" for 1 to 12, else empty.
QString monthName(qint32 month);

} // namespace tomely
