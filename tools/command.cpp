// SPDX-License-Identifier: MIT
#include "tools/command.h"

#include "tools/terminal.h"

#include <algorithm>

namespace tools {

using namespace Qt::StringLiterals;

namespace {

QString helpOn(const CommandLine &line, const CommandGroup &group)
{
    QString help = line.help() + "\nCommands:\n"_L1;
    for (const Command &command : group.commands)
        help += "  "_L1 + QString(command.name).leftJustified(10) + command.summary + u'\n';
    return help + "\n`"_L1 + line.call.command + " COMMAND --help` tells about one of them.\n"_L1;
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
    line.addPositionalArgument(u"COMMAND"_s, u"What to do, see below."_s, u"COMMAND ..."_s);
    line.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    if (call.words.isEmpty()) {
        printError(helpOn(line, group));
        return Trouble;
    }
    line.readWords();
    if (line.isSet(u"help"_s))
        return printOut(helpOn(line, group));
    if (group.version && line.isSet(u"version"_s))
        return printOut(group.version());
    const QStringList arguments = line.positionalArguments();
    if (arguments.isEmpty())
        line.wrongUsage(u"a command is missing"_s);
    const QString &name = arguments.first();
    const auto found = std::ranges::find(group.commands, name, &Command::name);
    if (found == group.commands.end())
        line.wrongUsage("unknown command `"_L1 + name + u'`');
    const QStringList optionsBefore = call.words.first(call.words.size() - arguments.size());
    return found->run({call.command + u' ' + name, optionsBefore + arguments.sliced(1), call.argc,
                       call.argv, call.desktop});
}

CommandLine::CommandLine(const Call &call, const QString &description)
    : call(call)
{
    setApplicationDescription(description);
    addOption({{u"h"_s, u"help"_s}, u"Shows this help."_s});
}

void CommandLine::read(int leastArguments, int mostArguments)
{
    readWords();
    if (isSet(u"help"_s))
        throw Ended{printOut(help())};
    const QStringList arguments = positionalArguments();
    if (arguments.size() < leastArguments)
        wrongUsage(u"an argument is missing"_s);
    if (mostArguments >= 0 && arguments.size() > mostArguments)
        wrongUsage("one argument too many: `"_L1 + arguments[mostArguments] + u'`');
}

void CommandLine::readWords()
{
    if (!parse(QStringList(call.command) + call.words))
        wrongUsage(errorText());
}

void CommandLine::wrongUsage(const QString &mistake) const
{
    printError(call.command + ": "_L1 + inOneLine(mistake) + u'\n' + help().section(u'\n', 0, 0)
               + "\n`"_L1 + call.command + " --help` tells more.\n"_L1);
    throw Ended{};
}

QString CommandLine::help() const
{
    const QString text = helpText();
    return "Usage: "_L1 + call.command + text.sliced(text.indexOf(" [options]"_L1));
}

} // namespace tools
