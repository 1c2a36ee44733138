// Which books an export writes: all of the collection, or those that the list shows.

#pragma once

#include "listwindow/engine/ListEngine.h"

namespace tomely {

/// The numbers are those of the choices in the export sheets and of what is remembered of them.
enum class ExportFilter : qint32 { AllBooks = 0, DisplayedBooks = 1 };

/// The books in the order of the list; good until the list is loaded again.
inline const std::vector<BookEntry*>& exportableBooks(const ListEngine& engine, ExportFilter filter)
{
    return filter == ExportFilter::AllBooks ? engine.getAllBooks() : engine.getDisplayedBooks();
}

} // namespace tomely
