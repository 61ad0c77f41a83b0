// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"
#include "tools/preview/paper.h"

namespace preview {

/// The largest file, of requests and of what they print, that is held in memory: bytes.
constexpr qint64 MostBytes = qint64(64) * 1'024 * 1'024;

/// What a word of the command names: a print request or a print file.
struct Input
{
    QString name;
    QByteArray bytes;
    bool isRequest = false; ///< by its content, whatever its name
};

/// The file, or standard input for `-`; nothing when it cannot be read or is larger than MostBytes,
/// which is told.
std::optional<Input> readInput(const tools::Call &call, const QString &name);

/// Whether a file is a print request, whatever its encoding: its first character other than white
/// space is `<`.
bool isRequest(const QByteArray &bytes);

/// Prints a request into memory, by the device of the print run, with the configuration and the
/// translation that are in use. What the print run tells goes where text::LineSink says. With
/// `traceElements` the origins know the lines of the request.
Document render(const QByteArray &request, bool traceElements);

} // namespace preview
