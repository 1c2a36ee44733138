#include "cli/CommandLine.h"
#include "cli/Output.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace {

/// Takes the places of standard streams that the caller closed, so that no collection is opened
/// under the number of one of them and written over by a message.
void fillStandardStreams()
{
    int descriptor = 0;
    do {
        descriptor = ::open("/dev/null", O_RDONLY); // writing to it still fails
    } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    ::close(descriptor);
}

} // namespace

// There is no application object: no command but "lookup", which makes its own, needs an event loop
// or a locale, and making one may warn on standard error in the C locale.
int main(int argumentCount, char** arguments)
{
    fillStandardStreams();
    // A reader that goes away is a failure to report, not the end.
    std::signal(SIGPIPE, SIG_IGN);
    tomely::Output output(STDOUT_FILENO);
    tomely::Output errors(STDERR_FILENO);
    const std::vector<QByteArray> texts(
        arguments + qMin(1, argumentCount), arguments + argumentCount);
    return static_cast<int>(tomely::runCommandLine(texts, output, errors));
}
