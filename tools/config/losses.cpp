// SPDX-License-Identifier: MIT
#include "tools/config/losses.h"

#include "tools/terminal.h"

#include <QHash>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;
using tools::excerpt;

namespace {

bool isLatin1(const QString &text)
{
    return std::ranges::all_of(text, [](QChar c) { return c.unicode() <= 0xff; });
}

/// Why the "cfg" form does not give a name back; empty when it does.
QString cfgNameLoss(const QString &name)
{
    constexpr auto whiteSpace = QStringView(u" \t\n\v\f\r\u00a0");
    if (std::ranges::any_of(name, [](QChar c) { return QStringView(u":=}").contains(c); }))
        return u"a name cannot hold `:`, `=` or `}`"_s;
    if (name.contains(QChar(0)))
        return u"a NUL ends a name"_s;
    if (!name.isEmpty() && (whiteSpace.contains(name.front()) || whiteSpace.contains(name.back())))
        return u"blanks at the ends of a name are lost"_s;
    return isLatin1(name) ? QString() : u"characters outside ISO 8859-1 become `?`"_s;
}

QString cfgValueLoss(const QString &value)
{
    if (value.contains(u';'))
        return u"a `;` ends the value, the rest spills into the next name"_s;
    if (value.contains(u'"'))
        return u"double quotes inside the value are lost"_s;
    if (value.contains(QChar(0)))
        return u"a NUL ends the value"_s;
    return isLatin1(value) ? QString() : u"characters outside ISO 8859-1 become `?`"_s;
}

/// Whether a text is plain enough to stand anywhere in XML; saves asking a reader.
bool isPlain(const QString &text)
{
    return std::ranges::all_of(
        text, [](QChar c) { return c.unicode() < 0x80 && (c.isLetterOrNumber() || c == u'_'); });
}

/// Whether an XML reader gives back what the writer makes of a name and a value.
bool survivesXml(const QString &name, const QString &value)
{
    if (isPlain(value) && isPlain(name) && !name.isEmpty() && name.front().isLetter())
        return true;
    QXmlStreamReader reader(u'<' + name + u' ' + name + " = \""_L1 + value + "\"></"_L1 + name
                            + u'>');
    reader.setNamespaceProcessing(false);
    const bool element = reader.readNextStartElement() && reader.qualifiedName() == name;
    const QXmlStreamAttributes attributes = reader.attributes();
    const bool attribute = attributes.size() == 1 && attributes.front().qualifiedName() == name
                           && attributes.front().value() == value;
    while (!reader.atEnd())
        reader.readNext();
    return element && attribute && !reader.hasError();
}

QString xmlNameLoss(const QString &name)
{
    return survivesXml(name, {}) ? QString() : u"not a name in XML: the file cannot be read"_s;
}

QString xmlValueLoss(const QString &value)
{
    if (survivesXml(u"x"_s, value))
        return {};
    for (const QChar c : {u'"', u'<', u'&'}) {
        if (value.contains(c))
            return u"nothing is escaped, and `"_s + c + "` breaks the file"_L1;
    }
    return u"XML does not give back control characters"_s;
}

struct Form
{
    QString (*nameLoss)(const QString &);
    QString (*valueLoss)(const QString &);
    bool isXml;
};

constexpr Form cfgForm = {cfgNameLoss, cfgValueLoss, false};
constexpr Form xmlForm = {xmlNameLoss, xmlValueLoss, true};

class LossFinder
{
public:
    LossFinder(const Outline &outline, const Form &form)
        : outline(outline)
        , form(form)
    {
    }
    std::vector<Finding> find();

private:
    bool isInTree(const Entry &entry) const;
    void noteMembers();
    void checkEntry(qsizetype index);
    void checkSetting(qsizetype index);
    void tell(QLatin1StringView code, const QString &text, qsizetype subject);

