// SPDX-License-Identifier: MIT
#include "tools/knownkeys.h"

#include "render/documentsettings.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tools {

using namespace Qt::StringLiterals;

namespace {

struct GroupedKey
{
    QLatin1StringView group;
    KnownKey key;
};

// The groups that are no document's.
constexpr std::array<GroupedKey, 11> plainKeys = {{
    {"language"_L1, {"basedir"_L1, KeyKind::Text}},
    {"language"_L1, {"file"_L1, KeyKind::Text}},
    {"logger"_L1, {"level"_L1, KeyKind::LogLevel}},
    {"logger"_L1, {"basedir"_L1, KeyKind::Text}},
    {"logger"_L1, {"filename"_L1, KeyKind::Text}},
    {"logger"_L1, {"type"_L1, KeyKind::LogType}},
    {"db"_L1, {"dbname"_L1, KeyKind::Text}},
    {"db"_L1, {"username"_L1, KeyKind::Text}},
    {"db"_L1, {"password"_L1, KeyKind::Text}},
    {"db"_L1, {"hostname"_L1, KeyKind::Text}},
    {"bin"_L1, {"path"_L1, KeyKind::Text}},
}};

// What a document's group holds beside the fields of its settings; an empty group means every one.
constexpr std::array<GroupedKey, 10> documentKeys = {{
    {"fiscaldoc"_L1, {"descriptionWidth"_L1, KeyKind::Number}},
    {""_L1, {"topMargin"_L1, KeyKind::Number}},
    {""_L1, {"style"_L1, KeyKind::Text}},
    {"doc"_L1, {"copyNumber"_L1, KeyKind::Number}},
    {"prefiscaldoc"_L1, {"copyNumber"_L1, KeyKind::Number}},
    {"fiscaldoc"_L1, {"copyNumber"_L1, KeyKind::Number}},
    {"receiptdoc"_L1, {"copyNumber"_L1, KeyKind::Number}},
    {"invoicedoc"_L1, {"copyNumber"_L1, KeyKind::Number}},
    {"deliverydoc"_L1, {"copyNumber"_L1, KeyKind::Number}},
    {"reportdoc"_L1, {"copyNumber"_L1, KeyKind::Number}},
}};

/// A group and what it holds; built once, when the first key is asked about.
struct KnownGroup
{
    QString name;
    bool isDocument;
    std::vector<KnownKey> keys;
    std::vector<QString> words; // of the keys
};

void addKeys(KnownGroup &group, std::span<const GroupedKey> rows)
{
    for (const GroupedKey &row : rows) {
        if (row.group.isEmpty() || row.group == group.name)
            group.keys.push_back(row.key);
    }
}

KnownGroup documentGroup(const DocumentType &type)
{
    // The key prefix without the product's group and the last point.
    KnownGroup group{QString(type.keyPrefix).section(u'.', 1, 1), true, {}, {}};
    for (const SettingKey<int> &number : numberSettings())
        group.keys.push_back({number.keyWord, KeyKind::Number});
    addKeys(group, documentKeys);
    for (const SettingKey<bool> &aSwitch : switchSettings())
        group.keys.push_back({aSwitch.keyWord, KeyKind::Switch});
    return group;
}

std::vector<KnownGroup> buildGroups()
{
    std::vector<KnownGroup> groups;
    for (const GroupedKey &row : plainKeys) {
        if (!groups.empty() && groups.back().name == row.group)
            continue;
        groups.push_back({row.group, false, {}, {}});
        addKeys(groups.back(), plainKeys);
    }
    for (const DocumentType &type : documentTypes())
        groups.push_back(documentGroup(type));
    for (KnownGroup &group : groups) {
        for (const KnownKey &key : group.keys)
            group.words.push_back(key.word);
    }
    return groups;
}

const std::vector<KnownGroup> &allGroups()
{
    static const std::vector<KnownGroup> groups = buildGroups();
    return groups;
}

/// The group of a name; one without keys for an unknown name.
const KnownGroup &groupOf(QStringView name)
{
    static const KnownGroup unknown{};
    const auto found = std::ranges::find_if(
        allGroups(), [name](const KnownGroup &group) { return group.name == name; });
    return found == allGroups().end() ? unknown : *found;
}

} // namespace

std::span<const QString> knownGroups()
{
    static const std::vector<QString> names = [] {
        std::vector<QString> result;
        for (const KnownGroup &group : allGroups())
            result.push_back(group.name);
        return result;
    }();
    return names;
}

bool isDocumentGroup(QStringView group)
{
    return groupOf(group).isDocument;
}

std::span<const KnownKey> knownKeys(QStringView group)
{
    return groupOf(group).keys;
}

std::span<const QString> knownWords(QStringView group)
{
    return groupOf(group).words;
}

std::optional<KeyKind> kindOf(QStringView group, QStringView word)
{
    const std::span<const KnownKey> keys = knownKeys(group);
    const auto found =
        std::ranges::find_if(keys, [word](const KnownKey &key) { return key.word == word; });
    return found == keys.end() ? std::nullopt : std::optional(found->kind);
}

QStringList groupsWith(QStringView word)
{
    QStringList groups;
    for (const QString &group : knownGroups()) {
        if (kindOf(group, word))
            groups.append(group);
    }
    return groups;
}

} // namespace tools
