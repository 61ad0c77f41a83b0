// SPDX-License-Identifier: MIT
#pragma once

#include "tools/check/tagplaces.h"
#include "tools/command.h"
#include "tools/finding.h"

#include <string_view>

class QIODevice;

/// `zentaro check`: tells what is wrong with print requests.
namespace requestcheck {

struct CodeRow
{
    std::string_view name;
    tools::Severity severity;
};

/// What the check finds, each under a name that stays.
inline constexpr CodeRow codes[] = {
    // What stops the print run, or reaches the printer as another command.
    {"xml", tools::Severity::Error},
    {"limit", tools::Severity::Error},
    {"no-method", tools::Severity::Error},
    {"unknown-method", tools::Severity::Error},
    {"line-feed", tools::Severity::Error},
    {"control-character", tools::Severity::Error},
    {"end-mark", tools::Severity::Error},
    {"fiscal-quote", tools::Severity::Error},
    {"fiscal-number", tools::Severity::Error},
    {"fiscal-department", tools::Severity::Error},
    // What is lost, or stands elsewhere than it should.
    {"before-method", tools::Severity::Warning},
    {"second-method", tools::Severity::Warning},
    {"no-items", tools::Severity::Warning},
    {"no-total", tools::Severity::Warning},
    {"unknown-element", tools::Severity::Warning},
    {"unknown-attribute", tools::Severity::Warning},
    {"unknown-entity", tools::Severity::Warning},
    {"duplicate-attribute", tools::Severity::Warning},
    {"missing-attribute", tools::Severity::Warning},
    {"attribute-order", tools::Severity::Warning},
    {"no-printer", tools::Severity::Warning},
    {"address-part", tools::Severity::Warning},
    {"cut-description", tools::Severity::Warning},
    {"variant-quantity", tools::Severity::Warning},
    {"untranslated-type", tools::Severity::Warning},
    {"line-too-long", tools::Severity::Warning},
    {"not-centred", tools::Severity::Warning},
    {"not-in-encoding", tools::Severity::Warning},
    {"undecodable", tools::Severity::Warning},
    {"no-character", tools::Severity::Warning},
    {"character-width", tools::Severity::Warning},
    {"unknown-encoding", tools::Severity::Warning},
    {"mistaken-encoding", tools::Severity::Warning},
    // What the configuration or the document method leaves away.
    {"no-configuration", tools::Severity::Note},
    {"switch-off", tools::Severity::Note},
    {"prints-nothing", tools::Severity::Note},
    {"hidden-item", tools::Severity::Note},
};

/// A row of the table by its name; a name that is none does not compile.
class Code
{
public:
    consteval Code(const char *word)
    {
        const CodeRow *row = codes;
        while (row->name != word)
            ++row; // past the last is no constant expression
        name = QLatin1StringView(row->name.data(), qsizetype(row->name.size()));
        severity = row->severity;
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
