// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// Changes of single settings in the bytes of a "cfg" file, which leave every other byte as it is.
namespace configtool {

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
