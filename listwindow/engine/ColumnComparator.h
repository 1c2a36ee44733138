// The order of columns where a person chooses one: built-in ones by name, then custom ones that the
// person has named, then those that still bear their default names.

#pragma once

#include "document/ColumnCatalogue.h"

#include <vector>

namespace tomely {

/// True when `left` stands before `right`: a strict weak ordering. Columns of the same kind and the
/// same selection name in the person's language, ignoring case, stand together.
bool precedes(const ColumnEntry& left, const ColumnEntry& right);

/// All records in that order, and in the order of their keys where it leaves them together. The
/// pointers are good until a record is added or removed; a renamed record may have to move.
std::vector<const ColumnEntry*> sortedColumns(const ColumnDictionary& columns);

} // namespace tomely
