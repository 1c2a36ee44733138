// Any bytes as a collection file: they end in a collection or in one error. What could be read is
// written and read again, which must work and give the same file.

#include "document/CollectionFile.h"
#include "platform/ArchiveError.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    try {
        const tomely::CollectionContents contents = tomely::readCollection(bytes);
        const QByteArray written = tomely::writeCollection(contents);
        if (tomely::writeCollection(tomely::readCollection(written)) != written)
            std::abort();
    } catch (const tomely::ArchiveError&) {
    } catch (const tomely::NewerVersionError&) {
    }
    return 0;
}
