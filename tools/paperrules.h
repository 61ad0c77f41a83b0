// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <algorithm>

/// What is wrong on paper, by one rule for those who check requests and those who draw print files.
/// Texts are of any character type: views of UTF-16 or UTF-32.
namespace tools {

/// Whether a line is a rule as long as the paper is wide, wherever it begins: where lines are
/// centred it is shifted, which no request can help.
template <typename Text>
bool isRule(const Text &text, qsizetype width)
{
    const auto first = std::find(text.begin(), text.end(), u'=');
    const auto isBlank = [](auto c) { return c == u' '; };
    return std::all_of(text.begin(), first, isBlank) && text.end() - first == width
           && std::all_of(first, text.end(), [](auto c) { return c == u'='; });
}

/// The characters of a printed line that stand behind the edge of paper `width` characters wide and
/// should not: blanks at the end are not seen, and a rule is as it has to be.
template <typename Text>
qsizetype beyondEdge(const Text &text, qsizetype width)
{
    qsizetype size = qsizetype(text.size());
    while (size > 0 && text[size - 1] == u' ')
        --size;
    return isRule(text, width) ? 0 : std::max<qsizetype>(size - width, 0);
}

/// Whether a fiscal command takes the number: digits, and at most one `point`, which is 0 where
/// none is allowed.
template <typename Text>
bool isFiscalNumber(const Text &text, char16_t point = 0)
{
    const auto digits =
        std::count_if(text.begin(), text.end(), [](auto c) { return c >= u'0' && c <= u'9'; });
    const auto points = std::count_if(text.begin(), text.end(),
                                      [point](auto c) { return point != 0 && c == point; });
    return digits > 0 && points <= 1 && digits + points == qsizetype(text.size());
}

} // namespace tools
