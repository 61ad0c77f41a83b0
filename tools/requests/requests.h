// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"

#include <QFile>
#include <QTranslator>

/// The print requests that the words of a command name, and what they are printed with.
namespace tools {

struct RequestFiles
{
    QStringList names;
    bool isWhole = true; ///< whether nothing that was named is missing
};

/// The files that the words name, in their order: `-` stands for standard input, a folder for the
/// files in it and its folders whose names end in `.xml`, sorted by path. A word that names no
/// file, a folder without one and a file whose name is not UTF-8 are told and left out.
RequestFiles requestFiles(const Call &call, const QStringList &words);

/// The file, or standard input, open for reading; null when it cannot be opened, which is told.
std::unique_ptr<QFile> openedRequest(const Call &call, const QString &name);

/// `--config`.
void addConfigurationOption(CommandLine &line);

/// Makes a file, cfg or xml by its name, the process's configuration, and `labels` the translation
/// that it names; for an empty name the user's own, as the print run reads it, and where there is
/// none, which answers false, a configuration without settings. Faults in it are told; a file that
/// cannot be read ends the command. It needs an application object.
bool useConfiguration(const Call &call, const QString &fileName, QTranslator &labels);

} // namespace tools
