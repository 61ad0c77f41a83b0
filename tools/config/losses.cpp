// SPDX-License-Identifier: MIT
#include "tools/config/outline.h"

#include "config/cfgscanner.h"

#include <QHash>
#include <QXmlStreamReader>

#include <optional>
#include <utility>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// What the reader makes of the name, or else of the value, of a setting as it is written, in XML
/// in a group of its name; nothing where it loses more than that.
std::optional<QString> readBack(const QString &text, bool isName, bool isXml)
{
    const QString name = isName ? text : u"x"_s;
    const QString setting = name + " = \""_L1 + (isName ? QString() : text) + u'"';
    if (isXml) {
        QXmlStreamReader reader(u'<' + name + u' ' + setting + "/>"_L1);
        reader.setNamespaceProcessing(false);
        reader.readNextStartElement();
        const QXmlStreamAttributes attributes = reader.attributes();
        if (reader.qualifiedName() != name || attributes.size() != 1
            || reader.readNext() != QXmlStreamReader::EndElement)
            return std::nullopt;
        return (isName ? attributes[0].qualifiedName() : attributes[0].value()).toString();
    }
    using libconfig::CfgScanner;
    const QByteArray bytes = (setting + ";\n};"_L1).toLatin1();
    CfgScanner scanner({bytes.constData(), size_t(bytes.size())});
    if (scanner.next() != CfgScanner::Statement::Setting)
        return std::nullopt;
    const QString read = isName ? scanner.name() : scanner.value();
    return scanner.next() == CfgScanner::Statement::GroupEnd ? std::optional(read) : std::nullopt;
}

/// How a name or a value is not read back as it was; empty when it is.
QString lossOf(const QString &text, bool isName, bool isXml)
{
    const auto isPlain = [](QChar c) { return c.unicode() < 0x80 && c.isLetter(); };
    if (!text.isEmpty() && std::ranges::all_of(text, isPlain))
        return {}; // saves asking
    const std::optional<QString> read = readBack(text, isName, isXml);
    if (!read)
        return isXml ? Finding::tr("nothing is escaped, and it breaks the file")
                     : Finding::tr("it breaks what is written around it");
    return *read == text ? QString() : worded(Finding::tr("it is read back as %1"), *read);
}

struct LossFinder
{
    std::vector<Finding> find();
    void checkEntry(qsizetype index);
    template <typename... Arguments>
    void tell(QLatin1StringView code, qsizetype subject, const QString &words,
              const Arguments &...arguments)
    {
        findings.push_back({Severity::Warning, code, worded(words, arguments...),
                            outline.entries[size_t(subject)].at, subject});
    }

    const Outline &outline;
    const bool isXml;
    std::vector<Finding> findings = {};
    QHash<std::pair<qsizetype, QString>, qsizetype> settings = {}; // the last of each name

    Q_DECLARE_TR_FUNCTIONS(Finding)
};

std::vector<Finding> LossFinder::find()
{
    const auto &entries = outline.entries;
    std::vector<bool> isWritten{true};                  // by entry
    std::vector<bool> hasMember(entries.size(), false); // by entry, in the written file
    for (const Entry &entry : entries) {
        if (entry.parent >= 0 && outline.keeps(entry))
            hasMember[size_t(entry.parent)] = true;
    }
    const qsizetype top = outline.topGroup();
    for (qsizetype i = 1; i < qsizetype(entries.size()); ++i) {
        const Entry &entry = entries[size_t(i)];
        const bool isLater = entry.isGroup && entry.parent == 0 && i != top;
        isWritten.push_back(isWritten[size_t(entry.parent)] && !isLater);
        if (!isWritten[size_t(entry.parent)])
            continue; // told with the group
        if (entry.isGroup && !(isXml ? outline.keeps(entry) : hasMember[size_t(i)]))
            tell("lost-group"_L1, i, tr("the group %1, which is empty"), outline.pathOf(i));
        else if (isLater)
            tell("lost-group"_L1, i,
                 tr("the group %1 with all it holds: only the first top-level group is written"),
                 entry.name);
        else
            checkEntry(i);
    }
    return std::move(findings);
}

void LossFinder::checkEntry(qsizetype index)
{
    const Entry &entry = outline.entries[size_t(index)];
    if (const QString loss = lossOf(entry.name, true, isXml); !loss.isEmpty())
        tell("lost-name"_L1, index, tr("the name %1: %2"), entry.name, Plain{loss});
    if (entry.isGroup)
        return;
    if (isXml && entry.parent == 0)
        tell("lost-file"_L1, index,
             tr("everything: the setting %1 outside any group makes a file that is no XML"),
             entry.name);
    if (const QString loss = lossOf(entry.value, false, isXml); !loss.isEmpty())
        tell("lost-value"_L1, index, tr("the value of %1: %2"), outline.pathOf(index), Plain{loss});
    qsizetype &before = settings[{entry.parent, entry.name}];
    if (before > 0)
        tell("lost-duplicate"_L1, before, tr("the value %1 of %2: the key stands there twice"),
             outline.entries[size_t(before)].value, outline.pathOf(before));
    before = index;
}

} // namespace

std::vector<Finding> lossesInFormat(const Outline &outline, const QString &format)
{
    return LossFinder{outline, format == "xml"_L1}.find();
}

} // namespace configtool
