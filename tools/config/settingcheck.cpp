// SPDX-License-Identifier: MIT
#include "tools/config/settingcheck.h"

#include "app/translation.h"
#include "text/filename.h"
#include "tools/knownkeys.h"
#include "tools/terminal.h"

#include <QDir>
#include <QHash>
#include <QTranslator>

#include <algorithm>
#include <iterator>
#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;
using tools::excerpt;

namespace {

class Checker
{
    Q_DECLARE_TR_FUNCTIONS(Finding)

public:
    using enum Severity;

    explicit Checker(const Outline &outline)
        : outline(outline)
        , top(outline.topGroup())
    {
    }
    std::vector<Finding> check();

private:
    void checkGroup(qsizetype index);
    void checkTopGroup(qsizetype index);
    void tellUnread(qsizetype group, const QString &meant = {});
    void checkSetting(qsizetype index);
    void checkReadSetting(qsizetype index);
    void tellUnknownKey(qsizetype index);
    void checkValue(qsizetype index, const Setting &setting);
    void checkColumns();
    void checkLanguage();

    const Entry &entry(qsizetype index) const { return outline.entries[size_t(index)]; }
    QString shown(qsizetype index) const { return excerpt(outline.pathOf(index)); }
    bool isReadGroup(const Entry &group) const
    {
        return group.parent == top && tools::isKnownGroup(group.name);
    }
    /// The number that a document reads; 0 for one that is not there or is none.
    int number(const QString &group, QLatin1StringView word) const
    {
        return entry(effective.value({group, word})).value.toInt(); // the file has no value
    }
    /// `meant` is what should stand there, if anybody knows.
    void tell(Severity severity, QLatin1StringView code, qsizetype subject, const QString &text,
              const QString &meant = {}, Range Entry::*part = &Entry::at);

    const Outline &outline;
    const qsizetype top; // where lookups begin
    std::vector<Finding> findings;
    QHash<QString, qsizetype> groups; // of the top group, the first of each name
    QHash<std::pair<qsizetype, QString>, qsizetype> settings; // the last of each name in a group
    // By group and word: the entry that a lookup finds.
    QHash<std::pair<QString, QString>, qsizetype> effective;
    int unknownKeys = 0; // a way out is looked for only of those that are listed
};

std::vector<Finding> Checker::check()
{
    if (top < 0)
        tell(Warning, "no-settings"_L1, 0, tr("the file has no group: every setting is empty"));
    const auto count = qsizetype(outline.entries.size());
    settings.reserve(count);
    effective.reserve(count);
    for (qsizetype i = 1; i < count; ++i) {
        if (entry(i).kind == Entry::Kind::Setting)
            settings.insert({entry(i).parent, entry(i).name}, i);
    }
    for (qsizetype i = 1; i < count; ++i)
        entry(i).kind == Entry::Kind::Group ? checkGroup(i) : checkSetting(i);
    checkColumns();
    checkLanguage();
    return std::move(findings);
}

void Checker::checkGroup(qsizetype index)
{
    const Entry &group = entry(index);
    if (!group.hasMember)
        tell(Warning, "empty-group"_L1, index,
             tr("the group %1 is empty and counts for nothing").arg(excerpt(group.name)));
    else if (group.parent == 0)
        checkTopGroup(index);
    else if (group.misread)
        return;
    else if (group.parent == top && groups.contains(group.name))
        tell(Warning, "duplicate-group"_L1, index,
             tr("the group %1 stands here again: of a key in both, the first value that is not "
                "empty counts")
                 .arg(shown(index)));
    else if (group.parent == top) {
        groups.insert(group.name, index);
        if (!tools::isKnownGroup(group.name))
            tellUnread(index, tools::nearest(group.name, tools::knownGroups()));
    } else if (isReadGroup(entry(group.parent))) {
        tellUnread(index);
    }
}

void Checker::tellUnread(qsizetype group, const QString &meant)
{
    tell(Warning, "unknown-group"_L1, group, tr("nothing reads the group %1").arg(shown(group)),
         meant);
}

void Checker::checkTopGroup(qsizetype index)
{
    const auto name = [&] { return excerpt(entry(index).name); };
    if (index != top)
        tell(
            Error, "second-group"_L1, index,
            tr("nothing in the group %1 is ever found: only the first top-level group is looked at")
                .arg(name()));
    else if (entry(index).name != tools::ProductGroup && !entry(index).misread)
        tell(Error, "unknown-group"_L1, index,
             tr("no key is ever found: the first group is %1, not `%2`")
                 .arg(name(), tools::ProductGroup));
}

void Checker::checkSetting(qsizetype index)
{
    const Entry &setting = entry(index);
    const Entry &group = entry(setting.parent);
    const auto name = [&setting] { return excerpt(setting.name); };
    const qsizetype last = settings.value({setting.parent, setting.name});
    if (setting.parent == 0) {
        if (!setting.misread)
            tell(Warning, "unreachable-key"_L1, index,
                 tr("no lookup finds the key %1 outside any group").arg(name()));
    } else if (last != index) {
        const qint64 line = entry(last).at.begin.line;
        tell(Warning, "duplicate-key"_L1, index,
             tr("the key %1 is overridden: it stands in this group again").arg(name())
                 + (line > 0 ? u" (line %1)"_s.arg(line) : QString()));
    } else if (setting.misread) {
        return;
    } else if (setting.name.contains(u'.')) {
        tell(
            Warning, "unreachable-key"_L1, index,
            tr("no lookup finds the key %1: a `.` stands between the names of groups").arg(name()));
    } else if (setting.parent == top && !group.misread) {
        tell(Warning, "unknown-key"_L1, index, tr("nothing reads the key %1").arg(shown(index)));
    } else if (isReadGroup(group)) {
        checkReadSetting(index);
    }
}

/// A setting of a group that is read.
void Checker::checkReadSetting(qsizetype index)
{
    const Entry &setting = entry(index);
    const QString &group = entry(setting.parent).name;
    const Setting *const known = tools::findSetting(group, setting.name);
    if (!known)
        return tellUnknownKey(index);
    qsizetype &found = effective[{group, setting.name}];
    if (found > 0 && !entry(found).value.isEmpty()) {
        tell(Warning, "unreachable-key"_L1, index,
             tr("no lookup finds this %1: an earlier group of the name has it").arg(shown(index)));
        return;
    }
    found = index;
    if (!setting.value.contains(u'\n')) // that it ran over its line has been told
        checkValue(index, *known);
}

void Checker::tellUnknownKey(qsizetype index)
{
    const QString &name = entry(index).name;
    const bool isListed = ++unknownKeys <= tools::MostOfACode;
    const QStringList others = isListed ? tools::groupsWith(name) : QStringList();
    const QStringList words = isListed && others.isEmpty()
                                  ? tools::knownWords(entry(entry(index).parent).name)
                                  : QStringList();
    tell(Warning, "unknown-key"_L1, index,
         tr("nothing reads the key %1").arg(shown(index))
             + (others.isEmpty() ? QString()
                                 : tr(" (it belongs to `%1`)").arg(others.join("`, `"_L1))),
         tools::nearest(name, words));
}

void Checker::checkValue(qsizetype index, const Setting &setting)
{
    const QString &value = entry(index).value;
    const auto tellValue = [&](QLatin1StringView code, const QString &fault,
                               const QString &meant = {}) {
        tell(Error, code, index, fault, meant, &Entry::valueAt);
    };
    const QStringList words = tools::wordsOf(setting.kind);
    if (setting.kind == SettingKind::Number) {
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        if (!isNumber)
            tellValue(
                "not-a-number"_L1,
                tr("%1 wants a whole number, not %2: 0 is read").arg(shown(index), excerpt(value)));
        else if (number < 0 || number > setting.most)
            tellValue("out-of-range"_L1, tr("%1 is %2, which is not between 0 and %3")
                                             .arg(shown(index), QString::number(number),
                                                  QString::number(setting.most)));
    } else if (setting.kind == SettingKind::Switch) {
        if (value != "true"_L1 && value != "false"_L1)
            tellValue("not-a-switch"_L1, tr("%1 is %2, neither \"true\" nor \"false\": it is off")
                                             .arg(shown(index), excerpt(value)));
    } else if (!words.isEmpty() && !words.contains(value, Qt::CaseInsensitive)) {
        tellValue("unknown-word"_L1,
                  (setting.kind == SettingKind::LogLevel ? tr("%1 is %2: every line is logged")
                                                         : tr("%1 is %2: nothing is logged"))
                      .arg(shown(index), excerpt(value)),
                  tools::nearest(value, words));
    }
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
             tr("%1: quantity, price and total take %2 characters with what stands between them, "
                "the paper has %3: nothing is left for the description")
                 .arg(shown(first), QString::number(columns), QString::number(paper)));
    }
}

