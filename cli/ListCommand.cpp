#include "cli/Commands.h"
#include "cli/ListFormats.h"
#include "cli/OpenedCollection.h"
#include "cli/ViewOptions.h"

namespace tomely {

void runList(const Arguments& arguments, Output& output)
{
    const ViewOptions view = ViewOptions::of(arguments);
    const LookOptions look = LookOptions::of(arguments);
    const auto document = openCollection(arguments.operands.front());
    const std::vector<PrintedColumn> columns = printedColumns(*document, look);
    printList(displayedBooks(*document, view), columns, look.format, output);
}

} // namespace tomely
