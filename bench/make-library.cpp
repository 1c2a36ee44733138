// Writes a library to measure with: make-library COUNT SEED FILE [--pictures N].

#include "bench/LibraryGenerator.h"
#include "document/BookListDocument.h"

#include <QGuiApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

int usage()
{
    std::fputs("usage: make-library COUNT SEED FILE [--pictures N]\n", stderr);
    return 2;
}

} // namespace

int main(int argc, char* argv[])
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments.append(QString::fromLocal8Bit(argv[index]));
    tomely::LibraryShape shape;
    bool isCount = true;
    bool isSeed = true;
    bool isPictures = true;
    if (arguments.size() == 5 && arguments.at(3) == "--pictures"_L1)
        shape.pictures = arguments.at(4).toInt(&isPictures);
    else if (arguments.size() != 3)
        return usage();
    shape.books = arguments.at(0).toInt(&isCount);
    shape.seed = arguments.at(1).toULongLong(&isSeed);
    if (!isCount || !isSeed || !isPictures || shape.books < 0 || shape.pictures < 0)
        return usage();

    tomely::BookListDocument document;
    tomely::generateLibrary(document, shape);
    if (const auto failure = document.writeToFile(arguments.at(2))) {
        std::fprintf(stderr, "make-library: %s: %s\n", qPrintable(arguments.at(2)),
            qPrintable(failure->reason));
        return 1;
    }
    return 0;
}
