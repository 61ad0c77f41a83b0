// SPDX-License-Identifier: MIT
#include "config/newfile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace libconfig {

NewFile::NewFile(const QString &path)
    : replacement(nullptr)
{
    const QFileInfo present(path);
    if (present.exists() && !present.isFile() && !present.isDir()) {
        file = std::make_unique<QFile>(path);
        return;
    }
    auto saved = std::make_unique<QSaveFile>(path);
    replacement = saved.get();
    file = std::move(saved);
}

NewFile::~NewFile() = default;

bool NewFile::open()
{
    return !file->fileName().isEmpty() && file->open(QIODevice::WriteOnly);
}

bool NewFile::finish(bool isComplete)
{
    if (!replacement) {
        const bool flushed = file->flush();
        file->close();
        return isComplete && flushed && file->error() == QFileDevice::NoError;
    }
    if (!isComplete)
        replacement->cancelWriting();
    return replacement->commit();
}

} // namespace libconfig
