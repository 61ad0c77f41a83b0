// SPDX-License-Identifier: MIT
#include "tools/requests/requestfiles.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace tools {

using namespace Qt::StringLiterals;

namespace {

QStringList requestsIn(const QString &folder)
{
    QStringList found;
    QDirIterator files(folder, {u"*.xml"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        found.append(files.next());
    found.sort();
    return found;
}

} // namespace

std::optional<QStringList> requestFiles(const Call &call, const QStringList &words)
{
    QStringList files;
    for (const QString &word : words) {
        const QFileInfo named(word);
        if (word != StandardInput && !named.exists()) {
            tellTrouble(call, word, u"No such file or directory"_s);
            return std::nullopt;
        }
        if (word == StandardInput || !named.isDir()) {
            files.append(word);
            continue;
        }
        const QStringList inFolder = requestsIn(word);
        if (inFolder.isEmpty()) {
            tellTrouble(call, word, u"holds no file whose name ends in .xml"_s);
            return std::nullopt;
        }
        files.append(inFolder);
    }
    return files;
}

std::unique_ptr<QFile> openedRequest(const Call &call, const QString &name)
{
    auto file = std::make_unique<QFile>(name);
    const bool opened = name == StandardInput ? file->open(stdin, QIODevice::ReadOnly)
                                              : file->open(QIODevice::ReadOnly);
    if (opened)
        return file;
    tellTrouble(call, name, file->errorString());
    return nullptr;
}

} // namespace tools
