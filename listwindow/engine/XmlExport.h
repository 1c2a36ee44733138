// Writes books to an XML interchange file.

#pragma once

#include "model/BookEntry.h"
#include "platform/AtomicFile.h"
#include "platform/Progress.h"

#include <span>

namespace tomely {

/// Replaces the file at `path` in one step by one with these books in this order. Progress may
/// leave it by throwing OperationCancelled, and the old file stays.
FileResult exportXml(
    const QString& path, std::span<BookEntry* const> books, const Progress& progress = {});

} // namespace tomely
