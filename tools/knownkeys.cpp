// SPDX-License-Identifier: MIT
#include "tools/knownkeys.h"

#include <algorithm>

namespace tools {

using namespace Qt::StringLiterals;

namespace {

/// The group of a type of document: its key prefix without the product's group and the last point.
QLatin1StringView groupOf(const DocumentType &type)
{
    return type.keyPrefix.sliced(ProductGroup.size() + 1).chopped(1);
}

/// The place of a group's type among documentTypes; -1 for a group that is no document's.
qsizetype typeOf(QStringView group)
{
    const auto found = std::ranges::find_if(
        documentTypes, [group](const DocumentType &type) { return group == groupOf(type); });
    return found == std::end(documentTypes) ? -1 : found - std::begin(documentTypes);
}

bool isIn(const Setting &setting, QStringView group, qsizetype type)
{
    if (!setting.group.isEmpty())
        return group == setting.group;
    return type >= 0 && ((setting.types >> type) & 1) != 0;
}

} // namespace

QStringList knownGroups()
{
    QStringList groups;
    for (const Setting &setting : allSettings) {
        if (!setting.group.isEmpty() && !groups.endsWith(setting.group))
            groups.append(setting.group);
    }
    for (const DocumentType &type : documentTypes)
        groups.append(groupOf(type));
    return groups;
}

bool isDocumentGroup(QStringView group) { return typeOf(group) >= 0; }

bool isKnownGroup(QStringView group)
{
    const qsizetype type = typeOf(group);
    return std::ranges::any_of(allSettings,
                               [=](const Setting &setting) { return isIn(setting, group, type); });
}

std::vector<const Setting *> settingsOf(QStringView group)
{
    std::vector<const Setting *> settings;
    const qsizetype type = typeOf(group);
    for (const Setting &setting : allSettings) {
        if (isIn(setting, group, type))
            settings.push_back(&setting);
    }
    return settings;
}

QStringList knownWords(QStringView group)
{
    QStringList words;
    for (const Setting *const setting : settingsOf(group))
        words.append(setting->word);
    return words;
}

const Setting *findSetting(QStringView group, QStringView word)
{
    const qsizetype type = typeOf(group);
    const auto found = std::ranges::find_if(allSettings, [&](const Setting &setting) {
        return word == setting.word && isIn(setting, group, type);
    });
    return found == allSettings.end() ? nullptr : &*found;
}

const Setting *settingOf(const QString &key)
{
    const QStringList names = key.split(u'.');
    return names.size() == 3 && names[0] == ProductGroup ? findSetting(names[1], names[2])
                                                         : nullptr;
}

QStringList wordsOf(SettingKind kind)
{
    if (kind == SettingKind::LogLevel)
        return {u"DEBUG"_s, u"INFO"_s, u"WARNING"_s, u"ERROR"_s, u"FATAL"_s};
    return kind == SettingKind::LogType ? QStringList{u"APPEND"_s, u"OVERWRITE"_s} : QStringList();
}

QStringList groupsWith(QStringView word)
{
    QStringList groups = knownGroups();
    groups.removeIf([word](const QString &group) { return !findSetting(group, word); });
    return groups;
}

} // namespace tools
