#include "cli/Commands.h"
#include "cli/Failures.h"
#include "cli/OpenedCollection.h"
#include "listwindow/engine/XmlImport.h"

#include <cerrno>

namespace tomely {

void runImportXml(const Arguments& arguments, Output&)
{
    const QString& file = arguments.operands[0];
    const QString& in = arguments.operands[1];
    const auto document = openCollection(file);
    // The toolkit would warn about an empty name on its own, in a second line.
    if (in.isEmpty())
        throw CommandFailure{in, qt_error_string(ENOENT)};
    if (const auto reason = importXml(*document, in))
        throw CommandFailure{in, *reason};
    if (const auto failure = document->writeToFile(file))
        throw CommandFailure{file, failure->reason};
}

} // namespace tomely
