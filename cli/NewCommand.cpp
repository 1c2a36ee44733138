#include "cli/Commands.h"
#include "cli/Failures.h"
#include "document/CollectionFile.h"
#include "platform/AtomicFile.h"

#include <cerrno>

using namespace Qt::StringLiterals;

namespace tomely {

void runNew(const Arguments& arguments, Output&)
{
    const QString& path = arguments.operands.front();
    const QByteArray bytes = writeCollection(CollectionContents::makeNew());
    // A document's own saving replaces what is there.
    const FileResult result = AtomicFile::write(path, bytes, {}, AtomicFile::Replace::Never);
    if (!result.isOk())
        throw CommandFailure{
            path, result.errorNumber == EEXIST ? u"There is such a file already"_s : result.error};
}

} // namespace tomely
