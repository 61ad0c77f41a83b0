// SPDX-License-Identifier: MIT
#include "tools/config/configcommand.h"

#include "app/ztconfiguration.h"
#include "text/localeencoding.h"
#include "tools/config/outline.h"
#include "tools/terminal.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <unistd.h>
#include <utility>

// A resource of a static library is linked only when it is called for, outside any namespace.
static void initTemplate() { Q_INIT_RESOURCE(templates); }

namespace configtool {

using namespace Qt::StringLiterals;
using namespace tools;

namespace {

/// Whether the file may be written, after a word with the person where there is a reason not to.
bool isAllowed(const Call &call, const QString &reason)
{
    if (isatty(STDIN_FILENO) == 0) {
        refuse(call, reason + "; --force writes it all the same"_L1);
        return false;
    }
    printError(call.command + ": "_L1 + reason + "; write it all the same? [y/N] "_L1);
    const int answer = std::getchar();
    return answer == 'y' || answer == 'Y';
}

/// The errors of a configuration that another does not have.
std::vector<Finding> newErrors(const QByteArray &content, const QByteArray &before)
{
    const std::vector<Finding> old = findingsIn(readOutline(before));
    std::vector<Finding> found = findingsIn(readOutline(content));
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
    for (const QString &group : groupsWith(word)) {
        if (isDocumentGroup(group))
            keys.append(keyOf(group, word));
    }
    return keys;
}

/// What `set` and `unset` share: changes keys, behind each of which its value stands for `set`.
int changeValues(const Call &call, CommandLine &line, bool sets)
{
    const qsizetype step = sets ? 2 : 1; // words
    line.addOption({u"all"_s, u"Takes KEY for a key word, as paperWidth, in the groups of all "
                              "documents that have it."_s});
    line.addOption({u"force"_s, u"Also what `config check` would tell as an error, and keys that "
                                "nothing reads."_s});
    const OpenedFile file(line, int(step), -1);
    const QStringList words = line.positionalArguments();
    if (words.size() % step != 0)
        line.wrongUsage("the value of `"_L1 + words.last() + "` is missing"_L1);
    if (file.source.format != "cfg"_L1)
        line.wrongUsage(u"only a file in the format cfg is changed in place"_s);

    QByteArray changed = file.content;
    for (qsizetype i = 0; i < words.size(); i += step) {
        const QStringList keys = line.isSet(u"all"_s) ? keysOfAll(words[i]) : QStringList(words[i]);
        const QString unread = unreadKey(keys.value(0, words[i]));
        if (keys.isEmpty() && unread.isEmpty())
            line.wrongUsage("--all takes key words, as paperWidth, not `"_L1 + words[i] + u'`');
        if (!unread.isEmpty() && (keys.isEmpty() || !line.isSet(u"force"_s)))
            return refuse(call, unread, Findings);
        for (const QString &key : keys) {
            auto [edited, fault] =
                sets ? withSetting(changed, key, words[i + 1]) : withoutSetting(changed, key);
            if (!fault.isEmpty())
                return tellTrouble(call, key, fault);
            changed = std::move(edited);
        }
    }
    if (const auto errors = newErrors(changed, file.content);
        !errors.empty() && !line.isSet(u"force"_s)) {
        printError(findingLines(file.source.path, errors));
        return refuse(call, u"nothing was changed; --force writes it all the same"_s, Findings);
    }
    return changed == file.content ? int(Fine) : writeContent(call, file.source.path, changed);
}

/// What paper of 32, 40, 42 and 48 columns wants of the documents.
constexpr std::array<std::pair<QLatin1StringView, std::array<int, 4>>, 5> paperNumbers = {
    {{"paperWidth"_L1, {32, 40, 42, 48}},
     {"priceFieldWidth"_L1, {7, 8, 8, 9}},
     {"totalPriceFieldWidth"_L1, {8, 9, 9, 10}},
     {"topMargin"_L1, {1, 2, 2, 2}},
     {"descriptionWidth"_L1, {18, 20, 21, 24}}}};

/// A complete configuration: the sample for 40 columns with other values. Labels are English in the
/// program, and of other languages in files.
QByteArray startingConfiguration(size_t paper, const QString &language)
{
    initTemplate();
    QFile file(u":/templates/zentaro-40.conf"_s);
    QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const auto set = [&content](const QString &key, const QString &value) {
        content = withSetting(content, key, value).content;
    };
    for (const auto &[word, byPaper] : paperNumbers) {
        for (const QString &group : groupsWith(QString(word)))
            set(keyOf(group, word), QString::number(byPaper[paper]));
    }
    if (language != "en"_L1) {
        set(u"zentaro.language.basedir"_s, translationsFolder());
        set(u"zentaro.language.file"_s, "/zentaro_"_L1 + language);
    }
    return content;
}

/// The language of the labels that the option names, else the locale's, else English. One that is
/// unknown or not installed ends the command.
QString languageFor(const CommandLine &line)
{
    const QString named = line.value(u"language"_s);
    QString language = named.isEmpty() ? QLocale::system().name().section(u'_', 0, 0) : named;
    const QString file = "/zentaro_"_L1 + language + ".qm"_L1;
    if (language == "en"_L1 || QFileInfo::exists(translationsFolder() + file))
        return language;
    if (named.isEmpty())
        return u"en"_s;
    if (!QStringList{u"it"_s, u"de"_s, u"fr"_s, u"es"_s}.contains(named))
        line.wrongUsage("no labels in `"_L1 + named + "`, but in it, de, fr, es and en"_L1);
    throw Ended{tellTrouble(line.call, "zentaro_"_L1 + named + ".qm"_L1,
                            u"not installed with this program"_s)};
}

} // namespace

int setValues(const Call &call)
{
    CommandLine line(call, u"Gives keys such as zentaro.doc.paperWidth a value, and leaves "
                           u"every other byte of the file as it is.\nSays nothing when it is "
                           u"done; changes nothing where one value is refused."_s);
    line.addPositionalArgument(u"KEY"_s, u"A dotted key, and behind it its value."_s,
                               u"KEY VALUE..."_s);
    return changeValues(call, line, true);
}

int unsetValues(const Call &call)
{
    CommandLine line(call, u"Takes the settings of keys such as zentaro.doc.paperWidth away, "
                           u"so that they have their defaults."_s);
    line.addPositionalArgument(u"KEY"_s, u"A dotted key."_s, u"KEY..."_s);
    return changeValues(call, line, false);
}

int convert(const Call &call)
{
    CommandLine line(call, u"Writes the configuration to the file OUT, or to standard output "
                           u"for `-`.\nTells what would be lost, and then writes only when "
                           u"asked to again, as over a file that exists."_s);
    line.addOption({u"to"_s, u"The format to write, cfg or xml."_s, u"FORMAT"_s});
    line.addOption({u"force"_s, u"Writes without asking."_s});
    line.addPositionalArgument(u"OUT"_s, u"The file to write."_s);
    const OpenedFile file(line, 1, 1);
    const QString format = line.value(u"to"_s);
    if (format != "cfg"_L1 && format != "xml"_L1)
        line.wrongUsage(u"--to cfg or --to xml is needed"_s);
    const Outline outline = readOutline(file.content, file.source.format);
    const std::optional<QByteArray> written = file.config.writtenAs(format);
    if (!written)
        return refuse(call, u"more than 64 MiB would be written, which nothing reads"_s);

    const QString target = line.positionalArguments().first();
    const bool toOutput = target == "-"_L1 || target == "/dev/stdout"_L1;
    std::vector<Finding> lost = outline.losses;
    std::ranges::move(lossesInFormat(outline, format), std::back_inserter(lost));
    printError(findingLines(file.source.path, abridged(lost)));
    QString reason;
    if (!lost.empty())
        reason = u"the file written lacks what is listed above"_s;
    else if (!toOutput && QFileInfo::exists(target))
        reason = inOneLine(target) + " exists"_L1;
    if (!reason.isEmpty() && !line.isSet(u"force"_s) && !isAllowed(call, reason))
        return Findings;
    return toOutput ? printBytes(*written) : writeContent(call, target, *written);
}

int init(const Call &call)
{
    CommandLine line(call, u"Writes a complete configuration to start from."_s);
    line.addOptions(sourceOptions());
    line.addOptions(
        {{{u"c"_s, u"columns"_s},
          u"The paper's width in characters: 32, 40, 42 or 48 (40 unless given)."_s,
          u"COLUMNS"_s,
          u"40"_s},
         {{u"l"_s, u"language"_s},
          u"The language of the printed labels: it, de, fr, es or en; that of the locale unless "
          "given."_s,
          u"LANGUAGE"_s},
         {u"force"_s, u"Writes over a file that exists."_s}});
    line.read(0, 0);
    const auto [file, format] = sourceOf(line);
    const QString columns = line.value(u"columns"_s);
    const auto &papers = paperNumbers.front().second;
    const auto paper =
        size_t(std::ranges::find(papers, columns, [](int each) { return QString::number(each); })
               - papers.begin());
    if (format != "cfg"_L1)
        line.wrongUsage(u"a configuration to start from is written in the format cfg"_s);
    if (paper == papers.size())
        line.wrongUsage("there is none for `"_L1 + columns
                        + "` columns, but for 32, 40, 42 and 48"_L1);
    const QString language = languageFor(line);
    const QString path = inOneLine(file);
    if (QFileInfo::exists(file) && !line.isSet(u"force"_s))
        return refuse(call, path + " exists; --force writes over it"_L1);
    const QString folder = QFileInfo(file).path();
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(folder).toStdString(), error);
    if (error)
        return tellTrouble(call, folder, text::systemMessage(error.value()));
    writeContent(call, file, startingConfiguration(paper, language));
    const bool isOwn = file == ZTConfiguration::userFile();
    return printOut(
        u"wrote %1, for %2 columns, with labels in `%3`; `zentaro preview%4` shows what a request "
        "prints with it, `zentaro config%5 edit` and `set` change it\n"_s.arg(
            path, columns, language, isOwn ? u""_s : " --config "_L1 + path,
            isOwn ? u""_s : " --file "_L1 + path));
}

} // namespace configtool
