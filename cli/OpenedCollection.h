// Collections on the command line: a document without a window, and what several commands ask of
// it.

#pragma once

#include "document/BookListDocument.h"

#include <memory>

namespace tomely {

/// Reads a collection of any supported version. Throws CommandFailure.
std::unique_ptr<BookListDocument> openCollection(const QString& path);

/// The pictures of all books together.
qint64 pictureCount(const BookListDocument& document);

/// The columns that the window shows, from left to right: the records of position 0, 1, 2 and so
/// on. The first position without a record ends them.
std::vector<const ColumnEntry*> shownColumns(const BookListDocument& document);

} // namespace tomely
