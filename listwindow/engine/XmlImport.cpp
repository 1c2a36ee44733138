#include "listwindow/engine/XmlImport.h"

#include "document/BookListDocument.h"
#include "model/BookCollectionXml.h"
#include "model/XmlReader.h"
#include "platform/FileReading.h"

#include <QCoreApplication>

#include <limits>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

std::optional<QString> addBooks(BookListDocument& document, ReadBooks books)
{
    const qint64 numbersLeft =
        qint64{std::numeric_limits<qint32>::max()} - document.lastBookNumber();
    bool areAdded = std::ssize(books) <= numbersLeft;
    // When one is refused for its empty key, they all are.
    for (auto book = books.begin(); areAdded && book != books.end(); ++book)
        areAdded = document.addBook(std::move(*book));
    if (!areAdded)
        return QCoreApplication::translate("XmlImport", "The collection takes no more books");
    return std::nullopt;
}

std::optional<QString> addBooksOfFile(
    BookListDocument& document, const QString& path, const Progress& progress)
{
    const auto file = readWholeFile(path, halfOf(progress, 0));
    if (const QString* const failure = std::get_if<QString>(&file))
        return *failure;
    try {
        return addBooks(
            document, readBookCollectionXml(std::get<QByteArray>(file), halfOf(progress, 1)));
    } catch (const XmlError& error) {
        return QCoreApplication::translate("XmlImport", "not an XML file that can be read: %1")
            .arg(error.message());
    }
}

} // namespace

std::optional<QString> importXml(
    BookListDocument& document, const QString& path, const Progress& progress)
{
    auto failure = addBooksOfFile(document, path, progress);
    document.setBooksChanged();
    document.refresh();
    return failure;
}

} // namespace tomely
