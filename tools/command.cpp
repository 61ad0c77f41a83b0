// SPDX-License-Identifier: MIT
#include "tools/command.h"

#include "tools/terminal.h"

#include <algorithm>

namespace tools {

using namespace Qt::StringLiterals;

namespace {

QString helpOn(const CommandLine &line, const Call &call, const CommandGroup &group)
{
    QString help = line.helpText() + "\nCommands:\n"_L1;
    for (const Command &command : group.commands)
        help += "  "_L1 + QString(command.name).leftJustified(10) + command.summary + u'\n';
    return help + "\n`"_L1 + call.command + " COMMAND --help` tells about one of them.\n"_L1;
}

} // namespace

int refuse(const Call &call, const QString &reason, ExitStatus exitStatus)
{
    printError(call.command + ": "_L1 + reason + u'\n');
    return exitStatus;
}

int tellTrouble(const Call &call, const QString &name, const QString &trouble)
{
    return refuse(call, inOneLine(name) + ": "_L1 + trouble);
}

int dispatch(const Call &call, const CommandGroup &group)
{
    CommandLine line(call, group.description);
    line.addOptions(group.common);
    if (group.version)
        line.addOption({u"version"_s, u"Shows the version."_s});
    line.addArgument(u"COMMAND"_s, u"What to do, see below."_s, u"COMMAND ..."_s);
    line.stopAtFirstArgument();
    if (call.words.isEmpty()) {
        printError(helpOn(line, call, group));
        return Trouble;
    }
    if (!line.parse())
        return Trouble;
    if (line.isSet(u"help"_s))
        return printOut(helpOn(line, call, group));
    if (group.version && line.isSet(u"version"_s))
        return printOut(group.version());
    const QStringList arguments = line.arguments();
    if (arguments.isEmpty())
        return line.wrongUsage(u"a command is missing"_s);
    const QString &name = arguments.first();
    const auto found = std::ranges::find(group.commands, name, &Command::name);
    if (found == group.commands.end())
        return line.wrongUsage("unknown command `"_L1 + name + u'`');
    const QStringList optionsBefore = call.words.first(call.words.size() - arguments.size());
    return found->run({call.command + u' ' + name, optionsBefore + arguments.sliced(1), call.argc,
                       call.argv, call.desktop});
}

CommandLine::CommandLine(const Call &call, const QString &description)
    : call(call)
{
    parser.setApplicationDescription(description);
    parser.addOption({{u"h"_s, u"help"_s}, u"Shows this help."_s});
}

void CommandLine::addArgument(const QString &name, const QString &description,
                              const QString &syntax)
{
    parser.addPositionalArgument(name, description, syntax);
    usage += u' ' + (syntax.isEmpty() ? name : syntax);
}

void CommandLine::stopAtFirstArgument()
{
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
}

bool CommandLine::parse()
{
    if (parser.parse(QStringList(call.command) + call.words))
        return true;
    wrongUsage(parser.errorText());
    return false;
}

std::optional<int> CommandLine::read(int leastArguments, int mostArguments)
{
    if (!parse())
        return Trouble;
    if (parser.isSet(u"help"_s))
        return printOut(helpText());
    const qsizetype count = parser.positionalArguments().size();
    if (count < leastArguments)
        return wrongUsage(u"an argument is missing"_s);
    if (mostArguments >= 0 && count > mostArguments)
        return wrongUsage("one argument too many: `"_L1
                          + parser.positionalArguments().at(mostArguments) + u'`');
    return std::nullopt;
}

int CommandLine::wrongUsage(const QString &mistake) const
{
    printError(call.command + ": "_L1 + inOneLine(mistake) + "\nUsage: "_L1 + call.command
               + " [options]"_L1 + usage + "\n`"_L1 + call.command + " --help` tells more.\n"_L1);
    return Trouble;
}

/// The toolkit's help, under the whole command instead of the program's name alone.
QString CommandLine::helpText() const
{
    const QString text = parser.helpText();
    return "Usage: "_L1 + call.command + " [options]"_L1 + usage + text.sliced(text.indexOf(u'\n'));
}

} // namespace tools
