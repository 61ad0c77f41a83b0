// SPDX-License-Identifier: MIT
#include "tools/config/subcommands.h"

#include "tools/config/outline.h"
#include "tools/config/settingcheck.h"
#include "tools/config/source.h"
#include "tools/terminal.h"

namespace configtool {

using namespace Qt::StringLiterals;

int check(const tools::Call &call)
{
    tools::CommandLine line(
        call, u"Reads the file as the suite does and tells what is wrong with it:\n"
              u"FILE:LINE:COLUMN: SEVERITY: TEXT [CODE], at most a hundred lines of a code.\n"
              u"The exit status is 1 when there is something to tell."_s);
    addSourceOptions(line);
    line.addOption({u"json"_s, u"Prints a JSON array instead."_s});
    if (const auto done = line.read(0, 0))
        return *done;
    const std::optional<Source> source = sourceOf(line);
    const std::optional<QByteArray> content = source ? contentOf(call, *source) : std::nullopt;
    if (!content)
        return tools::Trouble;

    Outline outline = readOutline(*content, source->format);
    std::vector<Finding> findings = std::move(outline.faults);
    const std::vector<Finding> more = checkSettings(outline);
    findings.insert(findings.end(), more.begin(), more.end());
    findings = tools::abridged(std::move(findings));
    const int printed =
        line.isSet(u"json"_s)
            ? tools::printBytes(tools::findingsAsJson(source->path, findings).toUtf8())
            : tools::printOut(tools::findingLines(source->path, findings));
    return printed == tools::Fine && !findings.empty() ? tools::Findings : printed;
}

} // namespace configtool
