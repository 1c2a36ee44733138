// The formats in which `list` prints books: a table for people, tab-separated lines and JSON for
// programs.

#pragma once

#include "cli/LookOptions.h"
#include "model/BookEntry.h"

#include <span>

namespace tomely {

class Output;

void printList(std::span<BookEntry* const> books, std::span<const PrintedColumn> columns,
    ListFormat format, Output& output);

} // namespace tomely
