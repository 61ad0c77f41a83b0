// SPDX-License-Identifier: MIT
#include "tools/config/subcommands.h"

#include "tools/config/source.h"

#include <array>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<tools::Command, 7> commands = {{
    {"get"_L1, "prints the values of keys"_L1, getValues},
    {"list"_L1, "prints every key and its value"_L1, listValues},
    {"tree"_L1, "prints the groups and their settings as they are kept"_L1, showTree},
    {"check"_L1, "tells what is wrong with the file, and where"_L1, check},
    {"convert"_L1, "writes the configuration in another format"_L1, convert},
    {"edit"_L1, "opens the configuration in a window"_L1, edit},
    {"init"_L1, "writes a complete configuration to start from"_L1, init},
}};

} // namespace

int run(const tools::Call &call)
{
    return tools::dispatch(call, {u"Reads, checks and changes the configuration of the suite."_s,
                                  commands,
                                  sourceOptions(),
                                  {}});
}

} // namespace configtool
