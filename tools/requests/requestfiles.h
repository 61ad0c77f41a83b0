// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"

#include <QFile>

#include <memory>

/// The print requests that the words of a command name.
namespace tools {

/// What stands for standard input among the names.
constexpr QLatin1StringView StandardInput("-");

/// The files that the words name, in their order: a folder stands for the files in it and its
/// folders whose names end in `.xml`, sorted by path. Nothing for a word that names no file, or
/// for a folder without one, which is told.
std::optional<QStringList> requestFiles(const Call &call, const QStringList &words);

/// The file, or standard input, open for reading; null when it cannot be opened, which is told.
std::unique_ptr<QFile> openedRequest(const Call &call, const QString &name);

} // namespace tools
