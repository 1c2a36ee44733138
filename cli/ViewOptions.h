// The options that choose books: group, filter and order, as the window's sidebar, filter bar and
// column headings do. They are checked before any file is opened.

#pragma once

#include "cli/Arguments.h"
#include "listwindow/engine/BookFilter.h"

#include <optional>
#include <vector>

namespace tomely {

class BookListDocument;

struct ViewOptions {
    BookFilter filter;
    std::optional<qint32> sortField; // nothing: the file's own

    /// The options themselves, for parsing and for the help.
    static OptionGroup group();

    /// Throws UsageError for a value that its option cannot take.
    static ViewOptions of(const Arguments& arguments);
};

/// The books that the window would show, in its order. Sorts the document by the view's sort field.
std::vector<BookEntry*> displayedBooks(BookListDocument& document, const ViewOptions& view);

} // namespace tomely
