#include "cli/Commands.h"
#include "cli/OpenedCollection.h"
#include "cli/Output.h"
#include "cli/PlainText.h"

using namespace Qt::StringLiterals;

namespace tomely {

void runCheck(const Arguments& arguments, Output& output)
{
    const QString& path = arguments.operands.front();
    const auto document = openCollection(path);
    // Not arg() on the path: it may hold place markers of its own.
    const QString counts =
        u": %1 books, %2 groups, %3 pictures, version %4\n"_s.arg(document->getBookListSize())
            .arg(document->getGroups().size())
            .arg(pictureCount(*document))
            .arg(document->fileVersion());
    output.write(onOneLine(path) + counts);
}

} // namespace tomely
