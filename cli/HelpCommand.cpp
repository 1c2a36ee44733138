#include "cli/Commands.h"
#include "cli/Failures.h"
#include "cli/Output.h"

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int lineWidth = 79;
constexpr int optionNameWidth = 26;
constexpr int commandNameWidth = 36;

/// Two columns: the second is broken into lines between words and stays in its place.
QString twoColumns(const QString& left, const QString& right, int leftWidth)
{
    QString text;
    QString line = "  "_L1 + left.leftJustified(leftWidth - 2);
    bool isEmpty = true;
    for (const QString& word : right.split(u' ')) {
        if (!isEmpty && line.size() + 1 + word.size() > lineWidth) {
            text += line + u'\n';
            line = QString(leftWidth, u' ');
            isEmpty = true;
        }
        line += isEmpty ? word : u' ' + word;
        isEmpty = false;
    }
    return text + line + u'\n';
}

QString callOf(const Command& command)
{
    return command.name + u' ' + command.synopsis;
}

void printCommand(const Command& command, Output& output)
{
    output.write(
        u"usage: tomely-cli %1\n\n%2: %3.\n"_s.arg(callOf(command), command.name, command.summary));
    if (!command.details.isEmpty())
        output.write(u'\n' + QString(command.details));
    for (const OptionGroup& group : command.options) {
        output.write(u"\n%1\n"_s.arg(group.title));
        for (const Option& option : group.options)
            output.write(
                twoColumns(option.name + u' ' + option.valueName, option.meaning, optionNameWidth));
    }
}

void printAllCommands(Output& output)
{
    output.write(u"usage: tomely-cli COMMAND ...\n\n"
                 "Works with collections of books in the terminal.\n\n"_s);
    for (const Command& command : commands())
        output.write(twoColumns(callOf(command), command.summary, commandNameWidth));
    output.write(u"\n\"tomely-cli help COMMAND\" explains a command, as --help does behind it;\n"
                 "--version prints the version.\n\n"
                 "Exit status: 0 done, 1 the work failed, 2 the command line is wrong.\n"_s);
}

} // namespace

QString usageLine(const Command* command)
{
    if (command)
        return "usage: tomely-cli "_L1 + callOf(*command);
    return u"usage: tomely-cli COMMAND ...; \"tomely-cli help\" lists the commands"_s;
}

void printHelp(const Command* command, Output& output)
{
    if (command)
        printCommand(*command, output);
    else
        printAllCommands(output);
}

void runHelp(const Arguments& arguments, Output& output)
{
    if (arguments.operands.isEmpty())
        return printHelp(nullptr, output);
    const Command* const command = findCommand(arguments.operands.front());
    if (!command)
        throw UsageError{"unknown command "_L1 + arguments.operands.front()};
    printHelp(command, output);
}

} // namespace tomely
