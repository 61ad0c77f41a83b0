// SPDX-License-Identifier: MIT
#pragma once

#include <QStringTokenizer>
#include <QStringView>
#include <QVarLengthArray>

namespace libconfig {

/// A dotted key, split once: the group names from the top down, one at least, and the name of the
/// setting in the last of them. All are views of the key.
struct KeyPath
{
    explicit KeyPath(QStringView key)
    {
        for (const QStringView field : qTokenize(key, u'.'))
            groups.append(field);
        // An empty field after a setting's name ends the key there.
        qsizetype last = 2;
        while (last < groups.size() && !groups[last].isEmpty())
            ++last;
        if (groups.size() > 1)
            setting = groups[last - 1];
        groups.resize(qMax(last - 1, qsizetype(1)));
    }

    QVarLengthArray<QStringView, 8> groups;
    QStringView setting;
};

} // namespace libconfig
