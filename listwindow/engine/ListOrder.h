// All rows of an index in the order of a sort field (see BookOrder.h for what that order is). It
// keeps one number a row beside the row, so that sorting hardly ever looks at a text.

#pragma once

#include "listwindow/engine/BookIndex.h"

#include <optional>
#include <vector>

namespace tomely {

class ListOrder {
public:
    using Row = BookIndex::Row;

    struct Record {
        quint64 key; // orders by the column; equal keys of a text column need a look at the texts
        quint32 rank; // place by title and book number
        Row row;
    };

    /// Brings the order up to date: sorts anew for another sort field or another set of books, and
    /// otherwise only moves the changed rows. False when nothing had to be done.
    bool update(BookIndex& index, const BookIndex::Changes& changes, qint32 sortField);

    const std::vector<Record>& records() const { return m_records; }

private:
    Record makeRecord(BookIndex& index, Row row) const;
    void sortAll(BookIndex& index);
    void moveRows(BookIndex& index, const std::vector<Row>& rows);

    std::optional<qint32> m_sortField;
    std::vector<Record> m_records;
};

} // namespace tomely
