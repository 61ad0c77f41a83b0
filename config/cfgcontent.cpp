// SPDX-License-Identifier: MIT
#include "config/cfgcontent.h"

#include "config/cfgscanner.h"

#include <utility>

namespace libconfig {

using namespace Qt::StringLiterals;

CfgContent::CfgContent(QByteArray content)
    : text(std::move(content))
{
    using Statement = CfgScanner::Statement;
    CfgScanner scanner({text.constData(), size_t(text.size())});
    std::vector<quint32> open{0}; // the groups whose body is being read
    const auto closeGroup = [&] {
        Entry &group = entries[open.back()];
        group.end = quint32(entries.size());
        if (!group.hasMember && open.size() > 1)
            entries.pop_back();
        open.pop_back();
    };
    while (!open.empty()) {
        const Statement read = scanner.next();
        if (read == Statement::EndOfFile)
            break;
        if (read == Statement::GroupEnd) {
            closeGroup();
            continue;
        }
        entries[open.back()].hasMember = true; // also where the nested group turns out empty
        const bool isGroup = read == Statement::GroupBegin;
        const auto index = quint32(entries.size());
        entries.push_back({scanner.trimmedName(), {}, index + 1, isGroup, false});
        if (isGroup)
            open.push_back(index);
        else
            entries.back().value = scanner.trimmedValue();
    }
    length = scanner.end();
    closed = open.empty();
    while (!open.empty())
        closeGroup();
}

QString CfgContent::lookup(const KeyPath &path) const
{
    quint32 i = 1;
    while (i < entries.size() && !entries[i].isGroup)
        ++i;
    const quint32 end = i < entries.size() ? entries[i].end : i;
    QVarLengthArray<quint32, 8> ends; // of the groups that the path has led into
    while (i < end) {
        while (!ends.isEmpty() && ends.back() == i)
            ends.pop_back();
        const Entry &entry = entries[i];
        const bool isNamed = entry.isGroup && latin1(entry.name) == path.groups[ends.size()];
        if (isNamed && ends.size() + 1 < path.groups.size()) {
            ends.append(entry.end);
            ++i;
            continue;
        }
        if (isNamed) {
            if (QString value = valueIn(i, path.setting); !value.isEmpty())
                return value;
        }
        i = entry.end;
    }
    return u""_s;
}

/// The value of a group's own setting; of two of one name the later counts.
QString CfgContent::valueIn(quint32 group, QStringView setting) const
{
    quint32 found = group; // which has no value
    for (quint32 i = group + 1; i < entries[group].end; i = entries[i].end) {
        if (!entries[i].isGroup && latin1(entries[i].name) == setting)
            found = i;
    }
    return valueOf(entries[found]);
}

QString CfgContent::valueOf(const Entry &setting)
{
    return withoutQuotes(setting.value);
}

} // namespace libconfig
