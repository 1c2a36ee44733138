#include "cli/CommandLine.h"

#include "cli/Commands.h"
#include "cli/Failures.h"
#include "cli/Output.h"
#include "cli/PlainText.h"

#include <new>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

void printErrorLine(Output& errors, const QString& line)
{
    errors.write(onOneLine(line));
    errors.write("\n");
}

/// File names and texts are UTF-8 whatever the locale says. Throws UsageError for other bytes: they
/// would name another file than the one that is meant.
QStringList decoded(const std::vector<QByteArray>& arguments)
{
    QStringList texts;
    for (const QByteArray& bytes : arguments) {
        texts.append(QString::fromUtf8(bytes));
        if (texts.back().toUtf8() != bytes)
            throw UsageError{texts.back() + " is not UTF-8"_L1};
    }
    return texts;
}

void checkOperands(const Command& command, const QStringList& operands)
{
    if (operands.size() > command.mostOperands)
        throw UsageError{"unexpected argument "_L1 + operands[command.mostOperands]};
    if (operands.size() < command.fewestOperands) {
        const QStringList names = QString(command.synopsis).split(u' ');
        throw UsageError{names[operands.size()] + " is missing"_L1};
    }
}

class Run {
public:
    explicit Run(Output& output) : m_output(output) { }

    void run(QStringList texts)
    {
        if (!texts.isEmpty() && !texts.front().startsWith(u'-')) {
            m_command = findCommand(texts.front());
            if (!m_command)
                m_unknownCommand = texts.front();
            texts.removeFirst();
        }
        const Arguments arguments =
            parseArguments(texts, m_command ? m_command->options : std::vector<OptionGroup>());
        switch (arguments.request) {
        case Arguments::Request::Help:
            return printHelp(commandToExplain(arguments), m_output);
        case Arguments::Request::Version:
            return m_output.write(QByteArrayView("tomely-cli " TOMELY_VERSION "\n"));
        case Arguments::Request::None:
            break;
        }
        if (!m_unknownCommand.isEmpty())
            throw UsageError{"unknown command "_L1 + m_unknownCommand};
        if (!m_command)
            throw UsageError{u"a command is missing"_s};
        checkOperands(*m_command, arguments.operands);
        m_command->run(arguments, m_output);
    }

    /// nullptr as long as none is known.
    const Command* command() const { return m_command; }

private:
    /// "--help list" and "help list --help" ask for the same as "list --help".
    const Command* commandToExplain(const Arguments& arguments) const
    {
        const bool isNamedBehind = !m_command || m_command->run == runHelp;
        if (!isNamedBehind || arguments.operands.isEmpty())
            return m_command;
        const Command* const named = findCommand(arguments.operands.front());
        return named ? named : m_command;
    }

    Output& m_output;
    const Command* m_command = nullptr;
    QString m_unknownCommand;
};

} // namespace

ExitStatus runCommandLine(const std::vector<QByteArray>& arguments, Output& output, Output& errors)
{
    Run run(output);
    try {
        run.run(decoded(arguments));
    } catch (const UsageError& error) {
        printErrorLine(errors, "tomely-cli: "_L1 + error.reason);
        printErrorLine(errors, usageLine(run.command()));
        return ExitStatus::WrongUsage;
    } catch (const CommandFailure& failure) {
        printErrorLine(errors, "tomely-cli: "_L1 + failure.file + ": "_L1 + failure.reason);
        return ExitStatus::Failed;
    } catch (const std::bad_alloc&) {
        printErrorLine(errors, u"tomely-cli: There is not enough memory"_s);
        return ExitStatus::Failed;
    }
    if (const int errorNumber = output.flush(); errorNumber != 0) {
        printErrorLine(errors, "tomely-cli: standard output: "_L1 + qt_error_string(errorNumber));
        return ExitStatus::Failed;
    }
    return ExitStatus::Done;
}

} // namespace tomely
