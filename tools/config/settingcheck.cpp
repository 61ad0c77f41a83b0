// SPDX-License-Identifier: MIT
#include "tools/config/settingcheck.h"

#include "app/translation.h"
#include "text/filename.h"
#include "tools/knownkeys.h"
#include "tools/nearest.h"
#include "tools/terminal.h"

#include <QDir>
#include <QHash>
#include <QTranslator>

#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;
using tools::excerpt;

namespace {

/// Whether a folder holds language files that the system's language could choose from.
bool hasTranslations(const QString &folder)
{
    const QDir dir(text::nameOfFile(text::bytesOf(folder)));
    return !dir.entryList({u"zentaro_*"_s}, QDir::Files).isEmpty();
}

class Checker
{
public:
    using enum Severity;

    explicit Checker(const Outline &outline)
        : outline(outline)
        , top(outline.topGroup())
    {
    }
    std::vector<Finding> check();

private:
    using Name = std::pair<qsizetype, QString>; // in a group

    void checkGroup(qsizetype index);
    void checkTopGroup(qsizetype index);
    void checkSetting(qsizetype index);
    void checkReadSetting(qsizetype index);
    void checkValue(qsizetype index, const Setting &setting);
    void checkColumns();
    void checkLanguage();

    const Entry &entry(qsizetype index) const { return outline.entries[size_t(index)]; }
    QString shown(qsizetype index) const { return excerpt(outline.pathOf(index)); }
    int number(const QString &group, QLatin1StringView word) const;
    void tell(Severity severity, QLatin1StringView code, qsizetype subject, const QString &text);
    void tellValue(Severity severity, QLatin1StringView code, qsizetype subject,
                   const QString &text);

