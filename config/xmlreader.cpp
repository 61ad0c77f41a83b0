// SPDX-License-Identifier: MIT
#include "config/config.h"

#include "config/cfgscanner.h"
#include "config/elementwalk.h"

#include <QFile>
#include <QXmlStreamReader>

namespace libconfig {
namespace {

/// The limit of the other form: a longer file is not read.
constexpr qint64 MaxBytes = CfgScanner::MaxBytes;

/// The content of a file up to the limit, and a piece more of one that exceeds it.
QByteArray limitedContent(QFile &file)
{
    constexpr qint64 PieceBytes = qint64(64) * 1'024;
    QByteArray content;
    for (QByteArray piece = file.read(PieceBytes); !piece.isEmpty() && content.size() <= MaxBytes;
         piece = file.read(PieceBytes))
        content += piece;
    return content;
}

bool nestsTooDeep(const QByteArray &content)
{
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd() && depth <= Config::MaxXmlDepth) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        depth += token == QXmlStreamReader::StartElement ? 1 : 0;
        depth -= token == QXmlStreamReader::EndElement ? 1 : 0;
    }
    return depth > Config::MaxXmlDepth;
}

} // namespace

void Config::loadXmlFile()
{
    if (!document)
        newDocument();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray content = limitedContent(file);
    if (content.size() > MaxBytes || nestsTooDeep(content))
        return;
    if (!document->setContent(content, false)) {
        newDocument(); // without what was read before the fault
        return;
    }
    // The root element moves under a file element, the shape of a "cfg" tree. A declaration or a
    // comment before it stays where it is.
    QDomElement fileElement = newElement(*document, fileName);
    fileElement.appendChild(document->documentElement());
    document->appendChild(fileElement);
    noteAttributeOrder(content);
}

/// Reads a second time for the order of the attributes, which the tree does not keep. The elements
/// of the tree stand in the order of their start tags.
void Config::noteAttributeOrder(const QByteArray &content)
{
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    const auto nextStartTag = [&reader] {
        while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::StartElement) {
        }
    };
    const QDomNode root = document->firstChildElement().firstChild();
    walkElements(
        root,
        [&](const QDomElement &element) {
            nextStartTag();
            for (const QXmlStreamAttribute &attribute : reader.attributes())
                attributeOrder.append(element, attribute.qualifiedName().toString());
            return true;
        },
        [](const QDomElement &) {});
}

} // namespace libconfig
