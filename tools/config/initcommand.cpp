// SPDX-License-Identifier: MIT
#include "tools/config/subcommands.h"

#include "tools/companion.h"
#include "tools/config/settingedit.h"
#include "tools/config/source.h"
#include "tools/knownkeys.h"
#include "tools/terminal.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

// A resource of a static library is linked only when it is called for, outside any namespace.
static void initTemplate() { Q_INIT_RESOURCE(templates); }

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// What a paper of so many columns wants of the documents.
struct Paper
{
    int columns;
    int price;
    int total;
    int margin;      ///< lines
    int description; ///< of fiscal receipts
};

constexpr std::array<Paper, 4> papers = {
    {{32, 7, 8, 1, 18}, {40, 8, 9, 2, 20}, {42, 8, 9, 2, 21}, {48, 9, 10, 2, 24}}};

/// A language of the printed labels, and the folder of its translation: that of an installation, or
/// the build's. No folder for English, or where there is none.
struct Labels
{
    explicit Labels(const QString &language)
        : language(language)
    {
        const QString present = tools::translationsFolder();
        if (QFileInfo::exists(present + u'/' + name() + ".qm"_L1))
            folder = present;
    }
    QString name() const { return "zentaro_"_L1 + language; }

    QString language;
    QString folder;
};

/// A complete configuration: the sample for 40 columns with other values.
QByteArray startingConfiguration(const Paper &paper, const Labels &labels)
{
    initTemplate();
    QFile file(u":/templates/zentaro-40.conf"_s);
    QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const auto set = [&content](const QString &key, const QString &value) {
        content = withSetting(content, key, value).content;
    };
    const std::pair<QLatin1StringView, int> numbers[] = {
        {"priceFieldWidth"_L1, paper.price},
        {"totalPriceFieldWidth"_L1, paper.total},
        {"paperWidth"_L1, paper.columns},
        {"topMargin"_L1, paper.margin},
        {"descriptionWidth"_L1, paper.description}};
    for (const auto &[word, number] : numbers) {
        for (const QString &group : tools::groupsWith(QString(word)))
            set(tools::keyOf(group, word), QString::number(number));
    }
    if (!labels.folder.isEmpty()) {
        set(u"zentaro.language.basedir"_s, labels.folder);
        set(u"zentaro.language.file"_s, u'/' + labels.name());
    }
    return content;
}

/// The labels that the option names, else those of the locale's language, else the English ones;
/// nothing for an unknown language or one that is not installed, which is told.
std::optional<Labels> labelsFor(const tools::Call &call, const tools::CommandLine &line)
{
    const QString named = line.value(u"language"_s);
    const Labels labels(named.isEmpty() ? QLocale::system().name().section(u'_', 0, 0) : named);
    if (labels.language == "en"_L1 || !labels.folder.isEmpty())
        return labels;
    if (named.isEmpty())
        return Labels(u"en"_s);
    if (QStringList{u"it"_s, u"de"_s, u"fr"_s, u"es"_s}.contains(named))
        tools::tellTrouble(call, labels.name() + ".qm"_L1, u"not installed with this program"_s);
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
    addSourceOptions(line);
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
    const auto *const paper = std::ranges::find_if(
        papers, [&columns](const Paper &each) { return QString::number(each.columns) == columns; });
    if (source->format != "cfg"_L1)
        return line.wrongUsage(u"a configuration to start from is written in the format cfg"_s);
    if (paper == papers.end())
        return line.wrongUsage("there is none for `"_L1 + columns
                               + "` columns, but for 32, 40, 42 and 48"_L1);
    const std::optional<Labels> labels = labelsFor(call, line);
    if (!labels)
        return tools::Trouble;
    if (QFileInfo::exists(source->path) && !line.isSet(u"force"_s)) {
        tools::printError(call.command + ": "_L1 + tools::inOneLine(source->path)
                          + " exists; --force writes over it\n"_L1);
        return tools::Trouble;
    }
    if (makeFolder(call, source->path) != tools::Fine
        || writeContent(call, source->path, startingConfiguration(*paper, *labels)) != tools::Fine)
        return tools::Trouble;
    return tools::printOut("wrote "_L1 + tools::inOneLine(source->path) + ", for "_L1 + columns
                           + " columns, with labels in `"_L1 + labels->language
                           + "`; `zentaro preview` shows what a request prints with it, "
                             "`zentaro config edit` and `set` change it\n"_L1);
}

} // namespace configtool
