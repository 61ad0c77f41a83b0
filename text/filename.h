// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

namespace text {

/// The name of the file whose bytes are the characters of a setting: the configuration reads every
/// byte as one ISO 8859-1 character.
inline QString fileNameOf(const QString &setting)
{
    return QFile::decodeName(setting.toLatin1());
}

} // namespace text
