// SPDX-License-Identifier: MIT
#pragma once

#include "log/logger.h"

#include <QMap>
#include <QString>

#include <memory>
#include <vector>

/// The Loggers of the process by key, taken through SyncSingleton<HLogManager>. The empty key
/// stands for "default". Only the creation of the manager is guarded: its operations lock nothing,
/// callers on several threads serialise them themselves.
class HLogManager
{
public:
    HLogManager() = default;
    HLogManager(const HLogManager &) = delete;
    HLogManager &operator=(const HLogManager &) = delete;

    /// Stores a new Logger(name) under the key. A Logger that was there stays alive, its file open,
    /// as long as the manager: who took it may go on using it.
    void set(QString const &name, QString const &key);

    /// The Logger of the key, which the manager keeps; null when there is none.
    Logger *getLog(QString const &key);

private:
    QMap<QString, Logger *> loggers;            // an entry may be null
    std::vector<std::unique_ptr<Logger>> owned; // also those that later ones have replaced
};
