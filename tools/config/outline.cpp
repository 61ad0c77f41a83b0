// SPDX-License-Identifier: MIT
#include "tools/config/outline.h"

#include "tools/config/cfgoutline.h"
#include "tools/config/xmloutline.h"

namespace configtool {

using namespace Qt::StringLiterals;

qsizetype Outline::topGroup() const
{
    for (size_t i = 0; i < entries.size(); ++i) {
        const Entry &entry = entries[i];
        if (entry.kind == Entry::Kind::Group && entry.parent == 0
            && (entry.hasMember || keepsEmptyGroups))
            return qsizetype(i);
    }
    return -1;
}

QString Outline::pathOf(qsizetype entry) const
{
    constexpr int Most = 6; // names
    QString path;
    for (int shown = 0; entry > 0; entry = entries[size_t(entry)].parent, ++shown) {
        const QString point(path.isEmpty() ? ""_L1 : "."_L1);
        if (shown == Most)
            return u"…"_s + point + path;
        path.prepend(entries[size_t(entry)].name + point);
    }
    return path;
}

Outline readOutline(const QByteArray &content, const QString &format)
{
    return format == "xml"_L1 ? readXmlOutline(content) : readCfgOutline(content);
}

} // namespace configtool
