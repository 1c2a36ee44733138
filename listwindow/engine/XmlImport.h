// Adds the books of an XML interchange file to a collection, all of them or none.

#pragma once

#include "platform/Progress.h"

#include <QString>

#include <optional>

namespace tomely {

class BookListDocument;

/// Adds every book of the file at `path` to the document, under new keys, whether or not a book of
/// the kind is there already. Whatever comes of it, the document is marked changed and its window
/// refreshed. Answers why the file could not be read, which the window keeps to itself; a file
/// without books is none such. Progress may leave it by throwing OperationCancelled, and the
/// document stays untouched.
std::optional<QString> importXml(
    BookListDocument& document, const QString& path, const Progress& progress = {});

} // namespace tomely
