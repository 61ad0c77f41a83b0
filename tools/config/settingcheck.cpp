// SPDX-License-Identifier: MIT
#include "tools/config/settingcheck.h"

#include "app/translation.h"
#include "tools/config/valuecheck.h"
#include "tools/knownkeys.h"
#include "tools/nearest.h"
#include "tools/terminal.h"

#include <QDir>
#include <QHash>
#include <QLocale>
#include <QTranslator>

#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;
using tools::excerpt;

namespace {

class Checker
{
public:
    explicit Checker(const Outline &outline)
        : outline(outline)
        , top(outline.topGroup())
    {
    }
    std::vector<Finding> check();

private:
    using Name = std::pair<qsizetype, QString>; // in a group

    void checkGroup(qsizetype index);
    void checkSetting(qsizetype index);
    void checkTopGroup(qsizetype index);
    void checkKnownSetting(qsizetype index);
    bool checkDuplicate(qsizetype index);
    void checkColumns();
    void checkLanguage();

    const Entry &entry(qsizetype index) const { return outline.entries[size_t(index)]; }
    int number(const QString &group, const QString &word) const;
    static QString wayOut(const QString &group, const QString &key);
    void tell(Severity severity, QLatin1StringView code, const QString &text, qsizetype subject);
    void tellValue(Severity severity, QLatin1StringView code, const QString &text,
                   qsizetype subject);

