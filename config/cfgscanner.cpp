// SPDX-License-Identifier: MIT
#include "config/cfgscanner.h"

#include <limits>
#include <string_view>

namespace libconfig {
namespace {

/// The white space of ISO 8859-1; the toolkit's own trimming would also take other characters.
bool isSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r') || c == '\xA0';
}

/// A name or a value as it is kept: up to the first NUL, without the white space at its ends.
QString trimmed(std::string_view text)
{
    text = text.substr(0, text.find('\0'));
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text.empty() ? QLatin1String("") : QString::fromLatin1(QByteArrayView(text));
}

} // namespace

CfgScanner::CfgScanner(std::istream &stream)
    : input(stream)
{
}

/// The next byte, or EndOfInput. It is taken from the stream's buffer: the stream's own operations
/// look at its state for every byte, and made a third of what reading a configuration costs.
inline int CfgScanner::nextByte()
{
    if (offset == MaxBytes)
        return EndOfInput;
    const int read = input.rdbuf()->sbumpc();
    offset += read == EndOfInput ? 0 : 1;
    return read;
}

CfgScanner::Statement CfgScanner::next()
{
    nameText.clear();
    beginning = offset;
    terminated = false;
    try {
        if (input)
            return nextFromBuffer();
    } catch (const std::ios_base::failure &) { // the medium fails
        input.setstate(std::ios_base::badbit);
    }
    marked = offset;
    return Statement::EndOfFile;
}

CfgScanner::Statement CfgScanner::nextFromBuffer()
{
    for (int read = nextByte(); read != EndOfInput; read = nextByte()) {
        marked = offset - 1;
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
            nameText += char(read);
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
    // Of a byte above 0x7f the plain character would be a negative number, which no stream gives.
    stream.ignore(std::numeric_limits<std::streamsize>::max(),
                  std::istream::traits_type::to_int_type(c));
    return stream.good();
}

void CfgScanner::skipPast(char c)
{
    while (!terminated) {
        const int read = nextByte();
        if (read == EndOfInput)
            return;
        terminated = read == c;
    }
}

/// All up to the next `;`, which is consumed, or the end of the file.
void CfgScanner::readValue()
{
    valueText.clear();
    for (int read = nextByte(); read != EndOfInput; read = nextByte()) {
        terminated = read == ';';
        if (terminated)
            return;
        valueText += char(read);
    }
}

} // namespace libconfig
