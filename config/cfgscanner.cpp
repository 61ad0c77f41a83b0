// SPDX-License-Identifier: MIT
#include "config/cfgscanner.h"

#include <QIODevice>

#include <algorithm>

namespace libconfig {
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

QLatin1StringView latin1(std::string_view text)
{
    return QLatin1StringView(text.data(), qsizetype(text.size()));
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
    terminated = false;
    offset = marked;
    if (marked == text.size())
        return Statement::EndOfFile;
    const char mark = text[marked];
    offset = text.find(mark == ':' ? '{' : ';', marked + 1);
    terminated = offset != text.npos;
    offset = terminated ? offset + 1 : text.size();
    return mark == ':'   ? Statement::GroupBegin
           : mark == '=' ? Statement::Setting
                         : Statement::GroupEnd;
}

std::string_view CfgScanner::rawValue() const
{
    const size_t first = std::min(marked + 1, text.size());
    return text.substr(first, offset - first - (terminated ? 1 : 0));
}

std::string_view CfgScanner::trimmedName() const
{
    return trimmed(rawName());
}

std::string_view CfgScanner::trimmedValue() const
{
    return trimmed(rawValue());
}

QString CfgScanner::name() const
{
    return latin1(trimmedName());
}

QString CfgScanner::value() const
{
    return withoutQuotes(trimmedValue());
}

QString withoutQuotes(std::string_view value)
{
    return QString(latin1(value)).remove(u'"');
}

} // namespace libconfig
