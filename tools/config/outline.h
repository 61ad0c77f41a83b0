// SPDX-License-Identifier: MIT
#pragma once

#include "render/settings.h"
#include "tools/terminal.h"

#include <string_view>
#include <vector>

#include <QStringList>

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
/// The value of a setting, which may be null, as the file holds it and as a person has it: a file
/// or folder is named by the bytes of its name, every other text is in ISO 8859-1.
QString storedValue(const Setting *setting, const QString &text);
QString shownValue(const Setting *setting, const QString &value);
/// The words that a value of a kind has to be one of, in any letter case; none for other kinds.
QStringList wordsOf(SettingKind kind);
/// The groups in which a key word is known.
QStringList groupsWith(QStringView word);

} // namespace tools

/// A configuration as a person sees it: every group and setting that the file names, also those
/// that the store drops, with the place of each.
namespace configtool {

using tools::Finding;
using tools::Place;
using tools::Range;
using tools::Severity;

/// The words of a finding with their arguments: names and values as excerpts, bytes likewise (in
/// ISO 8859-1, without the blanks around them), numbers, and what is plain as it is.
struct Plain
{
    QString text;
};
QString shown(std::string_view bytes);
inline QString shown(const QString &text) { return tools::excerpt(text); }
inline QString shown(qint64 number) { return QString::number(number); }
inline QString shown(const Plain &plain) { return plain.text; }
template <typename... Arguments>
QString worded(const QString &words, const Arguments &...arguments)
{
    if constexpr (sizeof...(arguments) == 0)
        return words;
    else
        return words.arg(shown(arguments)...);
}

/// Bytes of a file, from one offset to another.
struct Extent
{
    qint64 begin = 0;
    qint64 end = 0;
};

struct Entry
{
    bool isGroup = false;   ///< otherwise a setting
    qsizetype parent = -1;  ///< the group that holds it; -1 for the file
    QString name = {};      ///< as the store keeps it
    QString value = {};     ///< of a setting, as the store keeps it
    Range at = {};          ///< of the name; of the whole tag's beginning in XML
    Range valueAt = {};     ///< of a setting's value, likewise
    bool hasMember = false; ///< of a group: a setting, or a group even if empty
    bool misread = false;   ///< the name swallowed other text, which has been told
    Extent text = {};       ///< in the "cfg" form: from the name to behind the `;`
    Extent body = {};       ///< likewise: a value without blanks around it, or between the braces
};

struct Outline
{
    std::vector<Entry> entries = {{.isGroup = true}}; ///< in file order; the first one is the file
    std::vector<Finding> faults;   ///< where the file does not say what it seems to say
    std::vector<Finding> losses;   ///< what the store does not keep and a written file will lack
    bool keepsEmptyGroups = false; ///< the store keeps groups without members

    /// Adds an entry to its parent.
    Entry &add(Entry entry);
    /// Whether the store keeps an entry.
    bool keeps(const Entry &entry) const
    {
        return !entry.isGroup || entry.hasMember || keepsEmptyGroups;
    }
    /// The first top-level group that the store keeps, where every lookup begins; -1 for none.
    qsizetype topGroup() const;
    /// The dotted name of an entry; `…` stands for the outer groups of a deeply nested one.
    QString pathOf(qsizetype entry) const;
};

/// Reads a file's content in the format "cfg" or "xml", as the store does, and notes where the text
/// is lost or goes elsewhere than it seems to. What is not well-formed XML has no entries but the
/// file.
Outline readOutline(const QByteArray &content, const QString &format = QStringLiteral("cfg"));

// What is wrong with a configuration, and what writing it would lose. The subjects of findings are
// entries of the outline.

/// Where the file does not say what it seems to say, and what is wrong with its settings: keys and
/// groups that nothing reads or no lookup reaches, settings that others override, values that are
/// not what their key wants, columns that do not fit the paper, a language file that does not
/// exist.
std::vector<Finding> findingsIn(const Outline &outline);

/// That nothing reads a dotted key, and which key may be meant; empty when something reads it.
QString unreadKey(const QString &key);

/// What a file written in the format "cfg" or "xml" lacks, or what it holds otherwise than it was:
/// none means that it reads back the same.
std::vector<Finding> lossesInFormat(const Outline &outline, const QString &format);

// Changes of single settings in the bytes of a "cfg" file, which leave every other byte as it is.

struct EditedContent
{
    QByteArray content;
    QString fault; ///< why it could not be changed; the content is as it was then
};

/// Gives a dotted key a value: the bytes of the one that a lookup finds are changed, or the setting
/// and the groups that it lacks are added where a complete file has them. The name of a file or
/// folder is kept as the bytes that the system has for it. A fault where the file would not give
/// the value back, or would read otherwise in another place, as one with faults may.
EditedContent withSetting(const QByteArray &content, const QString &key, const QString &value);

/// Takes the setting away, however often it stands there, and the lines that held nothing else.
EditedContent withoutSetting(const QByteArray &content, const QString &key);

} // namespace configtool
