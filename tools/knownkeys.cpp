// SPDX-License-Identifier: MIT
#include "tools/knownkeys.h"

#include "render/documentsettings.h"

#include <algorithm>
#include <array>

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

/// The group of a document type: its key prefix without the product's group and the last point.
QString groupOf(const DocumentType &type)
{
    return QString(type.keyPrefix).section(u'.', 1, 1);
}

} // namespace

std::vector<QString> knownGroups()
{
    std::vector<QString> groups;
    for (const GroupedKey &row : plainKeys) {
        if (groups.empty() || groups.back() != row.group)
            groups.push_back(row.group);
    }
    for (const DocumentType &type : documentTypes())
        groups.push_back(groupOf(type));
    return groups;
}

bool isDocumentGroup(QStringView group)
{
    return std::ranges::any_of(
        documentTypes(), [group](const DocumentType &type) { return groupOf(type) == group; });
}

std::vector<KnownKey> knownKeys(QStringView group)
{
    std::vector<KnownKey> keys;
    for (const GroupedKey &row : plainKeys) {
        if (row.group == group)
            keys.push_back(row.key);
    }
    if (!isDocumentGroup(group))
        return keys;
    for (const SettingKey<int> &number : numberSettings())
        keys.push_back({number.keyWord, KeyKind::Number});
    for (const GroupedKey &row : documentKeys) {
        if (row.group.isEmpty() || row.group == group)
            keys.push_back(row.key);
    }
    for (const SettingKey<bool> &aSwitch : switchSettings())
        keys.push_back({aSwitch.keyWord, KeyKind::Switch});
    return keys;
}

std::vector<QString> knownWords(QStringView group)
{
    std::vector<QString> words;
    for (const KnownKey &key : knownKeys(group))
        words.push_back(key.word);
    return words;
}

std::optional<KeyKind> kindOf(QStringView group, QStringView word)
{
    const std::vector<KnownKey> keys = knownKeys(group);
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
