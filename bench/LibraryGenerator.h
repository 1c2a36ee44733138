// Libraries of any size to measure with: believable books, the same ones for the same seed on every
// machine.

#pragma once

#include <QtGlobal>

namespace tomely {

class BookListDocument;

struct LibraryShape {
    int books = 1000;
    quint64 seed = 1;
    /// How many books carry a picture; spread evenly.
    int pictures = 0;
};

/// Adds the books to a document: about 250 bytes of text each, authors, publishers and places that
/// repeat as they do on real shelves, and memberships in a few groups.
void generateLibrary(BookListDocument& document, const LibraryShape& shape);

} // namespace tomely