void Checker::checkLanguage()
{
    const qsizetype file = effective.value({u"language"_s, u"file"_s});
    const qsizetype folder = effective.value({u"language"_s, u"basedir"_s});
    const QString &base = entry(folder).value;
    const QString &name = entry(file).value;
    const bool isByLocale = name == "/"_L1; // which could choose from what is there
    QTranslator translator;
    const auto isThere = [&] {
        return isByLocale ? !QDir(text::nameOfFile(text::bytesOf(base)))
                                 .entryList({u"zentaro_*"_s}, QDir::Files)
                                 .isEmpty()
                          : loadTranslation(translator, base, name);
    };
    if (!(base + name).isEmpty() && !isThere())
        tell(Warning, "language-file"_L1, name.isEmpty() ? folder : file,
             (isByLocale ? tr("there is no language file %1")
                         : tr("there is no language file %1: labels stay in English"))
                 .arg(excerpt(base + (isByLocale ? u"/zentaro_*.qm"_s : name))),
             {}, &Entry::valueAt);
}

void Checker::tell(Severity severity, QLatin1StringView code, qsizetype subject,
                   const QString &text, const QString &meant, Range Entry::*part)
{
    findings.push_back(
        {severity, code, text + tools::didYouMean(meant), entry(subject).*part, subject, meant});
}

} // namespace

std::vector<Finding> checkSettings(const Outline &outline) { return Checker(outline).check(); }

std::vector<Finding> findingsIn(const Outline &outline)
{
    std::vector<Finding> findings = outline.faults;
    std::ranges::move(checkSettings(outline), std::back_inserter(findings));
    return findings;
}

QString unreadKey(const QString &key)
{
    if (tools::settingOf(key))
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
    return Finding::tr("nothing reads the key %1").arg(excerpt(key))
           + tools::didYouMean(longer == keys.end()
                                   ? tools::nearest(key, key.contains(u'.') ? keys : words)
                                   : *longer);
}

} // namespace configtool
