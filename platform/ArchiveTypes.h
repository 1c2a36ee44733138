// What the types of an archive's groups say, as far as a type says it by itself. It knows no table:
// a type comes as its characters.

#pragma once

#include "platform/ArchiveCursor.h"

namespace tomely::archive {

/// Whether it is one of the types whose value is an integer in the stream's own forms.
bool isIntegerType(QByteArrayView type);

/// Whether it says "so many raw bytes" for exactly that many: "[12c]".
bool isBytesType(QByteArrayView type, qint64 count);

/// The value of a group of a number's type, of any width. Throws ArchiveError for another type, a
/// real that is no whole number, and a negative number of a type without a sign.
qint64 takeNumber(ArchiveCursor& cursor, QByteArrayView type);

} // namespace tomely::archive
