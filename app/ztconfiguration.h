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
    /// Another file in the user's place, in the format "cfg".
    explicit ZTConfiguration(const QString &cfgFile);
    /// The same in the format "cfg" or "xml"; who calls it links zentaro_config_tree.
    ZTConfiguration(const QString &fileName, const QString &fileType)
        : Config(fileName, fileType)
    {
    }

    /// The path of the user's own file.
    static QString userFile();
    /// The path of the file that holds the settings of one print queue alone: `queues/QUEUE.conf`
    /// in `/etc/zentaro`, or in the folder that ZENTARO_CONFIG_FOLDER names.
    static QString queueFile(const QString &queue);
    /// The same if it exists, otherwise that of all such queues, `zentaro.conf` in the folder.
    static QString queueFileInUse(const QString &queue);
    /// Whether a print queue can have this name: 1 to 127 bytes of UTF-8 without blanks, control
    /// characters and what has a meaning in paths, URIs, quotes and lists; no dash first.
    static bool isQueueName(const QString &name);

    /// The setting of a dotted key, in ISO 8859-1: a character of the key or the value outside that
    /// set becomes `?`. Answers an empty, non-null text for a key that the file does not have.
    QString getStrValue(const QString &key) const;
};
