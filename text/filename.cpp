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

bool isWithinReach(const QByteArray &bytes)
{
    return QFile::encodeName(QFile::decodeName(bytes)) == bytes;
}

QString nameWithinReach(const QByteArray &bytes)
{
    const QString name = QFile::decodeName(bytes);
    return name.startsWith(u':') ? "./"_L1 + name : name;
}

/// A descriptor of the place alone, or -1: the file is opened once, by whoever asked for its name.
/// A pipe opened twice would wait for a second writer.
int placeOf(const QByteArray &bytes)
{
    return open(bytes.constData(), O_PATH | O_CLOEXEC);
}

QString nameOfDescriptor(int descriptor)
{
    return "/dev/fd/"_L1 + QString::number(descriptor);
}

} // namespace

QString nameOfFile(const QByteArray &bytes)
{
    if (isWithinReach(bytes))
        return nameWithinReach(bytes);
    const int descriptor = placeOf(bytes);
    return descriptor < 0 ? QFile::decodeName(bytes) : nameOfDescriptor(descriptor);
}

QString nameOfNewFile(const QByteArray &bytes)
{
    if (isWithinReach(bytes))
        return nameWithinReach(bytes);
    int descriptor = placeOf(bytes);
    if (descriptor < 0)
        descriptor = open(bytes.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, NewFileMode);
    return descriptor < 0 ? QString() : nameOfDescriptor(descriptor);
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
