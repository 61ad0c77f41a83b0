// SPDX-License-Identifier: MIT
#include "tools/requests/requests.h"

#include "app/syncsingleton.h"
#include "app/translation.h"
#include "app/ztconfiguration.h"
#include "text/localeencoding.h"
#include "text/standardoutput.h"
#include "tools/config/configcommand.h"
#include "tools/config/outline.h"

#include <QFileInfo>

#include <cerrno>
#include <filesystem>

namespace tools {

using namespace Qt::StringLiterals;

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
    tellTrouble(call, name, reasonOf(*file));
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
