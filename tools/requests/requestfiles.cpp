// SPDX-License-Identifier: MIT
#include "tools/requests/requestfiles.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace tools {

using namespace Qt::StringLiterals;

namespace {

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
        leaveOut(call, folder, QString::fromStdString(error.message()), files);
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
        else if (word != StandardInput && !named.exists())
            leaveOut(call, word, u"No such file or directory"_s, files);
        else if (word != StandardInput && named.isDir())
            addFolder(call, word, files);
        else
            files.names.append(word);
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
