// The books of a collection as rows, with what filter and order need of them laid out for speed. It
// finds by itself which books changed since it last looked, and works again on those alone.

#pragma once

#include "listwindow/engine/FoldedColumn.h"
#include "model/BookEntry.h"

#include <map>
#include <vector>

namespace tomely {

class BookListDocument;

class BookIndex {
public:
    using Row = FoldedColumn::Row;

    /// What a look at the collection found.
    struct Changes {
        bool everything = false; // rows stand for other books than before
        std::vector<Row> rows; // changed or new books, when not everything is

        bool isEmpty() const { return !everything && rows.empty(); }
    };

    /// Follows the collection. Costs nothing when no book of the program changed since.
    Changes sync(const BookListDocument& document);

    /// The books in ascending order of their numbers: row numbers order books as their numbers do.
    const std::vector<BookEntry*>& books() const { return m_books; }

    Row rowCount() const { return static_cast<Row>(m_books.size()); }

    /// The folded texts of a text column; made when first asked for, kept up to date from then on.
    const FoldedColumn& folded(qint32 columnKey);

    /// For each row the number that orders it by a column that is no text (see sortKey()); made
    /// when first asked for, kept up to date from then on.
    const std::vector<quint64>& sortKeys(qint32 columnKey);

    /// The rows by title and number.
    const std::vector<Row>& titleOrder();

    /// For each row its place when all books stand by title and number.
    const std::vector<quint32>& titleRanks();

    /// For each row its place by title alone: equal titles share a number.
    const std::vector<quint32>& titleClasses();

private:
    void rebuild();
    void update(const std::vector<Row>& rows, Row firstNew);
    bool updateColumn(
        qint32 columnKey, FoldedColumn& column, const std::vector<Row>& rows, Row firstNew) const;
    void moveTitles(const FoldedColumn& titles, const std::vector<Row>& rows);
    void buildTitleOrder();
    void numberTitles();

    std::vector<BookEntry*> m_books;
    std::vector<BookEntry*> m_found; // reused from look to look
    quint64 m_seenChange = 0;
    bool m_hasLooked = false;
    std::map<qint32, FoldedColumn> m_folded;
    std::map<qint32, std::vector<quint64>> m_sortKeys;
    std::vector<Row> m_titleOrder; // empty until somebody asks
    std::vector<quint32> m_titleRanks;
    std::vector<quint32> m_titleClasses;
};

} // namespace tomely
