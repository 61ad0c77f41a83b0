// SPDX-License-Identifier: MIT
#pragma once

#include "tools/config/outline.h"

/// What is wrong with a configuration, and what writing it would lose. The subjects of findings are
/// entries of the outline.
namespace configtool {

/// Where the file does not say what it seems to say, and what is wrong with its settings: keys and
/// groups that nothing reads or no lookup reaches, settings that others override, values that are
/// not what their key wants, columns that do not fit the paper, a language file that does not
/// exist.
std::vector<Finding> findingsIn(const Outline &outline);

/// That nothing reads a dotted key, and which key may be meant; empty when something reads it.
QString unreadKey(const QString &key);

/// What a file written in the format "cfg" or "xml" lacks, or what it holds otherwise than it was:
/// none means that it reads back the same.
std::vector<Finding> lossesInFormat(const Outline &outline, const QString &format);

// Changes of single settings in the bytes of a "cfg" file, which leave every other byte as it is.

struct EditedContent
{
    QByteArray content;
    QString fault; ///< why it could not be changed; the content is as it was then
};

/// Gives a dotted key a value: the bytes of the one that a lookup finds are changed, or the setting
/// and the groups that it lacks are added where a complete file has them. The name of a file or
/// folder is kept as the bytes that the system has for it. A fault where the file would not give
/// the value back, or would read otherwise in another place, as one with faults may.
EditedContent withSetting(const QByteArray &content, const QString &key, const QString &value);

/// Takes the setting away, however often it stands there, and the lines that held nothing else.
EditedContent withoutSetting(const QByteArray &content, const QString &key);

} // namespace configtool
