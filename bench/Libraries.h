// The libraries that the benchmarks share: generated once a run and size, with their files.

#pragma once

#include "document/BookListDocument.h"

#include <QString>

namespace tomely {

/// A generated document of so many books, in memory. It is shared: leave it as it was.
BookListDocument& libraryOf(int books);

/// The path of a file with the same books.
QString libraryFileOf(int books);

} // namespace tomely
