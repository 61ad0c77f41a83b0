// SPDX-License-Identifier: MIT
#include "tools/config/losses.h"

#include "config/cfgscanner.h"
#include "tools/terminal.h"

#include <QHash>
#include <QXmlStreamReader>

#include <algorithm>
#include <span>
#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;
using tools::excerpt;

namespace {

/// Whether a text is plain enough to stand anywhere; saves asking a reader.
bool isPlain(const QString &text)
{
    return !text.isEmpty() && std::ranges::all_of(text, [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
    });
}

/// Whether reading the "cfg" form gives back what writing it makes of a name and a value.
bool survivesCfg(const QString &name, const QString &value)
{
    using libconfig::CfgScanner;
    const QByteArray written = (name + " = \""_L1 + value + "\";\n};"_L1).toLatin1();
    CfgScanner scanner({written.constData(), size_t(written.size())});
    return scanner.next() == CfgScanner::Statement::Setting && scanner.name() == name
           && scanner.value() == value && scanner.next() == CfgScanner::Statement::GroupEnd;
}

/// The same of the XML form.
bool survivesXml(const QString &name, const QString &value)
{
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

/// What becomes of a text that holds one of some characters, or of any text that does not survive.
struct Cause
{
    QStringView characters;
    QLatin1StringView loss;
};

constexpr Cause cfgNameCauses[] = {
    {u":=}", "a name cannot hold `:`, `=` or `}`"_L1},
    {QStringView(u"\0", 1), "a NUL ends a name"_L1},
};
constexpr Cause cfgValueCauses[] = {
    {u";", "a `;` ends the value, the rest spills into the next name"_L1},
    {u"\"", "double quotes inside the value are lost"_L1},
    {QStringView(u"\0", 1), "a NUL ends the value"_L1},
};
constexpr Cause xmlValueCauses[] = {
    {u"\"", "nothing is escaped, and `\"` breaks the file"_L1},
    {u"<", "nothing is escaped, and `<` breaks the file"_L1},
    {u"&", "nothing is escaped, and `&` breaks the file"_L1},
};

/// The loss by the first cause that the text has; the last way out without one.
QString lossBy(std::span<const Cause> causes, const QString &text, QLatin1StringView otherwise)
{
    const auto cause = std::ranges::find_if(causes, [&](const Cause &each) {
        return std::ranges::any_of(each.characters, [&](QChar c) { return text.contains(c); });
    });
    return cause == causes.end() ? otherwise : cause->loss;
}

/// Why the form does not give a name back; empty when it does.
QString nameLoss(const QString &name, bool isXml)
{
    if (isPlain(name) || (isXml ? survivesXml(name, {}) : survivesCfg(name, {})))
        return {};
    if (isXml)
        return u"not a name in XML: the file cannot be read"_s;
    const bool isLatin1 = QString::fromLatin1(name.toLatin1()) == name;
    return lossBy(cfgNameCauses, name,
                  isLatin1 ? "blanks at the ends of a name are lost"_L1
                           : "characters outside ISO 8859-1 become `?`"_L1);
}

QString valueLoss(const QString &value, bool isXml)
{
    if (isPlain(value) || (isXml ? survivesXml(u"x"_s, value) : survivesCfg(u"x"_s, value)))
        return {};
    return isXml ? lossBy(xmlValueCauses, value, "XML does not give back control characters"_L1)
                 : lossBy(cfgValueCauses, value, "characters outside ISO 8859-1 become `?`"_L1);
}

class LossFinder
{
public:
    LossFinder(const Outline &outline, bool isXml)
        : outline(outline)
        , isXml(isXml)
    {
    }
    std::vector<Finding> find();

private:
    bool isInTree(const Entry &entry) const;
    void checkEntry(qsizetype index);
    void tell(QLatin1StringView code, const QString &text, qsizetype subject);

    const Outline &outline;
    const bool isXml;
    std::vector<Finding> findings;
    std::vector<bool> written;   // by entry
    std::vector<bool> hasMember; // by entry, in the written file
    QHash<std::pair<qsizetype, QString>, qsizetype> settings;
};

std::vector<Finding> LossFinder::find()
{
    hasMember.assign(outline.entries.size(), false);
    for (const Entry &entry : outline.entries) {
        if (entry.parent >= 0 && isInTree(entry))
            hasMember[size_t(entry.parent)] = true;
    }
    const qsizetype top = outline.topGroup();
    written.push_back(true);
    for (qsizetype i = 1; i < qsizetype(outline.entries.size()); ++i) {
        const Entry &entry = outline.entries[size_t(i)];
        const bool isGroup = entry.kind == Entry::Kind::Group;
        const bool isLater = isGroup && entry.parent == 0 && i != top;
        const bool isEmpty = isGroup && (isXml ? !isInTree(entry) : !hasMember[size_t(i)]);
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

void LossFinder::checkEntry(qsizetype index)
{
    const Entry &entry = outline.entries[size_t(index)];
    if (const QString loss = nameLoss(entry.name, isXml); !loss.isEmpty())
        tell("lost-name"_L1, "the name "_L1 + excerpt(entry.name) + ": "_L1 + loss, index);
    if (entry.kind == Entry::Kind::Group)
        return;
    if (isXml && entry.parent == 0)
        tell("lost-file"_L1,
             "everything: the setting "_L1 + excerpt(entry.name)
                 + " outside any group makes a file that is no XML"_L1,
             index);
    if (const QString loss = valueLoss(entry.value, isXml); !loss.isEmpty())
        tell("lost-value"_L1, "the value of "_L1 + excerpt(outline.pathOf(index)) + ": "_L1 + loss,
             index);
    qsizetype &before = settings[{entry.parent, entry.name}];
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
    return LossFinder(outline, format == "xml"_L1).find();
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
