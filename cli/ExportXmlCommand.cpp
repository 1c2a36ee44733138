#include "cli/Commands.h"
#include "cli/Failures.h"
#include "cli/OpenedCollection.h"
#include "cli/ViewOptions.h"
#include "listwindow/engine/XmlExport.h"

namespace tomely {

void runExportXml(const Arguments& arguments, Output&)
{
    const ViewOptions view = ViewOptions::of(arguments);
    const auto document = openCollection(arguments.operands[0]);
    const QString& out = arguments.operands[1];
    // Without an option, these are all books in the file's own order.
    const FileResult result = exportXml(out, displayedBooks(*document, view));
    if (!result.isOk())
        throw CommandFailure{out, result.error};
}

} // namespace tomely