    const Outline &outline;
    const qsizetype top; // where lookups begin
    std::vector<Finding> findings;
    QHash<QString, qsizetype> groups; // of the top group, the first of each name
    QHash<Name, qsizetype> settings;  // the last of each name in a group
    // By group and word: the entry that a lookup finds.
    QHash<std::pair<QString, QString>, qsizetype> effective;
    int unknownKeys = 0; // a way out is looked for only of those that are listed
};

std::vector<Finding> Checker::check()
{
    if (top < 0)
        tell(Warning, "no-settings"_L1, 0, u"the file has no group: every setting is empty"_s);
    const auto count = qsizetype(outline.entries.size());
    settings.reserve(count);
    effective.reserve(count);
    for (qsizetype i = 1; i < count; ++i) {
        if (entry(i).kind == Entry::Kind::Setting)
            settings.insert({entry(i).parent, entry(i).name}, i);
    }
    for (qsizetype i = 1; i < count; ++i) {
        if (entry(i).kind == Entry::Kind::Group)
            checkGroup(i);
        else
            checkSetting(i);
    }
    checkColumns();
    checkLanguage();
    return std::move(findings);
}

void Checker::checkGroup(qsizetype index)
{
    const Entry &group = entry(index);
    if (!group.hasMember)
        tell(Warning, "empty-group"_L1, index,
             "the group "_L1 + excerpt(group.name) + " is empty and counts for nothing"_L1);
    else if (group.parent == 0)
        checkTopGroup(index);
    else if (group.misread)
        return;
    else if (group.parent == top && !groups.contains(group.name)) {
        groups.insert(group.name, index);
        if (!tools::isKnownGroup(group.name))
            tell(Warning, "unknown-group"_L1, index,
                 "nothing reads the group "_L1 + shown(index)
                     + tools::suggestion(group.name, tools::knownGroups()));
    } else if (group.parent == top) {
        tell(
            Warning, "duplicate-group"_L1, index,
            "the group "_L1 + shown(index)
                + " stands here again: of a key in both, the first value that is not empty counts"_L1);
    } else if (entry(group.parent).parent == top && tools::isKnownGroup(entry(group.parent).name)) {
        tell(Warning, "unknown-group"_L1, index, "nothing reads the group "_L1 + shown(index));
    }
}

void Checker::checkTopGroup(qsizetype index)
{
    const QString &name = entry(index).name;
    if (index != top)
        tell(Error, "second-group"_L1, index,
             "nothing in the group "_L1 + excerpt(name)
                 + " is ever found: only the first top-level group is looked at"_L1);
    else if (name != tools::ProductGroup && !entry(index).misread)
        tell(Error, "unknown-group"_L1, index,
             "no key is ever found: the first group is "_L1 + excerpt(name) + ", not `"_L1
                 + tools::ProductGroup + u'`');
}

void Checker::checkSetting(qsizetype index)
{
    const Entry &setting = entry(index);
    const Entry &group = entry(setting.parent);
    const qsizetype last = settings.value({setting.parent, setting.name});
    if (setting.parent == 0) {
        if (!setting.misread)
            tell(Warning, "unreachable-key"_L1, index,
                 "no lookup finds the key "_L1 + excerpt(setting.name) + " outside any group"_L1);
    } else if (last != index) {
        tell(
            Warning, "duplicate-key"_L1, index,
            "the key "_L1 + excerpt(setting.name)
                + " is overridden: it stands in this group again"_L1
                + (entry(last).at.line > 0 ? u" (line %1)"_s.arg(entry(last).at.line) : QString()));
    } else if (setting.misread) {
        return;
    } else if (setting.name.contains(u'.')) {
        tell(Warning, "unreachable-key"_L1, index,
             "no lookup finds the key "_L1 + excerpt(setting.name)
                 + ": a `.` stands between the names of groups"_L1);
    } else if (setting.parent == top && !group.misread) {
        tell(Warning, "unknown-key"_L1, index, "nothing reads the key "_L1 + shown(index));
    } else if (group.parent == top && tools::isKnownGroup(group.name)) {
        checkReadSetting(index);
    }
}

/// What a person may have meant by an unknown key of a group.
QString wayOut(const QString &group, const QString &key)
{
    const QStringList others = tools::groupsWith(key);
    return others.isEmpty() ? tools::suggestion(key, tools::knownWords(group))
                            : " (it belongs to `"_L1 + others.join("`, `"_L1) + "`)"_L1;
}

/// A setting of a group that is read.
void Checker::checkReadSetting(qsizetype index)
{
    const Entry &setting = entry(index);
    const QString &group = entry(setting.parent).name;
    const Setting *const known = tools::findSetting(group, setting.name);
    qsizetype &found = effective[{group, setting.name}];
    if (!known) {
        tell(Warning, "unknown-key"_L1, index,
             "nothing reads the key "_L1 + shown(index)
                 + (++unknownKeys <= tools::MostOfACode ? wayOut(group, setting.name) : QString()));
    } else if (found > 0 && !entry(found).value.isEmpty()) {
        tell(Warning, "unreachable-key"_L1, index,
             "no lookup finds this "_L1 + shown(index)
                 + ": an earlier group of the name has it"_L1);
    } else {
        found = index;
        if (!setting.value.contains(u'\n')) // that it ran over its line has been told
            checkValue(index, *known);
    }
}

void Checker::checkValue(qsizetype index, const Setting &setting)
{
    const QString &value = entry(index).value;
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    switch (setting.kind) {
    case SettingKind::Number:
        if (!isNumber)
            tellValue(Error, "not-a-number"_L1, index,
                      shown(index) + " wants a whole number, not "_L1 + excerpt(value)
                          + ": 0 is read"_L1);
        else if (number < 0 || number > setting.most)
            tellValue(
                Error, "out-of-range"_L1, index,
                shown(index)
                    + u" is %1, which is not between 0 and %2"_s.arg(number).arg(setting.most));
        break;
    case SettingKind::Switch:
        if (value != "true"_L1 && value != "false"_L1)
            tellValue(Error, "not-a-switch"_L1, index,
                      shown(index) + " is "_L1 + excerpt(value)
                          + R"(, neither "true" nor "false": it is off)"_L1);
        break;
    default:
        if (const QStringList words = tools::wordsOf(setting.kind);
            !words.isEmpty() && !words.contains(value, Qt::CaseInsensitive))
            tellValue(Error, "unknown-word"_L1, index,
                      shown(index) + " is "_L1 + excerpt(value)
                          + (setting.kind == SettingKind::LogLevel ? ": every line is logged"_L1
                                                                   : ": nothing is logged"_L1)
                          + tools::suggestion(value, words));
        break;
    }
}

/// The number that a document reads; 0 for one that is not there or is none.
int Checker::number(const QString &group, QLatin1StringView word) const
{
    return entry(effective.value({group, word})).value.toInt(); // the file has no value
}

void Checker::checkColumns()
{
    constexpr qint64 Separators = 3; // " x "
    for (const QString &group : tools::knownGroups()) {
        const qsizetype first = groups.value(group, -1);
        if (first < 0 || !tools::isDocumentGroup(group))
            continue;
        const int set = number(group, "paperWidth"_L1);
        const qint64 paper = set == 0 ? DevicePaperWidth : set;
        const qint64 columns = qint64(number(group, "quantityFieldWidth"_L1))
                               + number(group, "priceFieldWidth"_L1)
                               + number(group, "totalPriceFieldWidth"_L1) + Separators;
        if (columns < paper)
            continue;
        const qsizetype width = effective.value({group, u"paperWidth"_s});
        tell(Error, "columns"_L1, width > 0 ? width : first,
             shown(first)
                 + u": quantity, price and total take %1 characters with what stands between them, "
                   "the paper has %2: nothing is left for the description"_s.arg(columns)
                       .arg(paper));
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
    const bool isByLocale = name == "/"_L1;
    if ((base + name).isEmpty()
        || (isByLocale ? hasTranslations(base) : loadTranslation(translator, base, name)))
        return;
    tellValue(Warning, "language-file"_L1, subject,
              "there is no language file "_L1
                  + (isByLocale ? excerpt(base + "/zentaro_*.qm"_L1)
                                : excerpt(base + name) + ": labels stay in English"_L1));
}

void Checker::tell(Severity severity, QLatin1StringView code, qsizetype subject,
                   const QString &text)
{
    findings.push_back({severity, code, text, entry(subject).at, subject});
}

/// As tell(), at the setting's value.
void Checker::tellValue(Severity severity, QLatin1StringView code, qsizetype subject,
                        const QString &text)
{
    findings.push_back({severity, code, text, entry(subject).valueAt, subject});
}

} // namespace

std::vector<Finding> checkSettings(const Outline &outline) { return Checker(outline).check(); }

std::vector<Finding> findingsIn(const Outline &outline)
{
    std::vector<Finding> findings = outline.faults;
    for (Finding &finding : checkSettings(outline))
        findings.push_back(std::move(finding));
    return findings;
}

QString unreadKey(const QString &key)
{
    const QStringList names = key.split(u'.');
    if (names.size() == 3 && names[0] == tools::ProductGroup
        && tools::findSetting(names[1], names[2]))
        return {};
    QStringList keys;
    QStringList words; // taken for what a name without any point may mean
    for (const QString &group : tools::knownGroups()) {
        for (const QString &word : tools::knownWords(group)) {
            keys.append(tools::keyOf(group, word));
            words.append(word);
        }
    }
    // A key without the product's name, or without any group, is taken for what it is the end of.
    const auto longer = std::ranges::find_if(
        keys, [&](const QString &known) { return known.endsWith(u'.' + key); });
    return "nothing reads the key "_L1 + excerpt(key)
           + (longer == keys.end() ? tools::suggestion(key, names.size() > 1 ? keys : words)
                                   : " (did you mean `"_L1 + *longer + "`?)"_L1);
}

} // namespace configtool
