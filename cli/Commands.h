// The commands of tomely-cli: a function each, in a file of its own, and the table that gives them
// names, operands, options and words of help.

#pragma once

#include "cli/Arguments.h"

#include <vector>

namespace tomely {

class Output;

struct Command {
    QLatin1StringView name;
    QLatin1StringView synopsis; // what stands behind the name: "FILE OUT"
    QLatin1StringView summary; // one line for the list of commands
    QLatin1StringView details; // paragraphs for the command's own help, as they are printed
    int fewestOperands;
    int mostOperands;
    std::vector<OptionGroup> options;
    /// Writes results and nothing else. Throws UsageError or CommandFailure.
    void (*run)(const Arguments& arguments, Output& output);
};

/// In the order in which the help lists them.
const std::vector<Command>& commands();

/// nullptr when there is no such command.
const Command* findCommand(const QString& name);

void runNew(const Arguments& arguments, Output& output);
void runInfo(const Arguments& arguments, Output& output);
void runList(const Arguments& arguments, Output& output);
void runDump(const Arguments& arguments, Output& output);
void runExportCsv(const Arguments& arguments, Output& output);
void runExportXml(const Arguments& arguments, Output& output);
void runImportXml(const Arguments& arguments, Output& output);
void runRewrite(const Arguments& arguments, Output& output);
void runCheck(const Arguments& arguments, Output& output);
void runLookup(const Arguments& arguments, Output& output);
void runHelp(const Arguments& arguments, Output& output);

/// "usage: tomely-cli ..." for one command, or for the program when there is none.
QString usageLine(const Command* command);

/// The explanation of one command, or the list of all when there is none.
void printHelp(const Command* command, Output& output);

} // namespace tomely
