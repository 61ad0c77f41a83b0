// SPDX-License-Identifier: MIT
#include "config/cfgcontent.h"

#include "config/cfgscanner.h"

#include <algorithm>

namespace libconfig {

using namespace Qt::StringLiterals;

bool CfgContent::read(std::istream &stream)
{
    std::vector<quint32> open{0}; // the groups whose body is being read
    const auto closeGroup = [&] {
        Entry &group = entries[open.back()];
        group.end = quint32(entries.size());
        if (!group.hasMember && open.size() > 1)
            entries.pop_back();
        open.pop_back();
    };
    using Statement = CfgScanner::Statement;
    CfgScanner scanner(stream);
    for (Statement read = scanner.next(); read != Statement::EndOfFile; read = scanner.next()) {
        if (read == Statement::GroupEnd) {
            closeGroup();
            if (open.empty())
                return true;
            continue;
        }
        entries[open.back()].hasMember = true; // also where the nested group turns out empty
        Entry &entry = entries.emplace_back();
        entry.name = append(scanner.trimmedName());
        entry.isGroup = read == Statement::GroupBegin;
        if (entry.isGroup) {
            open.push_back(quint32(entries.size() - 1));
        } else {
            entry.value = appendWithoutQuotes(scanner.trimmedValue());
            entry.end = quint32(entries.size());
        }
    }
    while (!open.empty())
        closeGroup();
    return false;
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
        const bool isNamed = entry.isGroup && viewOf(entry.name) == path.groups[ends.size()];
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
    Piece value;
    for (quint32 i = group + 1; i < entries[group].end; i = entries[i].end) {
        if (!entries[i].isGroup && viewOf(entries[i].name) == setting)
            value = entries[i].value;
    }
    return textOf(value);
}

CfgContent::Piece CfgContent::append(std::string_view piece)
{
    const auto begin = quint32(text.size());
    text += piece;
    return {begin, quint32(text.size()) - begin};
}

CfgContent::Piece CfgContent::appendWithoutQuotes(std::string_view piece)
{
    Piece appended = append(piece);
    text.erase(std::remove(text.begin() + appended.begin, text.end(), '"'), text.end());
    appended.size = quint32(text.size()) - appended.begin;
    return appended;
}

} // namespace libconfig
