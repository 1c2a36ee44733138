#include "cli/Commands.h"
#include "cli/Failures.h"
#include "cli/OpenedCollection.h"

namespace tomely {

void runRewrite(const Arguments& arguments, Output&)
{
    const auto document = openCollection(arguments.operands[0]);
    const QString& out = arguments.operands[1];
    if (const auto failure = document->writeToFile(out))
        throw CommandFailure{out, failure->reason};
}

} // namespace tomely
