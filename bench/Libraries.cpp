#include "bench/Libraries.h"

#include "bench/LibraryGenerator.h"

#include <QTemporaryDir>

#include <map>
#include <memory>

using namespace Qt::StringLiterals;

namespace tomely {

BookListDocument& libraryOf(int books)
{
    static std::map<int, std::unique_ptr<BookListDocument>> libraries;
    std::unique_ptr<BookListDocument>& library = libraries[books];
    if (!library) {
        library = std::make_unique<BookListDocument>();
        generateLibrary(*library, {.books = books, .seed = 1});
    }
    return *library;
}

QString libraryFileOf(int books)
{
    static const QTemporaryDir folder;
    static std::map<int, QString> files;
    QString& path = files[books];
    if (path.isEmpty()) {
        path = folder.filePath(QString::number(books) + ".books"_L1);
        BookListDocument document;
        generateLibrary(document, {.books = books, .seed = 1});
        if (document.writeToFile(path))
            qFatal("the library could not be written");
    }
    return path;
}

} // namespace tomely
