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

// The groups that are no document's, one after the other.
constexpr auto plainKeys = std::to_array<GroupedKey>({
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
});

/// A key that documents' groups hold beside the fields of their settings: every one, unless one is
/// the only one or the only one without it.
struct DocumentKey
{
    KnownKey key;
    QLatin1StringView only{};
    QLatin1StringView without{};
};

constexpr auto documentKeys = std::to_array<DocumentKey>({
    {.key = {"descriptionWidth"_L1, KeyKind::Number}, .only = "fiscaldoc"_L1},
    {.key = {"topMargin"_L1, KeyKind::Number}},
    {.key = {"style"_L1, KeyKind::Text}},
    {.key = {"copyNumber"_L1, KeyKind::Number}, .without = "solddoc"_L1},
});

/// A group and what it holds; built once, when the first key is asked about.
struct KnownGroup
{
    QString name;
    bool isDocument;
    std::vector<KnownKey> keys;
    std::vector<QString> words; // of the keys
};

KnownGroup documentGroup(const DocumentType &type)
{
    // The key prefix without the product's group and the last point.
    KnownGroup group{QString(type.keyPrefix).section(u'.', 1, 1), true, {}, {}};
    for (const SettingKey<int> &number : numberSettings())
        group.keys.push_back({number.keyWord, KeyKind::Number});
    for (const auto &[key, only, without] : documentKeys) {
        if (group.name != without && (only.isEmpty() || group.name == only))
            group.keys.push_back(key);
    }
    for (const SettingKey<bool> &aSwitch : switchSettings())
        group.keys.push_back({aSwitch.keyWord, KeyKind::Switch});
    return group;
}

std::vector<KnownGroup> buildGroups()
{
    std::vector<KnownGroup> groups;
    for (const GroupedKey &row : plainKeys) {
        if (groups.empty() || groups.back().name != row.group)
            groups.push_back({row.group, false, {}, {}});
        groups.back().keys.push_back(row.key);
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
