// Runs tomely-cli as a shell would and keeps what it said.

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace tomely {

struct ProgramResult {
    int status = -1; // -1 when the program did not end by itself
    QByteArray output;
    QByteArray errors;
};

/// `environment` is added to the test's own, as "NAME=value".
ProgramResult runProgram(const QStringList& arguments, const QStringList& environment = {});

/// The same with the program's standard output going to a file of that path.
ProgramResult runProgramInto(const QString& outputPath, const QStringList& arguments);

/// The same through "sh -c", where "$CLI" is the program.
ProgramResult runShell(const QString& script);

} // namespace tomely
