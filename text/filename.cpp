// SPDX-License-Identifier: MIT
#include "text/filename.h"

#include <QFile>

#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace text {
namespace {

constexpr mode_t NewFileMode = 0666;

QString openable(const QByteArray &bytes, int flags)
{
    const QString name = QFile::decodeName(bytes);
    if (QFile::encodeName(name) == bytes)
        return name.startsWith(u':') ? "./"_L1 + name : name;
    const int descriptor = open(bytes.constData(), flags | O_CLOEXEC, NewFileMode);
    return descriptor < 0 ? name : "/dev/fd/"_L1 + QString::number(descriptor);
}

} // namespace

QString nameOfFile(const QByteArray &bytes)
{
    return openable(bytes, O_RDONLY);
}

QString nameOfNewFile(const QByteArray &bytes)
{
    return openable(bytes, O_WRONLY | O_CREAT);
}

QString nameInFolder(const QByteArray &bytes)
{
    const qsizetype slash = bytes.lastIndexOf('/');
    if (slash < 0)
        return nameOfFile(bytes);
    return nameOfFile(bytes.first(slash)) + QFile::decodeName(bytes.sliced(slash));
}

QByteArray homeFolder()
{
    if (QByteArray home = qgetenv("HOME"); !home.isEmpty())
        return home;
    const passwd *const user = getpwuid(getuid());
    return user && user->pw_dir ? QByteArray(user->pw_dir) : QByteArray("/");
}

} // namespace text
