// SPDX-License-Identifier: MIT
#include "tools/command.h"

#include "app/syncsingleton.h"
#include "app/translation.h"
#include "app/ztconfiguration.h"
#include "text/localeencoding.h"
#include "text/system.h"
#include "tools/config/configcommand.h"
#include "tools/config/outline.h"
#include "tools/terminal.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <unistd.h>

namespace tools {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<Command, 5> companionCommands = {{
    {"check"_L1, "tells what is wrong with print requests"_L1, requestcheck::run},
    {"config"_L1, "the configuration: reads, checks and changes it"_L1, configtool::run},
    {"preview"_L1, "shows what will be printed, as text or as a picture"_L1, preview::run},
    {"queue"_L1, "print queues: makes, lists, removes and tries them"_L1, queuetool::run},
    {"schema"_L1, "writes the schema of print requests, for editors"_L1, schema::run},
}};

/// A line for this program, and one for the print compiler beside it, which may be another's.
QString versions()
{
    QString lines = u"zentaro " ZENTARO_VERSION "\n"_s;
    QFile compiler(programFolder() + "/zentaro-print"_L1);
    const QByteArray bytes = compiler.open(QIODevice::ReadOnly) ? compiler.readAll() : QByteArray();
    if (const qsizetype mark = bytes.indexOf("@(#) zentaro-print "); mark >= 0)
        lines += QString::fromLatin1(bytes.constData() + mark + 5) + u'\n';
    return lines;
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

int dispatch(const Call &call, const QString &description, std::span<const Command> commands,
             const QList<QCommandLineOption> &options)
{
    CommandLine line(call, description);
    line.commands = commands;
    line.addOptions(options);
    line.addPositionalArgument(u"COMMAND"_s, u"What to do, see below."_s, u"COMMAND ..."_s);
    line.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    if (call.words.isEmpty()) {
        printError(line.help());
        return Trouble;
    }
    line.read(0, -1);
    const QStringList arguments = line.positionalArguments();
    if (arguments.isEmpty())
        line.wrongUsage(u"a command is missing"_s);
    const QString &name = arguments.first();
    const auto found = std::ranges::find(commands, name, &Command::name);
    if (found == commands.end())
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
    if (!parse(QStringList(call.command) + call.words))
        wrongUsage(errorText());
    if (isSet(u"help"_s))
        throw Ended{printOut(help())};
    const QStringList arguments = positionalArguments();
    if (arguments.size() < leastArguments)
        wrongUsage(u"an argument is missing"_s);
    if (mostArguments >= 0 && arguments.size() > mostArguments)
        wrongUsage("one argument too many: `"_L1 + arguments[mostArguments] + u'`');
}

void CommandLine::wrongUsage(const QString &mistake) const
{
    printError(call.command + ": "_L1 + inOneLine(mistake) + u'\n' + help().section(u'\n', 0, 0)
               + "\n`"_L1 + call.command + " --help` tells more.\n"_L1);
    throw Ended{};
}

QString CommandLine::help() const
{
    QString help = helpText();
    help = "Usage: "_L1 + call.command + help.sliced(help.indexOf(" [options]"_L1));
    if (commands.empty())
        return help;
    help += "\nCommands:\n"_L1;
    for (const Command &command : commands)
        help += "  "_L1 + QString(command.name).leftJustified(10) + command.summary + u'\n';
    return help + "\n`"_L1 + call.command + " COMMAND --help` tells about one of them.\n"_L1;
}

int runCompanion(int argc, char **argv, const Desktop *desktop)
{
    QStringList words;
    for (int i = 1; i < argc; ++i) {
        words.append(QFile::decodeName(argv[i]));
        // The toolkit would open another file than the one that is named. Requests are looked at
        // one by one.
        const bool namesRequests = words.first() == "check"_L1 || words.first() == "preview"_L1;
        if (QFile::encodeName(words.last()) != argv[i] && !namesRequests) {
            printError("zentaro: the word `"_L1 + words.last() + "` is not UTF-8\n"_L1);
            return Trouble;
        }
    }
    try {
        if (words.value(0) == "--version"_L1)
            return printOut(versions());
        return dispatch({u"zentaro"_s, words, argc, argv, desktop},
                        u"The companion of zentaro-print."_s, companionCommands,
                        {QCommandLineOption(u"version"_s, u"Shows the version."_s)});
    } catch (const Ended &end) {
        return end.exitStatus;
    }
}

QString programFolder()
{
    const QString place = QFileInfo(QFile::symLinkTarget(u"/proc/self/exe"_s)).path();
    return QFile::exists(place + "/zentaro"_L1)
               ? place
               : QFileInfo(place + u"/" ZENTARO_BIN_FROM_LIBEXEC ""_s).canonicalFilePath();
}

QString translationsFolder()
{
    for (const auto place :
         {"/" ZENTARO_DATA_FROM_BIN "/zentaro/translations"_L1, "/../translations"_L1}) {
        if (const QFileInfo folder(programFolder() + place); folder.isDir())
            return folder.canonicalFilePath();
    }
    return {};
}

int startDesktop(const Call &call)
{
    const QString place = programFolder();
    // Beside this program in a build; where it is installed, as far from it as the build says.
    for (const QString &folder : {place, place + u"/" ZENTARO_LIBEXEC_FROM_BIN ""_s}) {
        execv(QFile::encodeName(folder + "/zentaro-window"_L1).constData(), call.argv);
        if (errno != ENOENT && errno != ENOTDIR)
            return tellTrouble(call, u"zentaro-window"_s, text::systemMessage(errno));
    }
    return refuse(call, u"the package zentaro-desktop is needed for this"_s);
}

namespace {

constexpr auto standardInput = "-"_L1;
constexpr auto notUtf8 = "its name is not UTF-8"_L1;

void leaveOut(const Call &call, const QString &name, const QString &trouble, RequestFiles &files)
{
    tellTrouble(call, name, trouble);
    files.isWhole = false;
}

/// Adds the requests in a folder, hidden ones too.
void addFolder(const Call &call, const QString &folder, RequestFiles &files)
{
    QStringList found;
    std::error_code error;
    std::filesystem::recursive_directory_iterator entry(QFile::encodeName(folder).constData(),
                                                        error);
    for (; !error && entry != end(entry); entry.increment(error)) {
        const QByteArray path = entry->path().c_str();
        const QString name = QFile::decodeName(path);
        std::error_code gone;
        if (!name.endsWith(".xml"_L1, Qt::CaseInsensitive) || !entry->is_regular_file(gone))
            continue;
        if (QFile::encodeName(name) == path)
            found.append(name);
        else
            leaveOut(call, name, notUtf8, files);
    }
    if (error)
        leaveOut(call, folder, text::systemMessage(error.value()), files);
    else if (found.isEmpty())
        leaveOut(call, folder, u"holds no file whose name ends in .xml"_s, files);
    found.sort();
    files.names += found;
}

} // namespace

RequestFiles requestFiles(const Call &call, const QStringList &words)
{
    RequestFiles files;
    for (const QString &word : words) {
        const QFileInfo named(word);
        if (word.contains(QChar::ReplacementCharacter))
            leaveOut(call, word, notUtf8, files);
        else if (word != standardInput && !named.exists())
            leaveOut(call, word, text::systemMessage(ENOENT), files);
        else if (word != standardInput && named.isDir())
            addFolder(call, word, files);
        else
            files.names.append(word);
    }
    return files;
}

std::unique_ptr<QFile> openedRequest(const Call &call, const QString &name)
{
    auto file = std::make_unique<QFile>(name);
    if (name == standardInput ? file->open(stdin, QIODevice::ReadOnly)
                              : file->open(QIODevice::ReadOnly))
        return file;
    tellTrouble(call, name, text::reasonOf(*file));
    return nullptr;
}

void addConfigurationOption(CommandLine &line)
{
    line.addOption(
        {{u"c"_s, u"config"_s},
         u"Prints with the configuration FILE instead of ~/.zentaro/conf/zentaro.conf."_s,
         u"FILE"_s});
}

bool useConfiguration(const Call &call, const QString &fileName, QTranslator &labels)
{
    const bool isOwn = fileName.isEmpty();
    const QString path = isOwn ? ZTConfiguration::userFile() : fileName;
    const QString format = configtool::formatOf(path);
    const bool isThere = !isOwn || !configtool::isMissing(path);
    const QByteArray content = isThere ? configtool::contentOf(call, path) : QByteArray();
    // The first use reads the user's own file, whose absence is told by whoever minds it.
    const QScopedValueRollback<std::FILE *> quiet(text::diagnostics, nullptr);
    ZTConfiguration *const configuration = SyncSingleton<ZTConfiguration>::instance();
    if (!isOwn)
        configuration->readContent(content, path, format);
    if (hasError(configtool::findingsIn(configtool::readOutline(content, format))))
        tellTrouble(call, path, u"it has faults, which `zentaro config check` tells"_s);
    QCoreApplication::removeTranslator(&labels);
    if (loadTranslation(labels, *configuration))
        QCoreApplication::installTranslator(&labels);
    return isThere;
}

} // namespace tools
