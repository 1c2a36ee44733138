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

std::vector<const ColumnEntry*> shownColumns(const BookListDocument& document)
{
    std::map<qint32, std::vector<const ColumnEntry*>> columnsAt;
    for (const auto& [key, column] : document.getListColumns())
        columnsAt[column.getPosition()].push_back(&column);
    std::vector<const ColumnEntry*> shown;
    qint32 position = 0;
    for (auto place = columnsAt.find(position); place != columnsAt.end();
         place = columnsAt.find(++position))
        shown.insert(shown.end(), place->second.begin(), place->second.end());
    return shown;
}

} // namespace tomely
