// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QSaveFile>

#include <memory>

struct stat;

namespace libconfig {

/// A file that is written anew, all at once. One that exists is replaced as a whole where the new
/// one can have its owner, group, mode and links, so that a process that dies leaves no half of it.
/// Otherwise it is written where it stands, after its room is made sure of: one of another owner or
/// with several names, one in a folder that takes no new file, a device or a pipe.
class NewFile
{
public:
    explicit NewFile(const QString &path);

    /// Whether the file can be written. Nothing of one that exists is touched yet.
    bool open();
    /// Writes the file; false where what it held stays.
    bool write(const QByteArray &content);
    /// Why opening or writing failed, in the system's words.
    QString errorString() const { return error; }

private:
    bool openReplacement(const struct stat &now);
    bool openInPlace();
    bool writeInPlace(const QByteArray &content);
    bool fails(int reason);

    const QString path;
    bool exists = false;
    std::unique_ptr<QSaveFile> replacement;
    QFile present; ///< written where it stands
    QString error;
};

} // namespace libconfig
