// The texts of one column, case-folded once and kept end to end, so that a key in the search field
// is one scan over contiguous memory. Rows are numbers; whose texts they are is the caller's
// affair.

#pragma once

#include <QByteArrayView>
#include <QStringView>

#include <span>
#include <string_view>
#include <vector>

namespace tomely {

class FoldedColumn {
public:
    using Row = quint32;

    /// Forgets everything and makes room for the texts to come.
    void clear(std::size_t expectedRows);

    /// The text of the next row.
    void append(QStringView text);

    /// Another text for a row; false when it folds to the same as before.
    bool replace(Row row, QStringView text);

    std::size_t rowCount() const { return m_segmentOfRow.size(); }

    /// The folded UTF-8 text of a row. Comparing such texts by bytes orders them ignoring case.
    std::string_view text(Row row) const;

    /// The first eight bytes of a row's text as a number that orders as they do; where two are
    /// equal, the texts have to be compared.
    quint64 prefix(Row row) const;

    /// Sets passes[row] to 1 for every row whose text contains `folded` (see appendFolded()); the
    /// others are left alone. An empty text is in every row.
    void markMatches(std::string_view folded, std::span<quint8> passes) const;

private:
    struct Segment {
        std::size_t begin;
        std::size_t end;
        Row row;
    };

    void appendSegment(QStringView text, Row row);
    void compact();

    // Each text is followed by a byte that no UTF-8 text holds, so no match runs into the next one.
    static constexpr char separator = '\xFF';

    std::vector<char> m_bytes;
    std::vector<Segment> m_segments; // ascending, as in m_bytes; a replaced one is blanked
    std::vector<quint32> m_segmentOfRow;
    std::vector<char> m_scratch;
};

} // namespace tomely
