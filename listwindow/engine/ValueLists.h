// The distinct values that the editor's combo boxes offer.

#pragma once

namespace tomely {

class BookListDocument;

/// Collects the distinct non-empty authors, locations, publishers and places of purchase of all
/// books and hands them to the document.
void collectValueLists(BookListDocument& document);

} // namespace tomely
