// SPDX-License-Identifier: MIT
#include "tools/config/configcommand.h"

#include "app/ztconfiguration.h"
#include "text/localeencoding.h"
#include "tools/config/outline.h"
#include "tools/terminal.h"

#include <array>
#include <filesystem>

namespace configtool {

using namespace Qt::StringLiterals;
using namespace tools;

QList<QCommandLineOption> sourceOptions()
{
    return {
        {{u"f"_s, u"file"_s},
         u"Works on FILE instead of ~/.zentaro/conf/zentaro.conf."_s,
         u"FILE"_s},
        {u"queue"_s, u"Works on the settings of the print queue QUEUE."_s, u"QUEUE"_s},
        {u"format"_s,
         u"The format of the file, cfg or xml; xml for a name that ends in .xml, otherwise cfg, "
         u"unless given."_s,
         u"FORMAT"_s}};
}

Source sourceOf(const CommandLine &line)
{
    const QString queue = line.value(u"queue"_s);
    if (line.isSet(u"queue"_s) && !ZTConfiguration::isQueueName(queue))
        line.wrongUsage(u'`' + queue + "` is no name of a print queue"_L1);
    if (line.isSet(u"queue"_s) && line.isSet(u"file"_s))
        line.wrongUsage(u"--file and --queue name one file each"_s);
    const QString path = line.isSet(u"file"_s)    ? line.value(u"file"_s)
                         : line.isSet(u"queue"_s) ? ZTConfiguration::queueFile(queue)
                                                  : ZTConfiguration::userFile();
    const QString format = line.isSet(u"format"_s) ? line.value(u"format"_s) : formatOf(path);
    if (format != "cfg"_L1 && format != "xml"_L1)
        line.wrongUsage("unknown format `"_L1 + format + "`, it is cfg or xml"_L1);
    return {path, format};
}

QString formatOf(const QString &path)
{
    return path.endsWith(".xml"_L1, Qt::CaseInsensitive) ? u"xml"_s : u"cfg"_s;
}

bool isMissing(const QString &path)
{
    std::error_code error;
    return std::filesystem::status(QFile::encodeName(path).constData(), error).type()
           == std::filesystem::file_type::not_found;
}

QByteArray contentOf(const Call &call, const QString &path)
{
    QFile file(path);
    QByteArray content =
        file.open(QIODevice::ReadOnly) ? libconfig::limitedContent(file) : QByteArray();
    QString trouble;
    if (file.error() != QFile::NoError)
        trouble = text::reasonOf(file);
    else if (content.size() > MaxContentBytes)
        trouble = u"more than 64 MiB, which nothing reads"_s;
    if (isMissing(path))
        trouble += "; `zentaro config init` writes one"_L1;
    if (!trouble.isEmpty())
        throw Ended{tellTrouble(call, path, trouble)};
    return content;
}

int writeContent(const Call &call, const QString &path, const QByteArray &content)
{
    if (const QString fault = libconfig::replaceFile(path, content); !fault.isEmpty())
        throw Ended{tellTrouble(call, path, fault)};
    return Fine;
}

OpenedFile::OpenedFile(CommandLine &line, int leastArguments, int mostArguments)
{
    line.addOptions(sourceOptions());
    line.read(leastArguments, mostArguments);
    source = sourceOf(line);
    content = contentOf(line.call, source.path);
    config.readContent(content, source.path, source.format);
}

namespace {

int getValues(const Call &call)
{
    CommandLine line(call, u"Prints the values of keys such as zentaro.doc.paperWidth, a line "
                           u"each, as the print run reads them.\nA key without a value prints "
                           u"an empty line; the exit status is then 1, as for a key that "
                           u"nothing reads."_s);
    line.addPositionalArgument(u"KEY"_s, u"A dotted key."_s, u"KEY..."_s);
    const OpenedFile file(line, 1, -1);
    QString values;
    bool complete = true;
    for (const QString &key : line.positionalArguments()) {
        const auto value = QString::fromLatin1(file.config.lookup(key).toLatin1());
        values += shownValue(settingOf(key), value) + u'\n';
        const QString unread = unreadKey(key);
        if (!unread.isEmpty())
            refuse(call, unread);
        complete = complete && !value.isEmpty() && unread.isEmpty();
    }
    printOut(values);
    return complete ? Fine : Findings;
}

int listValues(const Call &call)
{
    CommandLine line(call, u"Prints every key and its value, one a line, in the order of the "
                           u"file; also those that no lookup finds (check tells which)."_s);
    const OpenedFile file(line, 0, 0);
    QString list;
    file.config.forEachSetting([&list](const QString &key, const QString &value) {
        list += inOneLine(key + " = "_L1 + shownValue(settingOf(key), value)) + u'\n';
    });
    return printOut(list);
}

int listKeys(const Call &call)
{
    CommandLine line(call, u"Prints every key that something reads, and what counts where "
                           u"the configuration gives none."_s);
    line.addOptions(sourceOptions());
    line.read(0, 0);
    QString list;
    for (const QString &group : knownGroups()) {
        for (const Setting *const setting : settingsOf(group))
            list += keyOf(group, setting->word) + " = "_L1 + setting->byDefault + u'\n';
    }
    return printOut(list);
}

int showTree(const Call &call)
{
    CommandLine line(call, u"Prints the tree of groups and settings that the file gives."_s);
    const OpenedFile file(line, 0, 0);
    return printOut(file.config.configTreeText());
}

int check(const Call &call)
{
    CommandLine line(
        call, u"Reads the file as the suite does and tells what is wrong with it:\n"
              u"FILE:LINE:COLUMN: SEVERITY: TEXT [CODE], at most a hundred lines of a code.\n"
              u"The exit status is 1 when there is something to tell."_s);
    line.addOption({u"json"_s, u"Prints a JSON array instead."_s});
    const OpenedFile file(line, 0, 0);
    const std::vector<Finding> findings =
        abridged(findingsIn(readOutline(file.content, file.source.format)));
    const QString &path = file.source.path;
    line.isSet(u"json"_s) ? printBytes(findingsAsJson({{path, findings}}))
                          : printOut(findingLines(path, findings));
    return findings.empty() ? Fine : Findings;
}

int edit(const Call &call)
{
    CommandLine line(call, u"Opens the configuration in a window, to look through it, change "
                           u"it and save it.\nWhat is wrong with it stands beside it."_s);
    line.addOptions(sourceOptions());
    line.read(0, 0);
    const Source source = sourceOf(line);
    return call.desktop ? call.desktop->edit(call, source) : startDesktop(call);
}

constexpr std::array<Command, 10> commands = {{
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

int run(const Call &call)
{
    return dispatch(call, u"Reads, checks and changes the configuration of the suite."_s, commands,
                    sourceOptions());
}

} // namespace configtool
