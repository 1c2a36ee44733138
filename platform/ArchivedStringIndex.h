// Finds the text that an archive already holds: from a text's bytes to the number of the object
// that has them. It keeps no text of its own, only where each stands in the archive's bytes.

#pragma once

#include "platform/ArchiveBuffer.h"

#include <vector>

namespace tomely {

class ArchivedStringIndex {
public:
    /// Looks for the text that stands in the buffer, length first, from offset to the end. Gives
    /// the number of the object that has an equal one; when none has, remembers this one under
    /// number and gives number back.
    qint32 findOrAdd(const ArchiveBuffer& buffer, qsizetype offset, qint32 number);

private:
    struct Slot {
        qsizetype offset = 0; // 0, where an archive has its header, is a free slot
        qint32 number = 0;
        quint32 hash = 0;
    };

    void grow();

    std::vector<Slot> m_slots; // a power of two of them, at most half in use
    std::size_t m_used = 0;
};

} // namespace tomely
