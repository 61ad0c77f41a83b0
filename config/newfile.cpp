// SPDX-License-Identifier: MIT
#include "config/newfile.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace libconfig {
namespace {

/// Gives a new file what a present one has of owner, group and mode; false where it may not.
bool takeAfter(int descriptor, const struct stat &present)
{
    struct stat own = {};
    if (fstat(descriptor, &own) != 0)
        return false;
    const bool isAlike = own.st_uid == present.st_uid && own.st_gid == present.st_gid;
    return (isAlike || fchown(descriptor, present.st_uid, present.st_gid) == 0)
           && fchmod(descriptor, present.st_mode & 07777) == 0;
}

} // namespace

NewFile::NewFile(const QString &path)
    : path(path)
{
}

bool NewFile::open()
{
    struct stat now = {};
    exists = stat(QFile::encodeName(path).constData(), &now) == 0;
    const bool isReplaceable = !exists || (S_ISREG(now.st_mode) && now.st_nlink == 1);
    return !path.isEmpty() && ((isReplaceable && openReplacement(now)) || openInPlace());
}

bool NewFile::openReplacement(const struct stat &now)
{
    auto file = std::make_unique<QSaveFile>(path);
    const bool isOpen = file->open(QIODevice::WriteOnly);
    error = file->errorString();
    if (!isOpen || (exists && !takeAfter(file->handle(), now)))
        return false;
    replacement = std::move(file);
    return true;
}

bool NewFile::openInPlace()
{
    if (!exists)
        return false; // what hinders a new file is told
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
    return descriptor < 0 ? fails(errno)
                          : present.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered,
                                         QFileDevice::AutoCloseHandle);
}

bool NewFile::write(const QByteArray &content)
{
    if (!replacement)
        return writeInPlace(content);
    if (replacement->write(content) == content.size() && replacement->commit())
        return true;
    error = replacement->errorString();
    replacement.reset();
    return openInPlace() && writeInPlace(content); // one that is mounted alone cannot be replaced
}

bool NewFile::writeInPlace(const QByteArray &content)
{
    struct stat now = {};
    const bool isFile = fstat(present.handle(), &now) == 0 && S_ISREG(now.st_mode);
    if (const int reason = isFile && now.st_size < content.size()
                               ? posix_fallocate(present.handle(), 0, content.size())
                               : 0) {
        present.resize(now.st_size); // part of the room may have been found
        return fails(reason);
    }
    const bool isWritten = present.write(content) == content.size();
    if (!isWritten || (isFile && !present.resize(content.size()))) {
        error = present.errorString();
        return false;
    }
    return !isFile || fsync(present.handle()) == 0 || fails(errno);
}

bool NewFile::fails(int reason)
{
    error = qt_error_string(reason);
    return false;
}

} // namespace libconfig
