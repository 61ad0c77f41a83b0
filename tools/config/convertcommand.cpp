// SPDX-License-Identifier: MIT
#include "tools/config/subcommands.h"

#include "app/ztconfiguration.h"
#include "tools/config/losses.h"
#include "tools/config/source.h"
#include "tools/terminal.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <unistd.h>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// All that the written file will lack of the present one.
std::vector<Finding> losses(const QByteArray &content, const Source &source, const QString &format)
{
    const Outline outline = readOutline(content, source.format);
    std::vector<Finding> all = outline.losses;
    const std::vector<Finding> more = lossesInFormat(outline, format);
    all.insert(all.end(), more.begin(), more.end());
    return tools::abridged(std::move(all));
}

/// Whether the file may be written, after a word with the person where there is a reason not to.
bool isAllowed(const tools::Call &call, bool loses, const QString &target)
{
    const QString reason = loses ? u"the file written lacks what is listed above"_s
                                 : tools::inOneLine(target) + " exists"_L1;
    if (tools::canAsk())
        return tools::confirmed(call.command + ": "_L1 + reason + "; write it all the same?"_L1);
    tools::printError(call.command + ": "_L1 + reason + "; --force writes it all the same\n"_L1);
    return false;
}

/// What the store tells on standard output belongs on a tool's standard error.
void sendOutputToErrors()
{
    dup2(STDERR_FILENO, STDOUT_FILENO);
}

bool write(const Source &source, const QString &format, const QString &target)
{
    ZTConfiguration config(source.path, source.format);
    return format == "xml"_L1 ? config.buildConfigXmlFile(target) : config.buildConfigFile(target);
}

/// The source, or a copy in the folder of what is no file and has given its content already;
/// nothing when that cannot be written, which is told.
std::optional<Source> readableAgain(const tools::Call &call, const Source &source,
                                    const QByteArray &content, const QTemporaryDir &folder)
{
    if (QFileInfo(source.path).isFile())
        return source;
    QFile copy(folder.filePath(u"read"_s));
    if (copy.open(QIODevice::WriteOnly) && copy.write(content) == content.size() && copy.flush())
        return Source{copy.fileName(), source.format};
    tools::tellTrouble(call, copy.fileName(), copy.errorString());
    return std::nullopt;
}

int writeToOutput(const Source &source, const QString &format)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"written"_s));
    if (!write(source, format, file.fileName()) || !file.open(QIODevice::ReadOnly))
        return tools::Trouble;
    return tools::printBytes(file.readAll());
}

} // namespace

int convert(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Writes the configuration to the file OUT, or to standard output "
                            u"for `-`.\nTells what would be lost, and then writes only when "
                            u"asked to again, as over a file that exists."_s);
    addSourceOptions(line);
    line.addOption({u"to"_s, u"The format to write, cfg or xml."_s, u"FORMAT"_s});
    line.addOption({u"force"_s, u"Writes without asking."_s});
    line.addArgument(u"OUT"_s, u"The file to write."_s);
    if (const auto done = line.read(1, 1))
        return *done;
    const QString format = line.value(u"to"_s);
    if (format != "cfg"_L1 && format != "xml"_L1)
        return line.wrongUsage(u"--to cfg or --to xml is needed"_s);
    const std::optional<Source> source = sourceOf(line);
    const std::optional<QByteArray> content = source ? contentOf(call, *source) : std::nullopt;
    if (!content)
        return tools::Trouble;
    if (nestsTooDeep(readOutline(*content, source->format))) {
        tools::printError(call.command + ": groups stand more than "_L1
                          + QString::number(MostLevels) + " deep within each other\n"_L1);
        return tools::Trouble;
    }

    const QString target = line.arguments().first();
    const bool toOutput = target == "-"_L1 || target == "/dev/stdout"_L1;
    const std::vector<Finding> lost = losses(*content, *source, format);
    tools::printError(tools::findingLines(source->path, lost));
    const bool mustAsk = !lost.empty() || (!toOutput && QFileInfo::exists(target));
    if (mustAsk && !line.isSet(u"force"_s) && !isAllowed(call, !lost.empty(), target))
        return tools::Findings;
    const QTemporaryDir folder;
    const std::optional<Source> again = readableAgain(call, *source, *content, folder);
    if (!again)
        return tools::Trouble;
    if (toOutput)
        return writeToOutput(*again, format);
    sendOutputToErrors();
    return write(*again, format, target) ? tools::Fine : tools::Trouble;
}

} // namespace configtool
