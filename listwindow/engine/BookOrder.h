// The order of the list: what a sort field means, and two books compared by it. ListOrder sorts a
// whole library the same way, faster; a test holds the two together.

#pragma once

#include "model/BookEntry.h"

namespace tomely {

/// A sort field taken apart: the column key, and the direction from the remainder by 2.
struct SortField {
    qint32 columnKey = 0;
    bool descending = false;

    static SortField of(qint32 sortField)
    {
        const qint32 remainder = sortField % 2; // with the sign of the sort field
        return {sortField - remainder, remainder != 0};
    }
};

/// True when `left` stands before `right` in a list sorted by `sortField`. Books that the column
/// leaves equal stand by title, ascending in either direction, then by book number.
bool standsBefore(const BookEntry& left, const BookEntry& right, qint32 sortField);

/// A number whose unsigned order is the ascending order of a column that is no text: rating and
/// flags with the highest and the set ones first, prices with "not a number" last, dates by year,
/// then month. 0 for every book in a column without a kind.
quint64 sortKey(const BookEntry& book, qint32 columnKey);

} // namespace tomely
