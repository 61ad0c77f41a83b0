// SPDX-License-Identifier: MIT
#include "text/system.h"

#include <QFile>

#include <array>
#include <climits>
#include <optional>

#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace text {
namespace {

constexpr mode_t NewFileMode = 0666;
constexpr QLatin1StringView DescriptorFolder = "/dev/fd/"_L1;

QString nameOfDescriptor(int descriptor) { return DescriptorFolder + QString::number(descriptor); }

/// The name that opens the file, or none for one whose bytes the toolkit cannot say and that is not
/// there. The descriptor is of the place alone: the file is opened once, by whoever asked for its
/// name. A pipe opened twice would wait for a second writer.
std::optional<QString> nameWithinReach(const QByteArray &bytes)
{
    const QString name = QFile::decodeName(bytes);
    if (QFile::encodeName(name) == bytes)
        return name.startsWith(u':') ? "./"_L1 + name : name;
    const int descriptor = open(bytes.constData(), O_PATH | O_CLOEXEC);
    return descriptor < 0 ? std::nullopt : std::optional(nameOfDescriptor(descriptor));
}

} // namespace

QString nameOfFile(const QByteArray &bytes)
{
    return nameWithinReach(bytes).value_or(QFile::decodeName(bytes));
}

QString nameOfNewFile(const QByteArray &bytes)
{
    if (const auto name = nameWithinReach(bytes))
        return *name;
    const int descriptor = open(bytes.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, NewFileMode);
    return descriptor < 0 ? QString() : nameOfDescriptor(descriptor);
}

QString nameInFolder(const QByteArray &bytes)
{
    // What stands below the nearest folder that is there is not, and may be called anything.
    for (qsizetype slash = bytes.lastIndexOf('/'); slash > 0;
         slash = bytes.lastIndexOf('/', slash - 1)) {
        if (const auto folder = nameWithinReach(bytes.first(slash)))
            return *folder + QFile::decodeName(bytes.sliced(slash));
    }
    return nameOfFile(bytes);
}

QByteArray bytesOfName(const QString &name)
{
    const qsizetype slash = name.indexOf(u'/', DescriptorFolder.size());
    const QString descriptor = slash < 0 ? name : name.first(slash);
    std::array<char, PATH_MAX> target;
    const ssize_t size =
        descriptor.startsWith(DescriptorFolder)
            ? readlink(QFile::encodeName(descriptor).constData(), target.data(), target.size())
            : -1;
    return size < 0 ? QFile::encodeName(name)
                    : QByteArray(target.data(), size)
                          + QFile::encodeName(name.sliced(descriptor.size()));
}

QByteArray homeFolder()
{
    if (QByteArray home = qgetenv("HOME"); !home.isEmpty())
        return home;
    const passwd *const user = getpwuid(getuid());
    return user && user->pw_dir ? QByteArray(user->pw_dir) : QByteArray("/");
}

std::FILE *diagnostics = stdout;

void printLine(QByteArrayView line)
{
    if (!diagnostics)
        return;
    std::fwrite(line.data(), 1, size_t(line.size()), diagnostics);
    std::fputc('\n', diagnostics);
    std::fflush(diagnostics);
}

void reserveStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) == -1)
            open("/dev/null", O_RDWR); // takes the lowest number that is free, which is this one
    }
}

} // namespace text
