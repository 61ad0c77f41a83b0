// SPDX-License-Identifier: MIT
#pragma once

#include "render/settings.h"

#include <QStringList>

#include <vector>

/// The groups and keys that the suite reads from its configuration: `zentaro.GROUP.WORD`.
namespace tools {

/// The group that stands above all others.
constexpr auto ProductGroup = QLatin1StringView("zentaro");

/// The dotted key of a setting.
inline QString keyOf(const QString &group, const QString &word)
{
    return ProductGroup + u'.' + group + u'.' + word;
}

/// The groups below it, in the order of a complete file.
QStringList knownGroups();
/// The group of a type of document: its key prefix without the product's group and the last point.
inline QLatin1StringView groupOf(const DocumentType &type)
{
    return type.keyPrefix.sliced(ProductGroup.size() + 1).chopped(1);
}
/// Whether the group holds the settings of a type of document.
bool isDocumentGroup(QStringView group);
/// The settings of a group, in the order of a complete file; none for an unknown group.
std::vector<const Setting *> settingsOf(QStringView group);
/// The same, only their key words.
QStringList knownWords(QStringView group);
/// A setting, also by its dotted key; null for an unknown one.
const Setting *findSetting(QStringView group, QStringView word);
const Setting *settingOf(const QString &key);
/// The words that a value of a kind has to be one of, in any letter case; none for other kinds.
QStringList wordsOf(SettingKind kind);
/// The groups in which a key word is known.
QStringList groupsWith(QStringView word);

} // namespace tools
