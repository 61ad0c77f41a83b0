// SPDX-License-Identifier: MIT
#include "fuzz/scratch.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace fuzz {
namespace {

[[noreturn]] void fail(const QString &what)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(what));
    std::abort();
}

} // namespace

QString path(const QString &name)
{
    const QString memory = u"/dev/shm"_s;
    const QString place = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    static const QTemporaryDir folder(place + "/zentaro-fuzz-XXXXXX"_L1);
    return folder.filePath(name);
}

QString write(const QString &name, const char *bytes, qsizetype size)
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes, size) != size)
        fail("cannot write "_L1 + file.fileName());
    return file.fileName();
}

QByteArray read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail("cannot read "_L1 + path);
    return file.readAll();
}

void expectEqual(const QString &found, const QString &expected)
{
    if (found != expected)
        fail("expected:\n"_L1 + expected + "\nfound:\n"_L1 + found);
}

} // namespace fuzz
