// SPDX-License-Identifier: MIT
#include "tools/config/outline.h"

#include "config/config.h"
#include "tools/terminal.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace configtool {

using namespace Qt::StringLiterals;

namespace {

/// Where the reader goes on. It knows the end of a text by the `<` that follows, which is read
/// then.
Place placeOf(const QXmlStreamReader &reader)
{
    return {reader.lineNumber(), reader.columnNumber() + (reader.isCharacters() ? 0 : 1)};
}

/// Adds the element that the reader stands at, and its attributes; answers the entry of its group.
qsizetype addElement(Outline &outline, const QXmlStreamReader &reader, qsizetype parent, Place at)
{
    const auto group = qsizetype(outline.entries.size());
    outline.add(Entry::Kind::Group, parent, reader.qualifiedName().toString(), {at, {}});
    for (const QXmlStreamAttribute &attribute : reader.attributes())
        outline.add(Entry::Kind::Setting, group, attribute.qualifiedName().toString(), {at, {}})
            .value = attribute.value().toString();
    return group;
}

void noteLoss(Outline &outline, const QXmlStreamReader &reader, qsizetype group, Place at)
{
    const QStringView text =
        reader.isProcessingInstruction() ? reader.processingInstructionTarget() : reader.text();
    outline.losses.push_back(
        {Severity::Warning,
         "lost-text"_L1,
         Finding::tr("text that is no setting: %1").arg(tools::excerpt(text.trimmed().toString())),
         {at, {}},
         group});
}

/// Reads the XML form: a group per element, a setting per attribute.
Outline readXmlOutline(const QByteArray &content)
{
    constexpr int MaxDepth = libconfig::Config::MaxXmlDepth;
    Outline outline;
    outline.keepsEmptyGroups = true;
    outline.add(Entry::Kind::Group, -1);
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    qsizetype open = 0;
    int depth = 0;
    while (!reader.atEnd()) {
        const Place at = placeOf(reader); // a token begins where the one before it ended
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            open = addElement(outline, reader, open, at);
            if (++depth > MaxDepth)
                reader.raiseError(Finding::tr("groups nest more than %1 deep").arg(MaxDepth));
            break;
        case QXmlStreamReader::EndElement:
            open = outline.entries[size_t(open)].parent;
            --depth;
            break;
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            if (!reader.isWhitespace())
                noteLoss(outline, reader, open, at);
            break;
        default:
            break;
        }
    }
    if (reader.hasError() && !content.isEmpty()) {
        outline.entries.resize(1, outline.entries.front());
        outline.entries.front().hasMember = false;
        outline.losses.clear();
        const QString cause = reader.error() == QXmlStreamReader::CustomError
                                  ? Finding::tr("nothing of the file is read: %1")
                                  : Finding::tr("not well-formed, nothing of the file is read: %1");
        outline.faults.push_back(
            {Severity::Error, "xml"_L1, cause.arg(reader.errorString()), {placeOf(reader), {}}});
    }
    return outline;
}

} // namespace

Entry &Outline::add(Entry::Kind kind, qsizetype parent, const QString &name, const Range &at)
{
    if (parent >= 0)
        entries[size_t(parent)].hasMember = true;
    return entries.emplace_back(Entry{kind, parent, name, {}, at, at});
}

qsizetype Outline::topGroup() const
{
    const auto found = std::ranges::find_if(entries, [this](const Entry &entry) {
        return entry.kind == Entry::Kind::Group && entry.parent == 0 && keeps(entry);
    });
    return found == entries.end() ? -1 : found - entries.begin();
}

QString Outline::pathOf(qsizetype entry) const
{
    constexpr int Most = 6; // names
    QString path;
    for (int shown = 0; entry > 0; entry = entries[size_t(entry)].parent, ++shown) {
        const QString point(path.isEmpty() ? ""_L1 : "."_L1);
        if (shown == Most)
            return u"…"_s + point + path;
        path.prepend(entries[size_t(entry)].name + point);
    }
    return path;
}

Outline readOutline(const QByteArray &content, const QString &format)
{
    return format == "xml"_L1 ? readXmlOutline(content) : readCfgOutline(content);
}

} // namespace configtool