    const Outline &outline;
    const qsizetype top; // where lookups begin
    std::vector<Finding> findings;
    QHash<Name, qsizetype> groups;       // of the top group and below, the first of each name
    QHash<Name, qsizetype> settings;     // the first of each name in a group
    int unknownKeys = 0;                 // a way out is looked for only of those that are listed
    QHash<QString, qsizetype> effective; // by "group.word": the entry that a lookup finds
};

std::vector<Finding> Checker::check()
{
    if (top < 0)
        tell(Severity::Warning, "no-settings"_L1,
             u"the file has no group: every setting is empty"_s, 0);
    for (qsizetype i = 1; i < qsizetype(outline.entries.size()); ++i) {
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
        tell(Severity::Warning, "empty-group"_L1,
             "the group "_L1 + excerpt(group.name) + " is empty and counts for nothing"_L1, index);
    else if (group.parent == 0)
        checkTopGroup(index);
    else if (group.misread)
        return;
    else if (group.parent == top && !groups.contains({top, group.name})) {
        groups.insert({top, group.name}, index);
        if (!tools::isKnownGroup(group.name))
            tell(Severity::Warning, "unknown-group"_L1,
                 "nothing reads the group "_L1 + excerpt(outline.pathOf(index))
                     + tools::suggestion(group.name, tools::knownGroups()),
                 index);
    } else if (group.parent == top) {
        tell(
            Severity::Warning, "duplicate-group"_L1,
            "the group "_L1 + excerpt(outline.pathOf(index))
                + " stands here again: of a key in both, the first value that is not empty counts"_L1,
            index);
    } else if (entry(group.parent).parent == top && tools::isKnownGroup(entry(group.parent).name)) {
        tell(Severity::Warning, "unknown-group"_L1,
             "nothing reads the group "_L1 + excerpt(outline.pathOf(index)), index);
    }
}

void Checker::checkTopGroup(qsizetype index)
{
    const QString &name = entry(index).name;
    if (index != top)
        tell(Severity::Error, "second-group"_L1,
             "nothing in the group "_L1 + excerpt(name)
                 + " is ever found: only the first top-level group is looked at"_L1,
             index);
    else if (name != tools::ProductGroup && !entry(index).misread)
        tell(Severity::Error, "unknown-group"_L1,
             "no key is ever found: the first group is "_L1 + excerpt(name) + ", not `"_L1
                 + tools::ProductGroup + u'`',
             index);
}

void Checker::checkSetting(qsizetype index)
{
    const Entry &setting = entry(index);
    if (setting.misread && setting.parent == 0)
        return;
    if (setting.parent == 0) {
        tell(Severity::Warning, "unreachable-key"_L1,
             "no lookup finds the key "_L1 + excerpt(setting.name) + " outside any group"_L1,
             index);
        return;
    }
    if (checkDuplicate(index) || setting.misread)
        return;
    const Entry &group = entry(setting.parent);
    if (setting.name.contains(u'.'))
        tell(Severity::Warning, "unreachable-key"_L1,
             "no lookup finds the key "_L1 + excerpt(setting.name)
                 + ": a `.` stands between the names of groups"_L1,
             index);
    else if (setting.parent == top && !group.misread)
        tell(Severity::Warning, "unknown-key"_L1,
             "nothing reads the key "_L1 + excerpt(outline.pathOf(index)), index);
    else if (group.parent == top && tools::isKnownGroup(group.name))
        checkKnownSetting(index);
}

/// Whether the group has the key before; tells it then.
bool Checker::checkDuplicate(qsizetype index)
{
    const Entry &setting = entry(index);
    const Name name(setting.parent, setting.name);
    if (!settings.contains(name)) {
        settings.insert(name, index);
        return false;
    }
    const qint64 line = entry(settings.value(name)).at.line;
    tell(Severity::Warning, "duplicate-key"_L1,
         "the key "_L1 + excerpt(setting.name) + " stands in this group before"_L1
             + (line > 0 ? " (line "_L1 + QString::number(line) + u')' : QString())
             + ": only the last value counts"_L1,
         index);
    return true;
}

/// What a person may have meant by an unknown key of a group.
QString Checker::wayOut(const QString &group, const QString &key)
{
    const QStringList others = tools::groupsWith(key);
    return others.isEmpty() ? tools::suggestion(key, tools::knownWords(group))
                            : " (it belongs to `"_L1 + others.join("`, `"_L1) + "`)"_L1;
}

/// A setting of a group that is read.
void Checker::checkKnownSetting(qsizetype index)
{
    const Entry &setting = entry(index);
    const QString &group = entry(setting.parent).name;
    const Setting *const known = tools::findSetting(group, setting.name);
    if (!known) {
        tell(Severity::Warning, "unknown-key"_L1,
             "nothing reads the key "_L1 + excerpt(outline.pathOf(index))
                 + (++unknownKeys <= tools::MostOfACode ? wayOut(group, setting.name) : QString()),
             index);
        return;
    }
    const bool ranOver = setting.value.contains(u'\n'); // which has been told
    if (const std::optional<ValueFault> fault =
            valueFault(outline.pathOf(index), *known, setting.value);
        fault && !ranOver)
        tellValue(Severity::Error, fault->code, fault->text, index);
    qsizetype &found = effective[group + u'.' + setting.name];
    if (found == 0 || entry(found).value.isEmpty())
        found = index;
    else
        tell(Severity::Warning, "unreachable-key"_L1,
             "no lookup finds this "_L1 + excerpt(outline.pathOf(index))
                 + ": an earlier group of the name has it"_L1,
             index);
}

/// The number that a document reads; 0 for one that is not there or is none.
int Checker::number(const QString &group, const QString &word) const
{
    const qsizetype found = effective.value(group + u'.' + word);
    return found > 0 ? entry(found).value.toInt() : 0;
}

void Checker::checkColumns()
{
    for (const QString &group : tools::knownGroups()) {
        const qsizetype first = groups.value({top, group}, -1);
        if (first < 0 || !tools::isDocumentGroup(group))
            continue;
        const ColumnWidths widths{
            number(group, u"quantityFieldWidth"_s), number(group, u"priceFieldWidth"_s),
            number(group, u"totalPriceFieldWidth"_s), number(group, u"paperWidth"_s)};
        const qsizetype paper = effective.value(group + u'.' + "paperWidth"_L1);
        if (const QString fault = columnFault(widths); !fault.isEmpty())
            tell(Severity::Error, "columns"_L1, excerpt(outline.pathOf(first)) + ": "_L1 + fault,
                 paper > 0 ? paper : first);
    }
}

void Checker::checkLanguage()
{
    const qsizetype file = effective.value(u"language.file"_s);
    const qsizetype folder = effective.value(u"language.basedir"_s);
    const QString base = folder > 0 ? entry(folder).value : QString();
    const QString name = file > 0 ? entry(file).value : QString();
    const qsizetype subject = file > 0 && !name.isEmpty() ? file : folder;
    if (name == "/"_L1 && !hasTranslations(base))
        tellValue(Severity::Warning, "language-file"_L1,
                  "there is no language file "_L1 + excerpt(base + "/zentaro_*.qm"_L1), subject);
    else if (QTranslator translator;
             name != "/"_L1 && !(base + name).isEmpty() && !loadTranslation(translator, base, name))
        tellValue(Severity::Warning, "language-file"_L1,
                  "there is no language file "_L1 + excerpt(base + name)
                      + ": labels stay in English"_L1,
                  subject);
}

void Checker::tell(Severity severity, QLatin1StringView code, const QString &text,
                   qsizetype subject)
{
    findings.push_back({severity, code, text, entry(subject).at, subject});
}

/// As tell(), at the setting's value.
void Checker::tellValue(Severity severity, QLatin1StringView code, const QString &text,
                        qsizetype subject)
{
    findings.push_back({severity, code, text, entry(subject).valueAt, subject});
}

} // namespace

std::vector<Finding> checkSettings(const Outline &outline)
{
    return Checker(outline).check();
}

} // namespace configtool
