// SPDX-License-Identifier: MIT
#pragma once

#include "config/cfgscanner.h"
#include "config/config.h"
#include "tools/command.h"

/// The command `zentaro config`, and the configuration that its sub-commands work on.
namespace configtool {

/// The most bytes of a file that are looked at: as many as the store reads of one.
constexpr qint64 MaxContentBytes = libconfig::CfgScanner::MaxBytes;

struct Source
{
    QString path;
    QString format; ///< "cfg" or "xml"
};

/// `--file`, `--queue` and `--format`.
QList<QCommandLineOption> sourceOptions();

/// What these options say: the user's own file unless they name another or a print queue, in the
/// format that its name ends in unless they name one. An unknown format and what is no name of a
/// queue end the command.
Source sourceOf(const tools::CommandLine &line);

/// "xml" for a name that ends in `.xml`, otherwise "cfg".
QString formatOf(const QString &path);
/// Whether there is no such file; false where that cannot be seen.
bool isMissing(const QString &path);

/// The content of the file. Where it cannot be read, or has more bytes than the store reads, the
/// command ends, and for one that is missing names what writes it.
QByteArray contentOf(const tools::Call &call, const QString &path);
/// Writes a file, all at once; Fine. Where that fails, which is told, the command ends.
int writeContent(const tools::Call &call, const QString &path, const QByteArray &content);

/// Reads a command's words, and the configuration that they name, or ends the command.
struct OpenedFile
{
    OpenedFile(tools::CommandLine &line, int leastArguments, int mostArguments);

    Source source;
    QByteArray content;
    libconfig::Config config; ///< what the store makes of it
};

/// The command, and those of its sub-commands that write; all answer an exit status.
int run(const tools::Call &call);
int setValues(const tools::Call &call);
int unsetValues(const tools::Call &call);
int convert(const tools::Call &call);
int init(const tools::Call &call);

} // namespace configtool
