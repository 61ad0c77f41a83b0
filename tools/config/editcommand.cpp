// SPDX-License-Identifier: MIT
#include "tools/companion.h"
#include "tools/config/source.h"
#include "tools/config/subcommands.h"

namespace configtool {

using namespace Qt::StringLiterals;

int edit(const tools::Call &call)
{
    tools::CommandLine line(call,
                            u"Opens the configuration in a window, to look through it, change "
                            u"it and save it.\nWhat is wrong with it stands beside it."_s);
    addSourceOptions(line);
    if (const auto done = line.read(0, 0))
        return *done;
    const std::optional<Source> source = sourceOf(line);
    if (!source)
        return tools::Trouble;
    return call.desktop ? call.desktop->edit(call, *source) : tools::startDesktop(call);
}

} // namespace configtool
