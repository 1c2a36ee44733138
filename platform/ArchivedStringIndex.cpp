#include "platform/ArchivedStringIndex.h"

#include <cstring>
#include <QHashFunctions>
#include <utility>

namespace tomely {

// Texts are compared as they stand in the archive, with the length before them: equal bytes from
// there on mean an equal length and so an equal text, and no entry needs to keep a length. 32 bits
// of the hash are kept, so that growing reads no text and a comparison is rarely in vain.
qint32 ArchivedStringIndex::findOrAdd(const ArchiveBuffer& buffer, qsizetype offset, qint32 number)
{
    if (m_used * 2 >= m_slots.size())
        grow();
    const char* const candidate = buffer.data() + offset;
    const auto length = static_cast<std::size_t>(buffer.size() - offset);
    const std::size_t fullHash = qHashBits(candidate, length, QHashSeed::globalSeed());
    const auto hash = static_cast<quint32>(fullHash ^ (fullHash >> 32));
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = hash & mask;
    for (; m_slots[at].offset != 0; at = (at + 1) & mask) {
        const Slot& slot = m_slots[at];
        // An earlier text cannot run past the buffer: it stands before the candidate, which is as
        // long as what is compared.
        if (slot.hash == hash && std::memcmp(buffer.data() + slot.offset, candidate, length) == 0)
            return slot.number;
    }
    m_slots[at] = {offset, number, hash};
    ++m_used;
    return number;
}

void ArchivedStringIndex::grow()
{
    constexpr std::size_t firstSize = 1024;
    const std::vector<Slot> old =
        std::exchange(m_slots, std::vector<Slot>(m_slots.empty() ? firstSize : m_slots.size() * 2));
    const std::size_t mask = m_slots.size() - 1;
    for (const Slot& slot : old) {
        if (slot.offset == 0)
            continue;
        std::size_t at = slot.hash & mask;
        while (m_slots[at].offset != 0)
            at = (at + 1) & mask;
        m_slots[at] = slot;
    }
}

} // namespace tomely
