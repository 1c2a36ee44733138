// The distinct authors, locations, publishers and places of purchase of a library, which the
// editor's combo boxes offer. Kept by counting, so that an edited book costs no look at the others.

#pragma once

#include "listwindow/engine/BookIndex.h"

#include <QHash>
#include <QString>

#include <array>
#include <vector>

namespace tomely {

class ValueLists {
public:
    /// Follows the books and hands the lists that changed to the document; all of them the first
    /// time. `changes` are those since the last call.
    void update(
        BookListDocument& document, const BookIndex& index, const BookIndex::Changes& changes);

    /// There were changes that update() was not told of.
    void invalidate() { m_isStale = true; }

private:
    static constexpr std::size_t listCount = 4;

    using Row = BookIndex::Row;

    struct List {
        QHash<QString, int> counts; // how many books have a value
        std::vector<QString> ofRow; // the value that was counted for each book
        bool changed = true;
    };

    void recount(const BookIndex& index);
    void countRow(const BookIndex& index, Row row);

    std::array<List, listCount> m_lists;
    bool m_isStale = true;
};

} // namespace tomely
