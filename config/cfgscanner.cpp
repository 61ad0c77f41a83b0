// SPDX-License-Identifier: MIT
#include "config/cfgscanner.h"

#include <algorithm>
#include <limits>

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

/// The bytes that a stream's buffer holds ready, to which it gives access from inside only.
struct GetArea : std::streambuf
{
    static std::string_view of(std::streambuf &buffer)
    {
        const char *const begin = (buffer.*&GetArea::gptr)();
        return {begin, size_t((buffer.*&GetArea::egptr)() - begin)};
    }

    /// One byte at least. The last goes by way of the buffer itself: one that holds nothing ready,
    /// as the standard input's, knows of it in no other way.
    static void skip(std::streambuf &buffer, int bytes)
    {
        (buffer.*&GetArea::gbump)(bytes - 1);
        buffer.sbumpc();
    }
};

QString fromLatin1(std::string_view text)
{
    return QLatin1StringView(text.data(), qsizetype(text.size()));
}

} // namespace

CfgScanner::CfgScanner(std::istream &stream)
    : input(stream)
{
}

/// Appends to `text`, if any, all up to the byte that `isEnd` recognises, which is consumed and
/// answered; EndOfInput when the file ends first. The bytes are taken from the stream's buffer as
/// many at a time as it holds: one by one, through the stream, reading took five times as long.
template <typename IsEnd>
int CfgScanner::readUntil(IsEnd isEnd, std::string *text)
{
    std::streambuf &buffer = *input.rdbuf();
    while (offset < MaxBytes && buffer.sgetc() != EndOfInput) {
        const char first = std::istream::traits_type::to_char_type(buffer.sgetc());
        std::string_view held = GetArea::of(buffer).substr(0, size_t(MaxBytes - offset));
        if (held.empty())
            held = {&first, 1};
        const auto found = std::find_if(held.begin(), held.end(), isEnd);
        const auto length = int(found - held.begin());
        if (text)
            text->append(held, 0, size_t(length));
        const int taken = length + (found == held.end() ? 0 : 1);
        GetArea::skip(buffer, taken);
        offset += taken;
        if (found != held.end())
            return std::istream::traits_type::to_int_type(*found);
    }
    return EndOfInput;
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
    const int read = readUntil([](char c) { return c == ':' || c == '=' || c == '}'; }, &nameText);
    marked = offset - (read == EndOfInput ? 0 : 1);
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
        return Statement::EndOfFile;
    }
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
    return fromLatin1(trimmedName());
}

QString CfgScanner::value() const
{
    return fromLatin1(trimmedValue()).remove(u'"');
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
    terminated = readUntil([c](char read) { return read == c; }, nullptr) != EndOfInput;
}

/// All up to the next `;`, which is consumed, or the end of the file.
void CfgScanner::readValue()
{
    valueText.clear();
    terminated = readUntil([](char read) { return read == ';'; }, &valueText) != EndOfInput;
}

} // namespace libconfig
