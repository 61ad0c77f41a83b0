// SPDX-License-Identifier: MIT
#include "tools/config/subcommands.h"

#include "app/ztconfiguration.h"
#include "tools/config/source.h"
#include "tools/terminal.h"

#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// What a command that only reads has found: the file it works on, or the exit status to end with.
struct Opened
{
    std::optional<Source> source;
    int exitStatus = tools::Trouble;
};

/// Reads the words and looks whether the file can be read; what is wrong has been told.
Opened open(const tools::Call &call, tools::CommandLine &line, int least, int most)
{
    addSourceOptions(line);
    if (const auto done = line.read(least, most))
        return {std::nullopt, *done};
    const std::optional<Source> source = sourceOf(line);
    if (!source || !isReadable(call, *source))
        return {};
    return {source, tools::Fine};
}

} // namespace

int getValues(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Prints the values of keys such as zentaro.doc.paperWidth, a line "
                            u"each, as the print run reads them.\nA key without a value prints "
                            u"an empty line; the exit status is then 1."_s);
    line.addArgument(u"KEY"_s, u"A dotted key."_s, u"KEY..."_s);
    const Opened opened = open(call, line, 1, -1);
    if (!opened.source)
        return opened.exitStatus;
    const ZTConfiguration config(opened.source->path, opened.source->format);
    QString values;
    bool complete = true;
    for (const QString &key : line.arguments()) {
        const QString value = config.getStrValue(key);
        complete = complete && !value.isEmpty();
        values += value + u'\n';
    }
    const int written = tools::printOut(values);
    return written == tools::Fine && !complete ? tools::Findings : written;
}

int listValues(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Prints every key and its value, one a line, in the order of the "
                            u"file; also those that no lookup finds (check tells which)."_s);
    const Opened opened = open(call, line, 0, 0);
    if (!opened.source)
        return opened.exitStatus;
    constexpr qsizetype Portion = 65'536; // characters printed at once
    const ZTConfiguration config(opened.source->path, opened.source->format);
    QString list;
    config.forEachSetting([&list](const QString &key, const QString &value) {
        list += tools::inOneLine(key + " = "_L1 + value) + u'\n';
        if (list.size() > Portion)
            tools::printOut(std::exchange(list, {}));
    });
    return tools::printOut(list);
}

int showTree(const tools::Call &call)
{
    tools::CommandLine line(call, u"Prints the tree of groups and settings that the file gives."_s);
    const Opened opened = open(call, line, 0, 0);
    if (!opened.source)
        return opened.exitStatus;
    return tools::printOut(
        ZTConfiguration(opened.source->path, opened.source->format).configTreeText());
}

} // namespace configtool
