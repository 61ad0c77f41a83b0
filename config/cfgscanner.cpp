// SPDX-License-Identifier: MIT
#include "config/cfgscanner.h"

#include <QIODevice>

#include <algorithm>
#include <iterator>
#include <utility>

namespace libconfig {

using namespace Qt::StringLiterals;

std::string_view withoutBlanks(std::string_view text)
{
    // Of ISO 8859-1; the toolkit's own trimming would also take other characters.
    const auto isSpace = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r') || c == '\xA0'; };
    const auto begin = std::find_if_not(text.begin(), text.end(), isSpace);
    return {begin, std::find_if_not(text.rbegin(), std::reverse_iterator(begin), isSpace).base()};
}

QByteArray limitedContent(QIODevice &file)
{
    constexpr qint64 PieceBytes = 16'384; // as the toolkit's files hold: it is not held twice
    QByteArray content;
    for (QByteArray piece = file.read(PieceBytes);
         !piece.isEmpty() && content.size() <= CfgScanner::MaxBytes; piece = file.read(PieceBytes))
        content += piece;
    return content;
}

CfgScanner::Statement CfgScanner::next()
{
    const auto isMark = [](char c) { return c == ':' || c == '=' || c == '}'; };
    beginning = offset;
    marked = size_t(std::find_if(text.begin() + offset, text.end(), isMark) - text.begin());
    nameText = text.substr(beginning, marked - beginning);
    valueText = {};
    terminated = false;
    offset = marked;
    if (marked == text.size())
        return Statement::EndOfFile;
    const char mark = text[marked];
    offset = std::min(text.find(mark == ':' ? '{' : ';', marked + 1), text.size());
    valueText = text.substr(marked + 1, offset - marked - 1);
    terminated = offset < text.size();
    offset += terminated ? 1 : 0;
    return mark == ':'   ? Statement::GroupBegin
           : mark == '=' ? Statement::Setting
                         : Statement::GroupEnd;
}

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
    Statement read{};
    while (!open.empty() && (read = scanner.next()) != Statement::EndOfFile) {
        if (read == Statement::GroupEnd) {
            closeGroup();
            continue;
        }
        entries[open.back()].hasMember = true; // also where the nested group turns out empty
        const bool isGroup = read == Statement::GroupBegin;
        const auto index = quint32(entries.size());
        entries.push_back({trimmed(scanner.rawName()),
                           isGroup ? std::string_view() : trimmed(scanner.rawValue()), index + 1,
                           quint32(open.size() - 1), isGroup, false});
        if (isGroup)
            open.push_back(index);
    }
    length = scanner.end();
    closed = open.empty();
    while (!open.empty())
        closeGroup();
}

QString CfgContent::lookup(const KeyPath &path) const
{
    size_t i = 1;
    while (i < entries.size() && !entries[i].isGroup)
        ++i;
    const size_t end = i < entries.size() ? entries[i].end : i;
    while (i < end) {
        const Entry &entry = entries[i];
        const bool isNamed = entry.isGroup && latin1(entry.name) == path.groups[entry.depth];
        if (isNamed && entry.depth + 1 < path.groups.size()) {
            ++i;
            continue;
        }
        if (QString value = isNamed ? valueIn(i, path.setting) : QString(); !value.isEmpty())
            return value;
        i = entry.end;
    }
    return u""_s;
}

/// The value of a group's own setting; of two of one name the later counts.
QString CfgContent::valueIn(size_t group, QStringView setting) const
{
    size_t found = group; // which has no value
    for (size_t i = group + 1; i < entries[group].end; i = entries[i].end) {
        if (!entries[i].isGroup && latin1(entries[i].name) == setting)
            found = i;
    }
    return CfgScanner::withoutQuotes(entries[found].value);
}

} // namespace libconfig
