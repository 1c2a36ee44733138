// The two ways in which a command ends early. Commands throw them, the command line catches them
// once and turns them into a line on standard error and an exit status.

#pragma once

#include <QString>

namespace tomely {

/// The command line is wrong.
struct UsageError {
    QString reason; // without a full stop: "unknown option --bogus"
};

/// The work failed.
struct CommandFailure {
    QString file; // as the command line names it
    QString reason; // "No such file or directory"
};

} // namespace tomely
