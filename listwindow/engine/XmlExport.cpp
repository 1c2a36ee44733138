#include "listwindow/engine/XmlExport.h"

#include "model/BookCollectionXml.h"

#include <QCoreApplication>

#include <cerrno>
#include <new>

namespace tomely {

FileResult exportXml(
    const QString& path, std::span<BookEntry* const> books, const Progress& progress)
{
    try {
        const std::u16string xml = bookCollectionXml(books, halfOf(progress, 0));
        return AtomicFile::write(
            path, QByteArrayView(std::as_bytes(std::span(xml))), halfOf(progress, 1));
    } catch (const std::bad_alloc&) {
        return {
            QCoreApplication::translate("XmlExport", "There is not enough memory"), ENOMEM, false};
    }
}

} // namespace tomely
