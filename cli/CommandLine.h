// One run of tomely-cli, from its arguments to its exit status. It catches what commands throw and
// turns it into lines on standard error.

#pragma once

#include <QByteArray>

#include <vector>

namespace tomely {

class Output;

enum class ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

/// `arguments` are those behind the program's name, as bytes. Results go to `output`, everything
/// else to `errors`.
ExitStatus runCommandLine(const std::vector<QByteArray>& arguments, Output& output, Output& errors);

} // namespace tomely
