// SPDX-License-Identifier: MIT
#include "config/cfgscanner.h"

#include <QIODevice>

#include <algorithm>
#include <utility>

namespace libconfig {

using namespace Qt::StringLiterals;

namespace {

/// The white space of ISO 8859-1; the toolkit's own trimming would also take other characters.
bool isSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r') || c == '\xA0';
}

/// A name or a value as it is kept: up to the first NUL, without the white space at its ends.
std::string_view trimmed(std::string_view text)
{
    text = text.substr(0, text.find('\0'));
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace

QByteArray limitedContent(QIODevice &file)
{
    constexpr qint64 PieceBytes = 16'384; // as the toolkit's files hold: it is not held twice
    QByteArray content;
    for (QByteArray piece = file.read(PieceBytes);
         !piece.isEmpty() && content.size() <= CfgScanner::MaxBytes; piece = file.read(PieceBytes))
        content += piece;
    return content;
}

CfgScanner::CfgScanner(std::string_view text)
    : text(text.substr(0, size_t(MaxBytes)))
{
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

std::string_view CfgScanner::trimmedName() const
{
    return trimmed(nameText);
}

std::string_view CfgScanner::trimmedValue() const
{
    return trimmed(valueText);
}

QString CfgScanner::name() const
{
    return latin1(trimmedName());
}

QString CfgScanner::value() const
{
    return withoutQuotes(trimmedValue());
}

QString CfgScanner::withoutQuotes(std::string_view value)
{
    return QString(latin1(value)).remove(u'"');
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
    return CfgScanner::withoutQuotes(entries[found].value);
}

} // namespace libconfig
