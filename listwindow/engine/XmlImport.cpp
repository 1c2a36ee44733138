#include "listwindow/engine/XmlImport.h"

#include "document/BookListDocument.h"
#include "model/BookCollectionXml.h"
#include "model/XmlReader.h"
#include "platform/FileReading.h"

#include <QCoreApplication>

#include <limits>
#include <new>
#include <variant>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

QString notEnoughMemory()
{
    return QCoreApplication::translate("XmlImport", "There is not enough memory");
}

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

/// The books, or why there are none.
std::variant<ReadBooks, QString> booksOfFile(const QString& path, const Progress& progress)
{
    try {
        const auto file = readWholeFile(path, halfOf(progress, 0));
        if (const QString* const failure = std::get_if<QString>(&file))
            return *failure;
        return readBookCollectionXml(std::get<QByteArray>(file), halfOf(progress, 1));
    } catch (const XmlError& error) {
        return QCoreApplication::translate("XmlImport", "not an XML file that can be read: %1")
            .arg(error.message());
    } catch (const std::bad_alloc&) {
        return notEnoughMemory();
    }
}

std::optional<QString> addBooksOfFile(
    BookListDocument& document, const QString& path, const Progress& progress)
{
    auto books = booksOfFile(path, progress);
    if (const QString* const failure = std::get_if<QString>(&books))
        return *failure;
    try {
        return addBooks(document, std::get<ReadBooks>(std::move(books)));
    } catch (const std::bad_alloc&) {
        return notEnoughMemory();
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
