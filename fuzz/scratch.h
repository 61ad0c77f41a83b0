// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

/// What the fuzz targets share.
namespace fuzz {

/// The path of `name` in a folder of this process's own, in memory where the system has such a
/// place; gone when the process ends.
QString path(const QString &name);

/// Writes the bytes to a file in that folder and answers its path.
QString write(const QString &name, const char *bytes, qsizetype size);
inline QString write(const QString &name, const uint8_t *bytes, size_t size)
{
    return write(name, reinterpret_cast<const char *>(bytes), qsizetype(size));
}

/// The content of a file; an unreadable one ends the process.
QByteArray read(const QString &path);

/// Ends the process as a finding, with what was expected and what was found, unless they are equal.
void expectEqual(const QString &found, const QString &expected);

} // namespace fuzz
