// SPDX-License-Identifier: MIT
#include "tools/knownkeys.h"

namespace tools {

using namespace Qt::StringLiterals;

namespace {

/// The bit, as in Setting::types, of the type of document whose settings the group holds; 0 for
/// none.
unsigned documentBit(QStringView group)
{
    const auto *const found = std::ranges::find_if(
        documentTypes, [group](const DocumentType &type) { return group == groupOf(type); });
    return found == documentTypes.end() ? 0 : 1U << (found - documentTypes.begin());
}

bool isIn(const Setting &setting, QStringView group, unsigned bit)
{
    return setting.group.isEmpty() ? (setting.types & bit) != 0 : group == setting.group;
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

bool isDocumentGroup(QStringView group) { return documentBit(group) != 0; }

std::vector<const Setting *> settingsOf(QStringView group)
{
    std::vector<const Setting *> settings;
    const unsigned bit = documentBit(group);
    for (const Setting &setting : allSettings) {
        if (isIn(setting, group, bit))
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
    const auto *const found =
        std::ranges::find_if(allSettings, [=, bit = documentBit(group)](const Setting &setting) {
            return word == setting.word && isIn(setting, group, bit);
        });
    return found == allSettings.end() ? nullptr : found;
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
