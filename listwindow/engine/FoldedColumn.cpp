#include "listwindow/engine/FoldedColumn.h"

#include "model/CaseFolding.h"

#include <algorithm>
#include <cstring>

namespace tomely {

namespace {

constexpr std::size_t typicalTextLength = 24;

} // namespace

void FoldedColumn::clear(std::size_t expectedRows)
{
    m_bytes.clear();
    m_segments.clear();
    m_segmentOfRow.clear();
    m_bytes.reserve(expectedRows * typicalTextLength);
    m_segments.reserve(expectedRows);
    m_segmentOfRow.reserve(expectedRows);
}

void FoldedColumn::append(QStringView text)
{
    const auto row = static_cast<Row>(m_segmentOfRow.size());
    m_segmentOfRow.push_back(static_cast<quint32>(m_segments.size()));
    appendSegment(text, row);
}

void FoldedColumn::appendSegment(QStringView text, Row row)
{
    const std::size_t begin = m_bytes.size();
    appendFolded(text, m_bytes);
    m_segments.push_back({begin, m_bytes.size(), row});
    m_bytes.push_back(separator);
}

bool FoldedColumn::replace(Row row, QStringView newText)
{
    m_scratch.clear();
    appendFolded(newText, m_scratch);
    if (text(row) == std::string_view(m_scratch.data(), m_scratch.size()))
        return false;
    const Segment& old = m_segments.at(m_segmentOfRow.at(row));
    std::fill(m_bytes.begin() + static_cast<std::ptrdiff_t>(old.begin),
        m_bytes.begin() + static_cast<std::ptrdiff_t>(old.end), separator);
    m_segmentOfRow.at(row) = static_cast<quint32>(m_segments.size());
    appendSegment(newText, row);
    // Blanked texts are scanned too; half of them being dead is the time to close ranks.
    if (m_segments.size() > 2 * m_segmentOfRow.size() + 64)
        compact();
    return true;
}

void FoldedColumn::compact()
{
    std::vector<char> bytes;
    bytes.reserve(m_bytes.size());
    std::vector<Segment> segments;
    segments.reserve(m_segmentOfRow.size());
    for (std::size_t row = 0; row < m_segmentOfRow.size(); ++row) {
        const std::string_view kept = text(static_cast<Row>(row));
        const std::size_t begin = bytes.size();
        bytes.insert(bytes.end(), kept.begin(), kept.end());
        segments.push_back({begin, bytes.size(), static_cast<Row>(row)});
        bytes.push_back(separator);
        m_segmentOfRow[row] = static_cast<quint32>(row);
    }
    m_bytes = std::move(bytes);
    m_segments = std::move(segments);
}

std::string_view FoldedColumn::text(Row row) const
{
    const Segment& segment = m_segments[m_segmentOfRow[row]];
    return {m_bytes.data() + segment.begin, segment.end - segment.begin};
}

quint64 FoldedColumn::prefix(Row row) const
{
    const std::string_view whole = text(row);
    quint64 prefix = 0;
    for (std::size_t index = 0; index < sizeof prefix; ++index)
        prefix = (prefix << 8) | (index < whole.size() ? static_cast<quint8>(whole[index]) : 0U);
    return prefix;
}

void FoldedColumn::markMatches(std::string_view folded, std::span<quint8> passes) const
{
    if (folded.empty()) {
        std::fill_n(passes.begin(), rowCount(), quint8(1));
        return;
    }
    const char* const data = m_bytes.data();
    std::size_t position = 0;
    auto segment = m_segments.begin();
    while (position < m_bytes.size()) {
        const void* const hit =
            memmem(data + position, m_bytes.size() - position, folded.data(), folded.size());
        if (!hit)
            return;
        position = static_cast<std::size_t>(static_cast<const char*>(hit) - data);
        while (segment->end <= position)
            ++segment;
        passes[segment->row] = 1;
        position = segment->end + 1; // one match is enough: on with the next text
    }
}

} // namespace tomely
