// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDevice>

#include <memory>

class QSaveFile;

namespace libconfig {

/// A file that is written anew. One that exists stays as it was until the new one is complete, so
/// that a full disk or a process that dies leaves no half of it; a device or a pipe, which cannot
/// be replaced, is written to as it stands.
class NewFile
{
public:
    explicit NewFile(const QString &path);
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;
    ~NewFile();

    bool open();
    QFileDevice &device() { return *file; }
    /// Puts the file in its place unless `isComplete` is false or a write failed, and answers
    /// whether it did.
    bool finish(bool isComplete);
    QString errorString() const { return file->errorString(); }

private:
    std::unique_ptr<QFileDevice> file;
    QSaveFile *replacement; ///< `file`, or null for a device or a pipe
};

} // namespace libconfig
