// SPDX-License-Identifier: MIT
#include "config/cfgscanner.h"

#include <limits>
#include <string_view>

namespace libconfig {
namespace {

/// A name or a value as it is kept: up to the first NUL, without the white space at its ends. The
/// white space is that of ISO 8859-1; the toolkit's own trimming would also take other characters.
QString trimmed(std::string_view text)
{
    constexpr std::string_view whiteSpace = " \t\n\v\f\r\xA0";
    text = text.substr(0, text.find('\0'));
    const size_t first = text.find_first_not_of(whiteSpace);
    if (first == text.npos)
        return QLatin1String("");
    const size_t end = text.find_last_not_of(whiteSpace) + 1;
    return QString::fromLatin1(QByteArrayView(text.substr(first, end - first)));
}

} // namespace

CfgScanner::CfgScanner(std::istream &stream)
    : input(stream)
{
}

CfgScanner::Statement CfgScanner::next()
{
    nameText.clear();
    beginning = offset;
    terminated = false;
    for (char read; input.get(read); nameText += read) {
        marked = offset++;
        switch (read) {
        case ':':
            skipPast('{');
            return Statement::GroupBegin;
        case '=':
            readValue();
            return Statement::Setting;
        case '}':
            skipPast(';');
            return Statement::GroupEnd;
        default:
            break;
        }
    }
    marked = offset;
    return Statement::EndOfFile;
}

QString CfgScanner::name() const
{
    return trimmed(nameText);
}

QString CfgScanner::value() const
{
    return trimmed(valueText).remove(u'"');
}

bool CfgScanner::skipPast(std::istream &stream, char c)
{
    stream.ignore(std::numeric_limits<std::streamsize>::max(), c);
    return stream.good();
}

void CfgScanner::skipPast(char c)
{
    terminated = skipPast(input, c);
    offset += input.gcount();
}

/// All up to the next `;`, which is consumed, or the end of the file.
void CfgScanner::readValue()
{
    std::getline(input, valueText, ';');
    terminated = input.good();
    offset += qint64(valueText.size()) + (terminated ? 1 : 0);
}

} // namespace libconfig
