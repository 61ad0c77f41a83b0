// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <span>

/// The keys that the suite reads from its configuration: `zentaro.GROUP.WORD`.
namespace tools {

enum class KeyKind {
    Text,
    Number,   ///< a decimal integer
    Switch,   ///< "true" or anything else
    LogLevel, ///< the least level that a log keeps
    LogType,  ///< how a log file is opened
};

struct KnownKey
{
    QLatin1StringView word;
    KeyKind kind;
};

/// The group that stands above all others.
constexpr auto ProductGroup = QLatin1StringView("zentaro");

/// The groups below it, in the order of a complete file.
std::span<const QString> knownGroups();
/// Whether the group holds the settings of a type of document.
bool isDocumentGroup(QStringView group);
/// The keys of a group, in the order of a complete file; none for an unknown group.
std::span<const KnownKey> knownKeys(QStringView group);
/// The same, only their words.
std::span<const QString> knownWords(QStringView group);
/// The kind of a key; nothing for an unknown one.
std::optional<KeyKind> kindOf(QStringView group, QStringView word);
/// The groups in which a word is known.
QStringList groupsWith(QStringView word);

} // namespace tools
