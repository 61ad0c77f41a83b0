// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"

#include <QTranslator>

namespace tools {

/// `--config`.
void addConfigurationOption(CommandLine &line);

/// The process's configuration, and the translation of the labels that it names: what a command
/// prints requests with. It needs an application object, and there is one of it at a time.
class ConfigurationInUse
{
public:
    ConfigurationInUse() = default;
    ConfigurationInUse(const ConfigurationInUse &) = delete;
    ConfigurationInUse &operator=(const ConfigurationInUse &) = delete;
    ~ConfigurationInUse();

    /// Uses a file, cfg or xml by its name; for an empty name the user's own, as the print run
    /// reads it, and where there is none a configuration without settings. False when the file
    /// cannot be read, which is told; faults in it are told too.
    bool use(const Call &call, const QString &fileName);
    /// Whether the user's own was to be used and there is none.
    bool isMissing() const { return missing; }

private:
    QTranslator translator;
    bool missing = false;
};

} // namespace tools
