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

} // namespace tomely
