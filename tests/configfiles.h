// SPDX-License-Identifier: MIT
#pragma once

#include "config/config.h"
#include "tests/support.h"

#include <gtest/gtest.h>

/// Files of configurations, written and read again.
namespace support {

/// The tree of a file with this content, below the file element, whose name is the file's.
inline QString treeOf(const QByteArray &content, const QString &format = QStringLiteral("cfg"))
{
    const Folder folder;
    const QString path = folder.path(QStringLiteral("file"));
    writeFile(path, content);
    return libconfig::Config(path, format).configTreeText().section(u'\n', 2);
}

/// What a file of this content is written as.
inline QByteArray rewritten(const QByteArray &content, const QString &from = QStringLiteral("cfg"),
                            const QString &to = QStringLiteral("cfg"))
{
    const Folder folder;
    const QString out = folder.path(QStringLiteral("out"));
    writeFile(folder.path(QStringLiteral("in")), content);
    libconfig::Config config(folder.path(QStringLiteral("in")), from);
    EXPECT_TRUE(to == QLatin1StringView("cfg") ? config.buildConfigFile(out)
                                               : config.buildConfigXmlFile(out));
    return readFile(out);
}

} // namespace support