    const Outline &outline;
    const Form &form;
    std::vector<Finding> findings;
    std::vector<bool> written;   // by entry
    std::vector<bool> hasMember; // by entry, in the written file
    QHash<std::pair<qsizetype, QString>, qsizetype> settings;
};

std::vector<Finding> LossFinder::find()
{
    noteMembers();
    const qsizetype top = outline.topGroup();
    written.push_back(true);
    for (qsizetype i = 1; i < qsizetype(outline.entries.size()); ++i) {
        const Entry &entry = outline.entries[size_t(i)];
        const bool isGroup = entry.kind == Entry::Kind::Group;
        const bool isLater = isGroup && entry.parent == 0 && i != top;
        const bool isEmpty = isGroup && (form.isXml ? !isInTree(entry) : !hasMember[size_t(i)]);
        written.push_back(written[size_t(entry.parent)] && !isLater);
        if (!written[size_t(entry.parent)])
            continue; // told with the group
        if (isEmpty)
            tell("lost-group"_L1,
                 "the group "_L1 + excerpt(outline.pathOf(i)) + ", which is empty"_L1, i);
        else if (isLater)
            tell("lost-group"_L1,
                 "the group "_L1 + excerpt(entry.name)
                     + " with all it holds: only the first top-level group is written"_L1,
                 i);
        else
            checkEntry(i);
    }
    return std::move(findings);
}

/// Whether the store keeps the entry, and so writes it.
bool LossFinder::isInTree(const Entry &entry) const
{
    return entry.kind == Entry::Kind::Setting || entry.hasMember || outline.keepsEmptyGroups;
}

/// Notes the groups that a written file gives back: those with something written in them.
void LossFinder::noteMembers()
{
    hasMember.assign(outline.entries.size(), false);
    for (const Entry &entry : outline.entries) {
        if (entry.parent >= 0 && isInTree(entry))
            hasMember[size_t(entry.parent)] = true;
    }
}

void LossFinder::checkEntry(qsizetype index)
{
    const Entry &entry = outline.entries[size_t(index)];
    if (const QString loss = form.nameLoss(entry.name); !loss.isEmpty())
        tell("lost-name"_L1, "the name "_L1 + excerpt(entry.name) + ": "_L1 + loss, index);
    if (entry.kind == Entry::Kind::Setting)
        checkSetting(index);
}

void LossFinder::checkSetting(qsizetype index)
{
    const Entry &setting = outline.entries[size_t(index)];
    if (form.isXml && setting.parent == 0)
        tell("lost-file"_L1,
             "everything: the setting "_L1 + excerpt(setting.name)
                 + " outside any group makes a file that is no XML"_L1,
             index);
    if (const QString loss = form.valueLoss(setting.value); !loss.isEmpty())
        tell("lost-value"_L1, "the value of "_L1 + excerpt(outline.pathOf(index)) + ": "_L1 + loss,
             index);
    qsizetype &before = settings[{setting.parent, setting.name}];
    if (before > 0)
        tell("lost-duplicate"_L1,
             "the value "_L1 + excerpt(outline.entries[size_t(before)].value) + " of "_L1
                 + excerpt(outline.pathOf(before)) + ": the key stands there twice"_L1,
             before);
    before = index;
}

void LossFinder::tell(QLatin1StringView code, const QString &text, qsizetype subject)
{
    findings.push_back(
        {Severity::Warning, code, text, outline.entries[size_t(subject)].at, subject});
}

} // namespace

std::vector<Finding> lossesInFormat(const Outline &outline, const QString &format)
{
    return LossFinder(outline, format == "xml"_L1 ? xmlForm : cfgForm).find();
}

bool nestsTooDeep(const Outline &outline)
{
    std::vector<int> levels;
    levels.reserve(outline.entries.size());
    for (const Entry &entry : outline.entries)
        levels.push_back(entry.parent < 0 ? 0 : levels[size_t(entry.parent)] + 1);
    return std::ranges::any_of(levels, [](int level) { return level > MostLevels; });
}

} // namespace configtool
