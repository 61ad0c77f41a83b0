// SPDX-License-Identifier: MIT
#include "tools/config/settingcheck.h"

#include "config/cfgscanner.h"
#include "tools/terminal.h"

#include <QHash>
#include <QXmlStreamReader>

#include <algorithm>
#include <optional>
#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;
using tools::excerpt;

namespace {

/// A setting's name and value, as they are read.
using NameAndValue = std::pair<QString, QString>;

/// What the reader makes of a setting as it is written, in XML in a group of its name; nothing
/// where it loses more than the setting.
std::optional<NameAndValue> readBack(const NameAndValue &written, bool isXml)
{
    const QString text = written.first + " = \""_L1 + written.second + u'"';
    if (isXml) {
        QXmlStreamReader reader(u'<' + written.first + u' ' + text + "/>"_L1);
        reader.setNamespaceProcessing(false);
        reader.readNextStartElement();
        const QXmlStreamAttributes attributes = reader.attributes();
        if (reader.qualifiedName() != written.first || attributes.size() != 1
            || reader.readNext() != QXmlStreamReader::EndElement)
            return std::nullopt;
        return NameAndValue{attributes.front().qualifiedName().toString(),
                            attributes.front().value().toString()};
    }
    using libconfig::CfgScanner;
    const QByteArray bytes = (text + ";\n};"_L1).toLatin1();
    CfgScanner scanner({bytes.constData(), size_t(bytes.size())});
    if (scanner.next() != CfgScanner::Statement::Setting)
        return std::nullopt;
    const NameAndValue read{scanner.name(), scanner.value()};
    return scanner.next() == CfgScanner::Statement::GroupEnd ? std::optional(read) : std::nullopt;
}

/// How a name or a value is not read back as it was; empty when it is.
QString lossOf(const QString &text, bool isName, bool isXml)
{
    const auto isPlain = [](QChar c) { return c.unicode() < 0x80 && c.isLetter(); };
    if (!text.isEmpty() && std::ranges::all_of(text, isPlain))
        return {}; // saves asking
    const auto read = readBack(isName ? NameAndValue(text, {}) : NameAndValue(u"x"_s, text), isXml);
    if (!read)
        return isXml ? Finding::tr("nothing is escaped, and it breaks the file")
                     : Finding::tr("it breaks what is written around it");
    const QString &found = isName ? read->first : read->second;
    return found == text ? QString() : Finding::tr("it is read back as %1").arg(excerpt(found));
}

struct LossFinder
{
    void checkEntry(qsizetype index);
    void tell(QLatin1StringView code, qsizetype subject, const QString &text)
    {
        findings.push_back(
            {Severity::Warning, code, text, outline.entries[size_t(subject)].at, subject});
    }

    const Outline &outline;
    const bool isXml;
    std::vector<Finding> findings = {};
    QHash<std::pair<qsizetype, QString>, qsizetype> settings = {}; // the last of each name

    Q_DECLARE_TR_FUNCTIONS(Finding)
};

void LossFinder::checkEntry(qsizetype index)
{
    const Entry &entry = outline.entries[size_t(index)];
    if (const QString loss = lossOf(entry.name, true, isXml); !loss.isEmpty())
        tell("lost-name"_L1, index, tr("the name %1: %2").arg(excerpt(entry.name), loss));
    if (entry.kind == Entry::Kind::Group)
        return;
    if (isXml && entry.parent == 0)
        tell("lost-file"_L1, index,
             tr("everything: the setting %1 outside any group makes a file that is no XML")
                 .arg(excerpt(entry.name)));
    if (const QString loss = lossOf(entry.value, false, isXml); !loss.isEmpty())
        tell("lost-value"_L1, index,
             tr("the value of %1: %2").arg(excerpt(outline.pathOf(index)), loss));
    qsizetype &before = settings[{entry.parent, entry.name}];
    if (before > 0)
        tell("lost-duplicate"_L1, before,
             tr("the value %1 of %2: the key stands there twice")
                 .arg(excerpt(outline.entries[size_t(before)].value),
                      excerpt(outline.pathOf(before))));
    before = index;
}

} // namespace

std::vector<Finding> lossesInFormat(const Outline &outline, const QString &format)
{
    LossFinder finder{outline, format == "xml"_L1};
    std::vector<bool> isWritten{true};                          // by entry
    std::vector<bool> hasMember(outline.entries.size(), false); // by entry, in the written file
    for (const Entry &entry : outline.entries) {
        if (entry.parent >= 0 && outline.keeps(entry))
            hasMember[size_t(entry.parent)] = true;
    }
    const qsizetype top = outline.topGroup();
    for (qsizetype i = 1; i < qsizetype(outline.entries.size()); ++i) {
        const Entry &entry = outline.entries[size_t(i)];
        const bool isGroup = entry.kind == Entry::Kind::Group;
        const bool isLater = isGroup && entry.parent == 0 && i != top;
        isWritten.push_back(isWritten[size_t(entry.parent)] && !isLater);
        if (!isWritten[size_t(entry.parent)])
            continue; // told with the group
        if (isGroup && !(finder.isXml ? outline.keeps(entry) : hasMember[size_t(i)]))
            finder.tell(
                "lost-group"_L1, i,
                Finding::tr("the group %1, which is empty").arg(excerpt(outline.pathOf(i))));
        else if (isLater)
            finder.tell(
                "lost-group"_L1, i,
                Finding::tr(
                    "the group %1 with all it holds: only the first top-level group is written")
                    .arg(excerpt(entry.name)));
        else
            finder.checkEntry(i);
    }
    return std::move(finder.findings);
}

} // namespace configtool
