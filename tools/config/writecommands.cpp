// SPDX-License-Identifier: MIT
#include "tools/config/configcommand.h"

#include "tools/config/settingcheck.h"
#include "tools/config/settingedit.h"
#include "tools/knownkeys.h"
#include "tools/terminal.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// Whether the file may be written, after a word with the person where there is a reason not to.
bool isAllowed(const tools::Call &call, const QString &reason)
{
    if (tools::canAsk())
        return tools::confirmed(call.command + ": "_L1 + reason + "; write it all the same?"_L1);
    tools::refuse(call, reason + "; --force writes it all the same"_L1);
    return false;
}

/// The errors of a configuration that another does not have.
std::vector<Finding> newErrors(const QByteArray &content, const QByteArray &before)
{
    const std::vector<Finding> old = findingsIn(readCfgOutline(before));
    std::vector<Finding> found = findingsIn(readCfgOutline(content));
    std::erase_if(found, [&old](const Finding &finding) {
        return finding.severity != Severity::Error
               || std::ranges::find(old, finding.text, &Finding::text) != old.end();
    });
    return found;
}

/// The keys of all documents that have the key word.
QStringList keysOfAll(const QString &word)
{
    QStringList keys;
    for (const QString &group : tools::groupsWith(word)) {
        if (tools::isDocumentGroup(group))
            keys.append(tools::keyOf(group, word));
    }
    return keys;
}

/// What `set` and `unset` share: changes keys, behind each of which its value stands for `set`.
int changeValues(const tools::Call &call, tools::CommandLine &line, bool sets)
{
    const qsizetype step = sets ? 2 : 1; // words
    line.addOption({u"all"_s, u"Takes KEY for a key word, as paperWidth, in the groups of all "
                              "documents that have it."_s});
    line.addOption({u"force"_s, u"Also what `config check` would tell as an error, and keys that "
                                "nothing reads."_s});
    const OpenedFile file(call, line, int(step), -1);
    if (file.exitStatus)
        return *file.exitStatus;
    const QStringList words = line.arguments();
    if (words.size() % step != 0)
        return line.wrongUsage("the value of `"_L1 + words.last() + "` is missing"_L1);
    if (file.source.format != "cfg"_L1)
        return line.wrongUsage(u"only a file in the format cfg is changed in place"_s);

    QByteArray changed = file.content;
    for (qsizetype i = 0; i < words.size(); i += step) {
        const QStringList keys = line.isSet(u"all"_s) ? keysOfAll(words[i]) : QStringList(words[i]);
        const QString unread = unreadKey(keys.value(0, words[i]));
        if (!unread.isEmpty() && (keys.isEmpty() || !line.isSet(u"force"_s)))
            return tools::refuse(call, unread, tools::Findings);
        for (const QString &key : keys) {
            auto [edited, fault] =
                sets ? withSetting(changed, key, words[i + 1]) : withoutSetting(changed, key);
            if (!fault.isEmpty())
                return tools::tellTrouble(call, key, fault);
            changed = std::move(edited);
        }
    }
    if (const auto errors = newErrors(changed, file.content);
        !errors.empty() && !line.isSet(u"force"_s)) {
        tools::printError(tools::findingLines(file.source.path, errors));
        return tools::refuse(call, u"nothing was changed; --force writes it all the same"_s,
                             tools::Findings);
    }
    return changed == file.content ? tools::Fine : writeContent(call, file.source.path, changed);
}

} // namespace

int setValues(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Gives keys such as zentaro.doc.paperWidth a value, and leaves "
                            u"every other byte of the file as it is.\nSays nothing when it is "
                            u"done; changes nothing where one value is refused."_s);
    line.addArgument(u"KEY"_s, u"A dotted key, and behind it its value."_s, u"KEY VALUE..."_s);
    return changeValues(call, line, true);
}

int unsetValues(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Takes the settings of keys such as zentaro.doc.paperWidth away, "
                            u"so that they have their defaults."_s);
    line.addArgument(u"KEY"_s, u"A dotted key."_s, u"KEY..."_s);
    return changeValues(call, line, false);
}

int convert(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Writes the configuration to the file OUT, or to standard output "
                            u"for `-`.\nTells what would be lost, and then writes only when "
                            u"asked to again, as over a file that exists."_s);
    line.addOption({u"to"_s, u"The format to write, cfg or xml."_s, u"FORMAT"_s});
    line.addOption({u"force"_s, u"Writes without asking."_s});
    line.addArgument(u"OUT"_s, u"The file to write."_s);
    const OpenedFile file(call, line, 1, 1);
    if (file.exitStatus)
        return *file.exitStatus;
    const QString format = line.value(u"to"_s);
    if (format != "cfg"_L1 && format != "xml"_L1)
        return line.wrongUsage(u"--to cfg or --to xml is needed"_s);
    const Outline outline = readOutline(file.content, file.source.format);
    const std::optional<QByteArray> written = file.config.writtenAs(format);
    if (!written)
        return tools::refuse(call, u"more than 64 MiB would be written, which nothing reads"_s);

    const QString target = line.arguments().first();
    const bool toOutput = target == "-"_L1 || target == "/dev/stdout"_L1;
    std::vector<Finding> lost = outline.losses;
    std::ranges::move(lossesInFormat(outline, format), std::back_inserter(lost));
    tools::printError(tools::findingLines(file.source.path, tools::abridged(lost)));
    QString reason;
    if (!lost.empty())
        reason = u"the file written lacks what is listed above"_s;
    else if (!toOutput && QFileInfo::exists(target))
        reason = tools::inOneLine(target) + " exists"_L1;
    if (!reason.isEmpty() && !line.isSet(u"force"_s) && !isAllowed(call, reason))
        return tools::Findings;
    return toOutput ? tools::printBytes(*written) : writeContent(call, target, *written);
}

} // namespace configtool
