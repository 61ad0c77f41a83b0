// SPDX-License-Identifier: MIT
#include "tools/config/outline.h"

#include "app/translation.h"
#include "text/system.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QTranslator>

#include <utility>

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

QString storedValue(const Setting *setting, const QString &text)
{
    const auto kind = setting ? setting->kind : SettingKind::Text;
    const bool namesFile = kind == SettingKind::Folder || kind == SettingKind::FileName;
    return namesFile ? QString::fromLatin1(QFile::encodeName(text)) : text;
}

QString shownValue(const Setting *setting, const QString &value)
{
    const QString path = QFile::decodeName(value.toLatin1());
    return storedValue(setting, path) == value ? path : value; // as it is where it is no UTF-8
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

namespace configtool {

using namespace Qt::StringLiterals;
using namespace tools;

namespace {

struct Checker
{
    using enum Severity;

    std::vector<Finding> check();
    void checkGroup(qsizetype index);
    void checkSetting(qsizetype index);
    void checkReadSetting(qsizetype index);
    void tellUnknownKey(qsizetype index);
    void checkValue(qsizetype index, const Setting &setting);
    void checkColumns();
    void checkLanguage();

    const Entry &entry(qsizetype index) const { return outline.entries[size_t(index)]; }
    /// The number that a document reads; 0 for one that is not there or is none.
    int number(const QString &group, QLatin1StringView word) const
    {
        return entry(effective.value({group, word})).value.toInt(); // the file has no value
    }
    template <typename... Arguments>
    void tell(Severity severity, QLatin1StringView code, qsizetype subject, const QString &words,
              const Arguments &...arguments)
    {
        findings.push_back(
            {severity, code, worded(words, arguments...), entry(subject).at, subject});
    }
    /// The same about the value of a setting.
    template <typename... Arguments>
    void tellValue(Severity severity, QLatin1StringView code, qsizetype subject,
                   const QString &words, const Arguments &...arguments)
    {
        tell(severity, code, subject, words, arguments...);
        findings.back().at = entry(subject).valueAt;
    }
    /// What should stand there instead of what was told last, if anybody knows.
    void suggest(const QString &meant)
    {
        findings.back().text += didYouMean(meant);
        findings.back().suggestion = meant;
    }

    const Outline &outline;
    const qsizetype top = outline.topGroup(); // where lookups begin
    std::vector<Finding> findings = outline.faults;
    // By entry: a group of which something is read.
    std::vector<bool> isRead = std::vector<bool>(outline.entries.size());
    QHash<QString, qsizetype> groups = {}; // of the top group, the first of each name
    // The last of each name in a group.
    QHash<std::pair<qsizetype, QString>, qsizetype> settings = {};
    // By group and word: the entry that a lookup finds.
    QHash<std::pair<QString, QString>, qsizetype> effective = {};
    int unknownKeys = 0; // a way out is looked for only of those that are listed

    Q_DECLARE_TR_FUNCTIONS(Finding)
};

std::vector<Finding> Checker::check()
{
    if (top < 0)
        tell(Warning, "no-settings"_L1, 0, tr("the file has no group: every setting is empty"));
    const auto count = qsizetype(outline.entries.size());
    settings.reserve(count);
    effective.reserve(count);
    for (qsizetype i = 1; i < count; ++i) {
        if (entry(i).isGroup)
            isRead[size_t(i)] = entry(i).parent == top && !settingsOf(entry(i).name).empty();
        else
            settings.insert({entry(i).parent, entry(i).name}, i);
    }
    for (qsizetype i = 1; i < count; ++i)
        entry(i).isGroup ? checkGroup(i) : checkSetting(i);
    checkColumns();
    checkLanguage();
    return std::move(findings);
}

void Checker::checkGroup(qsizetype index)
{
    const Entry &group = entry(index);
    const auto tellUnread = [&] {
        tell(Warning, "unknown-group"_L1, index, tr("nothing reads the group %1"),
             outline.pathOf(index));
    };
    if (!group.hasMember) {
        tell(Warning, "empty-group"_L1, index, tr("the group %1 is empty and counts for nothing"),
             group.name);
    } else if (group.parent == 0 && index != top) {
        tell(Error, "second-group"_L1, index,
             tr("nothing in the group %1 is ever found: only the first top-level group is looked "
                "at"),
             group.name);
    } else if (group.misread) {
        return;
    } else if (index == top) {
        if (group.name != ProductGroup)
            tell(Error, "unknown-group"_L1, index,
                 tr("no key is ever found: the first group is %1, not `%2`"), group.name,
                 Plain{ProductGroup});
    } else if (group.parent == top && groups.contains(group.name)) {
        tell(Warning, "duplicate-group"_L1, index,
             tr("the group %1 stands here again: of a key in both, the first value that is not "
                "empty counts"),
             outline.pathOf(index));
    } else if (group.parent == top) {
        groups.insert(group.name, index);
        if (isRead[size_t(index)])
            return;
        tellUnread();
        suggest(nearest(group.name, knownGroups()));
    } else if (isRead[size_t(group.parent)]) {
        tellUnread();
    }
}

void Checker::checkSetting(qsizetype index)
{
    const Entry &setting = entry(index);
    const Entry &group = entry(setting.parent);
    const qsizetype last = settings.value({setting.parent, setting.name});
    if (setting.parent == 0 && !setting.misread) {
        tell(Warning, "unreachable-key"_L1, index,
             tr("no lookup finds the key %1 outside any group"), setting.name);
    } else if (setting.parent != 0 && last != index) {
        const qint64 line = entry(last).at.begin.line;
        tell(Warning, "duplicate-key"_L1, index,
             tr("the key %1 is overridden: it stands in this group again")
                 + (line > 0 ? u" (line %1)"_s.arg(line) : QString()),
             setting.name);
    } else if (setting.misread) {
        return;
    } else if (setting.name.contains(u'.')) {
        tell(Warning, "unreachable-key"_L1, index,
             tr("no lookup finds the key %1: a `.` stands between the names of groups"),
             setting.name);
    } else if (setting.parent == top && !group.misread) {
        tell(Warning, "unknown-key"_L1, index, tr("nothing reads the key %1"),
             outline.pathOf(index));
    } else if (isRead[size_t(setting.parent)]) {
        checkReadSetting(index);
    }
}

/// A setting of a group that is read.
void Checker::checkReadSetting(qsizetype index)
{
    const Entry &setting = entry(index);
    const QString &group = entry(setting.parent).name;
    const Setting *const known = findSetting(group, setting.name);
    if (!known)
        return tellUnknownKey(index);
    qsizetype &found = effective[{group, setting.name}];
    if (found > 0 && !entry(found).value.isEmpty())
        return tell(Warning, "unreachable-key"_L1, index,
                    tr("no lookup finds this %1: an earlier group of the name has it"),
                    outline.pathOf(index));
    found = index;
    if (!setting.value.contains(u'\n')) // that it ran over its line has been told
        checkValue(index, *known);
}

void Checker::tellUnknownKey(qsizetype index)
{
    const QString &name = entry(index).name;
    const bool isListed = ++unknownKeys <= MostOfACode;
    const QStringList others = isListed ? groupsWith(name) : QStringList();
    tell(Warning, "unknown-key"_L1, index,
         tr("nothing reads the key %1")
             + (others.isEmpty() ? QString()
                                 : tr(" (it belongs to `%1`)").arg(others.join("`, `"_L1))),
         outline.pathOf(index));
    if (isListed && others.isEmpty())
        suggest(nearest(name, knownWords(entry(entry(index).parent).name)));
}

void Checker::checkValue(qsizetype index, const Setting &setting)
{
    const QString &value = entry(index).value;
    const QStringList words = wordsOf(setting.kind);
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (setting.kind == SettingKind::Number && !isNumber) {
        tellValue(Error, "not-a-number"_L1, index, tr("%1 wants a whole number, not %2: 0 is read"),
                  outline.pathOf(index), value);
    } else if (setting.kind == SettingKind::Number && (number < 0 || number > setting.most)) {
        tellValue(Error, "out-of-range"_L1, index, tr("%1 is %2, which is not between 0 and %3"),
                  outline.pathOf(index), number, setting.most);
    } else if (setting.kind == SettingKind::Switch && value != "true"_L1 && value != "false"_L1) {
        tellValue(Error, "not-a-switch"_L1, index,
                  tr("%1 is %2, neither \"true\" nor \"false\": it is off"), outline.pathOf(index),
                  value);
    } else if (!words.isEmpty() && !words.contains(value, Qt::CaseInsensitive)) {
        tellValue(Error, "unknown-word"_L1, index,
                  setting.kind == SettingKind::LogLevel ? tr("%1 is %2: every line is logged")
                                                        : tr("%1 is %2: nothing is logged"),
                  outline.pathOf(index), value);
        suggest(nearest(value, words));
    }
}

void Checker::checkColumns()
{
    constexpr qint64 Separators = 3; // " x "
    for (const QString &group : knownGroups()) {
        const qsizetype first = groups.value(group, -1);
        if (first < 0 || !isDocumentGroup(group))
            continue;
        const int set = number(group, "paperWidth"_L1);
        const qint64 paper = set == 0 ? DevicePaperWidth : set;
        const qint64 columns = qint64(number(group, "quantityFieldWidth"_L1))
                               + number(group, "priceFieldWidth"_L1)
                               + number(group, "totalPriceFieldWidth"_L1) + Separators;
        const qsizetype width = effective.value({group, u"paperWidth"_s});
        if (columns >= paper)
            tell(Error, "columns"_L1, width > 0 ? width : first,
                 tr("%1: quantity, price and total take %2 characters with what stands between "
                    "them, the paper has %3: nothing is left for the description"),
                 outline.pathOf(first), columns, paper);
    }
}

void Checker::checkLanguage()
{
    const qsizetype file = effective.value({u"language"_s, u"file"_s});
    const qsizetype folder = effective.value({u"language"_s, u"basedir"_s});
    const QString &base = entry(folder).value;
    const QString &name = entry(file).value;
    const qsizetype subject = name.isEmpty() ? folder : file;
    QTranslator translator;
    if (name == "/"_L1) { // by the locale, which could choose from what is there
        if (QDir(text::nameOfFile(text::bytesOf(base)))
                .entryList({u"zentaro_*"_s}, QDir::Files)
                .isEmpty())
            tellValue(Warning, "language-file"_L1, subject, tr("there is no language file %1"),
                      base + u"/zentaro_*.qm"_s);
    } else if (!(base + name).isEmpty() && !loadTranslation(translator, base, name)) {
        tellValue(Warning, "language-file"_L1, subject,
                  tr("there is no language file %1: labels stay in English"), base + name);
    }
}

} // namespace

std::vector<Finding> findingsIn(const Outline &outline) { return Checker{outline}.check(); }

QString unreadKey(const QString &key)
{
    if (settingOf(key))
        return {};
    QStringList keys;
    QStringList words; // taken for what a name without any point may mean
    for (const QString &group : knownGroups()) {
        for (const QString &word : knownWords(group)) {
            keys.append(keyOf(group, word));
            words.append(word);
        }
    }
    // A key without the product's name, or without any group, is taken for what it is the end of.
    const auto longer = std::ranges::find_if(
        keys, [&](const QString &known) { return known.endsWith(u'.' + key); });
    return worded(Finding::tr("nothing reads the key %1"), key)
           + didYouMean(longer == keys.end() ? nearest(key, key.contains(u'.') ? keys : words)
                                             : *longer);
}

} // namespace configtool
