// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QScopedValueRollback>
#include <QString>

#include <cstdio>

/// What a process has of the system as bytes: names of files, and the standard streams.
namespace text {

// File names as the system has them, bytes, in a form that the toolkit opens: it takes every name
// for UTF-8, and one that begins with ":" for a resource of its own. A name that is not UTF-8 is
// looked up here and stands as the path of a descriptor, which stays open until the process ends.

/// The name of a file or folder that is there; of one that is not, a name that is not there either.
QString nameOfFile(const QByteArray &bytes);

/// The name of a file to be written, which is created where it would otherwise be out of reach; no
/// name, which cannot be opened, where that fails.
QString nameOfNewFile(const QByteArray &bytes);

/// A name whose last part the toolkit will add to or shorten: only the folder may be any bytes.
QString nameInFolder(const QByteArray &bytes);

/// The bytes of a name that one of these answered, for a message: those of the file itself.
QByteArray bytesOfName(const QString &name);

/// The bytes that a setting has in the configuration file: each is one ISO 8859-1 character.
inline QByteArray bytesOf(const QString &setting) { return setting.toLatin1(); }

/// The user's home folder: `HOME`, or the user database's where that is not set; "/" without both.
QByteArray homeFolder();

/// Where diagnostic lines go: standard output, unless a QScopedValueRollback puts another stream
/// here, or null, which drops them.
extern std::FILE *diagnostics;

/// Writes one diagnostic line, `line` and a line end, and lets it out at once. Where the stream
/// takes nothing the line is lost, which is no failure.
void printLine(QByteArrayView line);

/// Opens the standard streams that whoever started the process has closed, on the null device: a
/// file opened later would take the place of standard output and get the diagnostic lines.
void reserveStandardStreams();

} // namespace text
