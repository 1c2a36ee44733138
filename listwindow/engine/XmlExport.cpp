#include "listwindow/engine/XmlExport.h"

#include "model/BookCollectionXml.h"

namespace tomely {

FileResult exportXml(
    const QString& path, std::span<BookEntry* const> books, const Progress& progress)
{
    const std::u16string xml = bookCollectionXml(books, halfOf(progress, 0));
    return AtomicFile::write(
        path, QByteArrayView(std::as_bytes(std::span(xml))), halfOf(progress, 1));
}

} // namespace tomely
