#include "tests/cli/Program.h"

#include <QProcess>
#include <QProcessEnvironment>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

ProgramResult finished(QProcess& process)
{
    if (!process.waitForFinished(30'000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.readAllStandardOutput(), process.readAllStandardError()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

ProgramResult runProgram(const QStringList& arguments, const QStringList& environment)
{
    QProcess process;
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    for (const QString& entry : environment)
        all.insert(entry.section(u'=', 0, 0), entry.section(u'=', 1));
    process.setProcessEnvironment(all);
    process.start(QString::fromUtf8(TOMELY_CLI), arguments);
    return finished(process);
}

ProgramResult runProgramInto(const QString& outputPath, const QStringList& arguments)
{
    QProcess process;
    process.setStandardOutputFile(outputPath);
    process.start(QString::fromUtf8(TOMELY_CLI), arguments);
    return finished(process);
}

ProgramResult runShell(const QString& script)
{
    QProcess process;
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    all.insert(u"CLI"_s, QString::fromUtf8(TOMELY_CLI));
    process.setProcessEnvironment(all);
    process.start(u"sh"_s, {u"-c"_s, script});
    return finished(process);
}

} // namespace tomely
