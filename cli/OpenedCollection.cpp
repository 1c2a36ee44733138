#include "cli/OpenedCollection.h"

#include "cli/Failures.h"

#include <cerrno>
#include <limits>

namespace tomely {

std::unique_ptr<BookListDocument> openCollection(const QString& path)
{
    // The toolkit would warn about an empty name on its own, in a second line.
    if (path.isEmpty())
        throw CommandFailure{path, qt_error_string(ENOENT)};
    auto document = std::make_unique<BookListDocument>();
    if (const auto failure = document->readFromFile(path))
        throw CommandFailure{path, failure->reason};
    return document;
}

qint64 pictureCount(const BookListDocument& document)
{
    qint64 count = 0;
    for (const auto& [key, book] : document.books()) {
        for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
            count += book->getImageData(slot).isNull() ? 0 : 1;
    }
    return count;
}

} // namespace tomely
