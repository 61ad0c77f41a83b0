// SPDX-License-Identifier: MIT
#pragma once

#include "config/config.h"
#include "tools/config/outline.h"

#include <algorithm>

/// Configurations, written and read again.
namespace support {

/// The tree of a file with this content, below the file element, whose name is the file's.
inline QString treeOf(const QByteArray &content, const QString &form = QStringLiteral("cfg"))
{
    libconfig::Config config;
    config.readContent(content, QStringLiteral("conf"), form);
    return config.configTreeText().section(u'\n', 2);
}

/// What a file of the form `from` is written as in the form `to`.
inline QByteArray rewritten(const QByteArray &content, const QString &from, const QString &to)
{
    libconfig::Config config;
    config.readContent(content, QStringLiteral("conf"), from);
    return config.writtenAs(to).value();
}

/// Whether the losses are of what the reader dropped already, and the tree is written as it is.
inline bool areOfTheReader(const std::vector<configtool::Finding> &losses,
                           const configtool::Outline &outline)
{
    return std::ranges::all_of(losses, [&](const configtool::Finding &loss) {
        return loss.code == QLatin1StringView("lost-duplicate")
               || (loss.code == QLatin1StringView("lost-group") && !outline.keepsEmptyGroups
                   && !outline.entries[size_t(loss.subject)].hasMember);
    });
}

} // namespace support
