// SPDX-License-Identifier: MIT
#pragma once

#include "tools/terminal.h"

#include <algorithm>
#include <span>
#include <string_view>

class QIODevice;

namespace requestcheck {

// What the check finds, each under a name that stays.
/// What stops the print run, or reaches the printer as another command.
inline constexpr std::string_view errorCodes[] = {"xml",           "limit",
                                                  "no-method",     "unknown-method",
                                                  "line-feed",     "control-character",
                                                  "end-mark",      "fiscal-quote",
                                                  "fiscal-number", "fiscal-department"};
/// What is lost, or stands elsewhere than it should.
inline constexpr std::string_view warningCodes[] = {
    "before-method",       "second-method",     "no-items",          "no-total",
    "no-printer",          "unknown-element",   "unknown-attribute", "unknown-entity",
    "duplicate-attribute", "missing-attribute", "attribute-order",   "address-part",
    "cut-description",     "variant-quantity",  "untranslated-type", "line-too-long",
    "not-centred",         "character-width",   "not-in-encoding",   "undecodable",
    "no-character",        "unknown-encoding",  "mistaken-encoding"};
/// What the configuration or the document method leaves away.
inline constexpr std::string_view noteCodes[] = {"no-configuration", "switch-off", "prints-nothing",
                                                 "hidden-item"};

/// By severity.
inline constexpr std::span<const std::string_view> codes[] = {noteCodes, warningCodes, errorCodes};

/// One of them; any other name does not compile.
struct Code
{
    consteval Code(const char *word)
        : name(word)
    {
        int row = 0; // past the last one is no part of a constant
        while (std::ranges::count(codes[row], word) == 0)
            ++row;
        severity = tools::Severity(row);
    }

    QLatin1StringView name;
    tools::Severity severity{};
};

/// A finding whose text asks whether the suggestion was meant, unless that is empty.
inline tools::Finding finding(Code code, const QString &text, const tools::Range &at = {},
                              const QString &suggestion = {})
{
    return {code.severity, code.name, text + tools::didYouMean(suggestion), at, -1, suggestion};
}

/// What is wrong with a request, in the order of its text; in constant memory. The request is read
/// and printed as by the print run, with the process's configuration and translation, but nothing
/// is written. `isConfigured`: whether there is a configuration.
std::vector<tools::Finding> check(QIODevice &request, bool isConfigured);

} // namespace requestcheck
