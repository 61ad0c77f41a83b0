// SPDX-License-Identifier: MIT
#pragma once

#include "config/config.h"

/// The suite's configuration: the store opened on the user's own file,
/// `~/.zentaro/conf/zentaro.conf`. Taken through SyncSingleton<ZTConfiguration>.
class ZTConfiguration : public libconfig::Config
{
public:
    /// Reads the user's file. A missing one leaves every setting empty.
    ZTConfiguration();

    /// The setting of a dotted key, in ISO 8859-1: a character of the key or the value outside that
    /// set becomes `?`. Answers an empty, non-null text for a key that the file does not have.
    QString getStrValue(const QString &key) const;
};
