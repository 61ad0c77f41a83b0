// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"

#include <optional>

/// The configuration that a command prints requests with.
namespace tools {

enum class ConfigurationUse {
    Present,
    Missing, ///< the user has none: every setting is empty
};

/// `--config`.
void addConfigurationOption(CommandLine &line);

/// Makes the process's configuration the one that the option names, else the user's own: to be
/// called before anything else asks for it. Nothing when the file named cannot be read, which is
/// told.
std::optional<ConfigurationUse> useConfiguration(const Call &call, const CommandLine &line);

} // namespace tools
