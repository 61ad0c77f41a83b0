// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// File names as the system has them, bytes, in a form that the toolkit opens: it takes every name
/// for UTF-8, and one that begins with ":" for a resource of its own. A name that is not UTF-8 is
/// looked up here and stands as the path of a descriptor, which stays open until the process ends.
namespace text {

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

} // namespace text
