// SPDX-License-Identifier: MIT
#include "tools/config/subcommands.h"

#include "config/config.h"
#include "tools/companion.h"
#include "tools/config/settingcheck.h"
#include "tools/config/source.h"
#include "tools/knownkeys.h"
#include "tools/terminal.h"

#include <array>
#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// The configuration that a command which only reads works on, or the exit status to end with.
struct OpenedFile
{
    OpenedFile(const tools::Call &call, tools::CommandLine &line, int least, int most)
    {
        addSourceOptions(line);
        if (const auto done = line.read(least, most))
            exitStatus = *done;
        else
            source = sourceOf(line);
        content = source ? contentOf(call, *source) : std::nullopt;
        if (!content)
            return;
        config.readContent(*content, source->path, source->format);
        exitStatus.reset();
    }

    std::optional<Source> source;
    std::optional<QByteArray> content;
    libconfig::Config config;
    std::optional<int> exitStatus = tools::Trouble; ///< none where the file was read
};

int getValues(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Prints the values of keys such as zentaro.doc.paperWidth, a line "
                            u"each, as the print run reads them.\nA key without a value prints "
                            u"an empty line; the exit status is then 1, as for a key that "
                            u"nothing reads."_s);
    line.addArgument(u"KEY"_s, u"A dotted key."_s, u"KEY..."_s);
    const OpenedFile file(call, line, 1, -1);
    if (file.exitStatus)
        return *file.exitStatus;
    QString values;
    bool complete = true;
    for (const QString &key : line.arguments()) {
        const QByteArray value = file.config.lookup(key).toLatin1();
        values += QString::fromLatin1(value) + u'\n';
        const QString unread = unreadKey(key);
        if (!unread.isEmpty())
            tools::printError(call.command + ": "_L1 + unread + u'\n');
        complete = complete && !value.isEmpty() && unread.isEmpty();
    }
    const int printed = tools::printOut(values);
    return printed == tools::Fine && !complete ? tools::Findings : printed;
}

int listValues(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Prints every key and its value, one a line, in the order of the "
                            u"file; also those that no lookup finds (check tells which)."_s);
    const OpenedFile file(call, line, 0, 0);
    if (file.exitStatus)
        return *file.exitStatus;
    constexpr qsizetype Portion = 65'536; // characters printed at once
    QString list;
    file.config.forEachSetting([&list](const QString &key, const QString &value) {
        list += tools::inOneLine(key + " = "_L1 + value) + u'\n';
        if (list.size() > Portion)
            tools::printOut(std::exchange(list, {}));
    });
    return tools::printOut(list);
}

int listKeys(const tools::Call &call)
{
    tools::CommandLine line(call, u"Prints every key that something reads, and what counts where "
                                  u"the configuration gives none."_s);
    addSourceOptions(line);
    if (const auto done = line.read(0, 0))
        return *done;
    QString list;
    for (const QString &group : tools::knownGroups()) {
        for (const Setting *const setting : tools::settingsOf(group))
            list += tools::keyOf(group, setting->word) + " = "_L1 + setting->byDefault + u'\n';
    }
    return tools::printOut(list);
}

int showTree(const tools::Call &call)
{
    tools::CommandLine line(call, u"Prints the tree of groups and settings that the file gives."_s);
    const OpenedFile file(call, line, 0, 0);
    if (file.exitStatus)
        return *file.exitStatus;
    return tools::printOut(file.config.configTreeText());
}

int check(const tools::Call &call)
{
    tools::CommandLine line(
        call, u"Reads the file as the suite does and tells what is wrong with it:\n"
              u"FILE:LINE:COLUMN: SEVERITY: TEXT [CODE], at most a hundred lines of a code.\n"
              u"The exit status is 1 when there is something to tell."_s);
    line.addOption({u"json"_s, u"Prints a JSON array instead."_s});
    const OpenedFile file(call, line, 0, 0);
    if (file.exitStatus)
        return *file.exitStatus;
    const std::vector<Finding> findings =
        tools::abridged(findingsIn(readOutline(*file.content, file.source->format)));
    const QString &path = file.source->path;
    const int printed = line.isSet(u"json"_s)
                            ? tools::printBytes(tools::findingsAsJson(path, findings).toUtf8())
                            : tools::printOut(tools::findingLines(path, findings));
    return printed == tools::Fine && !findings.empty() ? tools::Findings : printed;
}

int edit(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Opens the configuration in a window, to look through it, change "
                            u"it and save it.\nWhat is wrong with it stands beside it."_s);
    addSourceOptions(line);
    if (const auto done = line.read(0, 0))
        return *done;
    const std::optional<Source> source = sourceOf(line);
    if (!source)
        return tools::Trouble;
    return call.desktop ? call.desktop->edit(call, *source) : tools::startDesktop(call);
}

constexpr std::array<tools::Command, 10> commands = {{
    {"get"_L1, "prints the values of keys"_L1, getValues},
    {"set"_L1, "gives keys a value"_L1, setValues},
    {"unset"_L1, "takes settings away"_L1, unsetValues},
    {"keys"_L1, "prints every key that something reads, and its default"_L1, listKeys},
    {"list"_L1, "prints every key and its value"_L1, listValues},
    {"tree"_L1, "prints the groups and their settings as they are kept"_L1, showTree},
    {"check"_L1, "tells what is wrong with the file, and where"_L1, check},
    {"convert"_L1, "writes the configuration in another format"_L1, convert},
    {"edit"_L1, "opens the configuration in a window"_L1, edit},
    {"init"_L1, "writes a complete configuration to start from"_L1, init},
}};

} // namespace

int run(const tools::Call &call)
{
    return tools::dispatch(call, {u"Reads, checks and changes the configuration of the suite."_s,
                                  commands,
                                  sourceOptions(),
                                  {}});
}

} // namespace configtool
