// SPDX-License-Identifier: MIT
#include "tools/config/configcommand.h"

#include "app/ztconfiguration.h"
#include "tools/companion.h"
#include "tools/config/settingedit.h"
#include "tools/knownkeys.h"
#include "tools/terminal.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <array>
#include <filesystem>

// A resource of a static library is linked only when it is called for, outside any namespace.
static void initTemplate() { Q_INIT_RESOURCE(templates); }

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// What paper of 32, 40, 42 and 48 columns wants of the documents.
struct PaperNumbers
{
    QLatin1StringView word;
    std::array<int, 4> byPaper;
};
constexpr std::array<PaperNumbers, 5> paperNumbers = {{{"paperWidth"_L1, {32, 40, 42, 48}},
                                                       {"priceFieldWidth"_L1, {7, 8, 8, 9}},
                                                       {"totalPriceFieldWidth"_L1, {8, 9, 9, 10}},
                                                       {"topMargin"_L1, {1, 2, 2, 2}},
                                                       {"descriptionWidth"_L1, {18, 20, 21, 24}}}};

/// The folder of the labels in a language: that of an installation, or the build's; empty where
/// there are none.
QString labelsFolder(const QString &language)
{
    const QString folder = tools::translationsFolder();
    return QFileInfo::exists(folder + "/zentaro_"_L1 + language + ".qm"_L1) ? folder : QString();
}

/// A complete configuration: the sample for 40 columns with other values.
QByteArray startingConfiguration(size_t paper, const QString &language)
{
    initTemplate();
    QFile file(u":/templates/zentaro-40.conf"_s);
    QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const auto set = [&content](const QString &key, const QString &value) {
        content = withSetting(content, key, value).content;
    };
    for (const auto &[word, byPaper] : paperNumbers) {
        for (const QString &group : tools::groupsWith(QString(word)))
            set(tools::keyOf(group, word), QString::number(byPaper[paper]));
    }
    if (const QString folder = labelsFolder(language); !folder.isEmpty()) {
        set(u"zentaro.language.basedir"_s, folder);
        set(u"zentaro.language.file"_s, "/zentaro_"_L1 + language);
    }
    return content;
}

/// The language of the labels that the option names, else the locale's, else English; nothing for
/// one that is unknown or not installed, which is told.
std::optional<QString> languageFor(const tools::Call &call, const tools::CommandLine &line)
{
    const QString named = line.value(u"language"_s);
    const QString language = named.isEmpty() ? QLocale::system().name().section(u'_', 0, 0) : named;
    if (language == "en"_L1 || !labelsFolder(language).isEmpty())
        return language;
    if (named.isEmpty())
        return u"en"_s;
    if (QStringList{u"it"_s, u"de"_s, u"fr"_s, u"es"_s}.contains(named))
        tools::tellTrouble(call, "zentaro_"_L1 + named + ".qm"_L1,
                           u"not installed with this program"_s);
    else
        line.wrongUsage("no labels in `"_L1 + named + "`, but in it, de, fr, es and en"_L1);
    return std::nullopt;
}

/// Creates the folder of a file, and those above it; answers an exit status.
int makeFolder(const tools::Call &call, const QString &path)
{
    const QString folder = QFileInfo(path).path();
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(folder).toStdString(), error);
    return error ? tools::tellTrouble(call, folder, qt_error_string(error.value())) : tools::Fine;
}

} // namespace

int init(const tools::Call &call)
{
    tools::CommandLine line(call, u"Writes a complete configuration to start from."_s);
    line.addOptions(sourceOptions());
    line.addOption({{u"c"_s, u"columns"_s},
                    u"The paper's width in characters: 32, 40, 42 or 48 (40 unless given)."_s,
                    u"COLUMNS"_s,
                    u"40"_s});
    line.addOption({{u"l"_s, u"language"_s},
                    u"The language of the printed labels: it, de, fr, es or en; that of the locale "
                    u"unless given."_s,
                    u"LANGUAGE"_s});
    line.addOption({u"force"_s, u"Writes over a file that exists."_s});
    if (const auto done = line.read(0, 0))
        return *done;
    const std::optional<Source> source = sourceOf(line);
    if (!source)
        return tools::Trouble;
    const QString columns = line.value(u"columns"_s);
    const auto &papers = paperNumbers.front().byPaper;
    const auto *const paper = std::ranges::find_if(
        papers, [&columns](int each) { return QString::number(each) == columns; });
    if (source->format != "cfg"_L1)
        return line.wrongUsage(u"a configuration to start from is written in the format cfg"_s);
    if (paper == papers.end())
        return line.wrongUsage("there is none for `"_L1 + columns
                               + "` columns, but for 32, 40, 42 and 48"_L1);
    const std::optional<QString> language = languageFor(call, line);
    if (!language)
        return tools::Trouble;
    if (QFileInfo::exists(source->path) && !line.isSet(u"force"_s))
        return tools::refuse(call,
                             tools::inOneLine(source->path) + " exists; --force writes over it"_L1);
    if (makeFolder(call, source->path) != tools::Fine
        || writeContent(call, source->path,
                        startingConfiguration(size_t(paper - papers.begin()), *language))
               != tools::Fine)
        return tools::Trouble;
    const QString path = tools::inOneLine(source->path);
    const bool isOwn = source->path == ZTConfiguration::userFile();
    return tools::printOut(
        u"wrote %1, for %2 columns, with labels in `%3`; `zentaro preview%4` shows what a request "
        "prints with it, `zentaro config%5 edit` and `set` change it\n"_s.arg(
            path, columns, *language, isOwn ? u""_s : " --config "_L1 + path,
            isOwn ? u""_s : " --file "_L1 + path));
}

} // namespace configtool
