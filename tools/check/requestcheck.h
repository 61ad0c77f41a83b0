// SPDX-License-Identifier: MIT
#pragma once

#include "tools/check/tagplaces.h"
#include "tools/command.h"
#include "tools/finding.h"

#include <algorithm>
#include <span>
#include <string_view>

class QIODevice;

/// `zentaro check`: tells what is wrong with print requests.
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

struct CodesOf
{
    tools::Severity severity;
    std::span<const std::string_view> names;
};
inline constexpr CodesOf codes[] = {{tools::Severity::Error, errorCodes},
                                    {tools::Severity::Warning, warningCodes},
                                    {tools::Severity::Note, noteCodes}};

void noSuchCode(); // is nowhere, and so no part of a constant

/// One of them; any other name does not compile.
class Code
{
public:
    consteval Code(const char *word)
        : name(word)
    {
        for (const CodesOf &row : codes) {
            severity = row.severity;
            if (std::ranges::count(row.names, word) > 0)
                return;
        }
        noSuchCode();
    }

    QLatin1StringView name;
    tools::Severity severity{};
};

/// A finding whose text asks whether the suggestion was meant, unless that is empty.
tools::Finding finding(Code code, const QString &text, const Range &at = {},
                       const QString &suggestion = {});

/// What is wrong with a request, in the order of its text; in constant memory. The request is read
/// and printed as by the print run, with the process's configuration and translation, but nothing
/// is written. `isConfigured`: whether there is a configuration.
std::vector<tools::Finding> check(QIODevice &request, bool isConfigured);

int run(const tools::Call &call);

} // namespace requestcheck
