// SPDX-License-Identifier: MIT
#include "render/vocabulary.h"
#include "tools/check/elementtable.h"
#include "tools/command.h"
#include "tools/terminal.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <bit>

namespace schema {

using namespace Qt::StringLiterals;
using requestcheck::ElementRow;
using requestcheck::Rest;

namespace {

/// Names of any name space, or only those of none, but some.
QString namesBut(const QStringList &names, bool isPlain)
{
    const QString kind = isPlain ? u"nsName"_s : u"anyName"_s;
    const QString except =
        names.isEmpty() ? QString()
                        : u"<except><name>%1</name></except>"_s.arg(names.join("</name><name>"_L1));
    return u"<%1%2>%3</%1>"_s.arg(kind, isPlain ? u" ns=\"\""_s : QString(), except);
}

QString anyAttributeBut(const QStringList &names)
{
    return u"<zeroOrMore><attribute>%1<text/></attribute></zeroOrMore>"_s.arg(
        namesBut(names, false));
}

/// The name that a row's attributes are defined under; the first document that reads it parts the
/// rows of one element.
QString rowName(const ElementRow &row)
{
    const auto count =
        std::ranges::count(requestcheck::elementRows(), row.element, &ElementRow::element);
    return row.element.toString() + u'.'
           + (count > 1 ? documentMethods[size_t(std::countr_zero(row.methods))].name
                        : "attributes"_L1);
}

/// What the row reads. What is needed only under a setting is optional.
QString attributesOf(const ElementRow &row)
{
    QString attributes;
    QStringList names;
    for (const requestcheck::AttributeUse &use : row.attributes) {
        const bool isOptional = !use.isPrinted || use.onlyIf || row.onlyIf;
        const QString form = isOptional ? u"<optional>%1</optional>"_s : u"%1"_s;
        attributes += form.arg(
            u"<attribute name=\"%1\"><a:documentation>%2</a:documentation><text/></attribute>"_s
                .arg(use.name, use.text));
        names.append(use.name);
    }
    attributes += row.rest == Rest::Nothing ? u"<ref name=\"foreign.attributes\"/>"_s
                                            : anyAttributeBut(names);
    return u"<define name=\"%1\">%2</define>"_s.arg(rowName(row), attributes);
}

/// One document: `NAME` is what stands in the root, `NAME.element` any element behind
/// `NAME.method`, in whose `NAME.content` others may stand.
QString documentOf(qsizetype method)
{
    const QString name = documentMethods[size_t(method)].name;
    QStringList known{::element::method.toString()};
    QString elements;
    for (const ElementRow *const row : requestcheck::rowsOf(method)) {
        known.append(row->element.toString());
        elements += uR"(<element name="%1"><a:documentation>Prints %2.</a:documentation>
            <ref name="%3"/><ref name="%4.content"/></element>)"_s.arg(row->element, row->prints,
                                                                       rowName(*row), name);
    }
    const QString content = known.size() == 1 // a document that prints nothing takes anything
                                ? uR"(<ref name="anything"/>)"_s
                                : uR"(<ref name="foreign.attributes"/>
            <mixed><oneOrMore><ref name="%1.element"/></oneOrMore></mixed>)"_s.arg(name);
    return uR"(
        <define name="%1.method"><element name="method"><a:documentation>%2.</a:documentation>
            <attribute name="name"><value>%1</value></attribute>
            <ref name="foreign.attributes"/><ref name="%1.content"/></element></define>
        <define name="%1"><choice><ref name="%1.method"/>
            <element>%3<ref name="foreign.attributes"/><mixed><ref name="%1"/></mixed></element>
            </choice><zeroOrMore><ref name="%1.element"/></zeroOrMore></define>
        <define name="%1.content">
            <mixed><zeroOrMore><ref name="%1.element"/></zeroOrMore></mixed></define>
        <define name="%1.element"><choice><ref name="foreign"/>%4
            <element>%3%5</element></choice></define>)"_s.arg(
        name, requestcheck::summaryOf(method), namesBut(known, true), elements, content);
}

/// The request: its root may bear any name that no document reads, or be the `method` itself. What
/// has a name space belongs to others; the print run reads names as they are spelled, which a
/// schema cannot say.
QString grammarOf(qsizetype method)
{
    QString roots;
    QString opened;
    QString attributes;
    QString documents;
    QStringList known{::element::method.toString()};
    for (const ElementRow &row : requestcheck::elementRows()) {
        if (!known.contains(row.element))
            known.append(row.element.toString());
        if (method < 0 || requestcheck::elementRow(row.element, method) == &row)
            attributes += attributesOf(row);
    }
    for (qsizetype i = 0; i < qsizetype(documentMethods.size()); ++i) {
        if (method >= 0 && method != i)
            continue;
        roots += uR"(<ref name="%1.method"/>)"_s.arg(documentMethods[size_t(i)].name);
        opened += uR"(<ref name="%1"/>)"_s.arg(documentMethods[size_t(i)].name);
        documents += documentOf(i);
    }
    return uR"(<grammar xmlns="http://relaxng.org/ns/structure/1.0"
            xmlns:a="http://relaxng.org/ns/compatibility/annotations/1.0">
        <start><choice><ref name="foreign"/>%1
            <element>%2%3<mixed><choice>%4</choice></mixed></element></choice></start>%5%6
        <define name="foreign.attributes"><zeroOrMore><attribute><anyName><except>
            <nsName ns=""/></except></anyName><text/></attribute></zeroOrMore></define>
        <define name="foreign"><element><anyName><except><nsName ns=""/></except></anyName>
            <ref name="anything"/></element></define>
        <define name="anything">%3<zeroOrMore><choice><text/>
            <element><anyName/><ref name="anything"/></element></choice></zeroOrMore></define>
        </grammar>)"_s.arg(roots, namesBut(known, true), anyAttributeBut({}), opened, attributes,
                           documents);
}

/// How a kind is written in the compact syntax: %1 is the name, and a line end is followed by the
/// indentation of the parts, in `close` by that of the pattern itself.
struct CompactForm
{
    const char *kind, *open, *separator, *close;
};
constexpr CompactForm compactForms[] = {
    {"grammar", "namespace plain = \"\"\n\n", "\n\n", "\n"},
    {"start", "start =\n", ",\n", ""},
    {"define", "%1 =\n", ",\n", ""},
    {"element", "element %1 {\n", ",\n", "\n}"},
    {"attribute", "attribute %1 { ", "", " }"},
    {"choice", "(\n", " |\n", "\n)"},
    {"mixed", "mixed { ", "", " }"},
    {"optional", "", "", "?"},
    {"zeroOrMore", "", "", "*"},
    {"oneOrMore", "", "", "+"},
    {"ref", "%1", "", ""},
    {"text", "text", "", ""},
    {"value", "\"%1\"", "", ""},
    {"anyName", "*", "", ""},
    {"nsName", "plain:*", "", ""},
    {"except", " - (", " | ", ")"},
    {"name", "%1", "", ""},
};

/// The pattern that the reader has come to, to its end.
QString compact(QXmlStreamReader &xml, const QString &indent)
{
    const QString kind = xml.name().toString();
    const CompactForm &form = *std::ranges::find_if(compactForms, [&kind](const CompactForm &row) {
        return kind == QLatin1StringView(row.kind);
    });
    const auto indented = [](const char *text, const QString &by) {
        return QString(QLatin1StringView(text)).replace(u'\n', u'\n' + by);
    };
    const bool isBlock = QLatin1StringView(form.open).endsWith(u'\n') && kind != "grammar"_L1;
    const QString inner = isBlock ? indent + "  "_L1 : indent;
    QString name = xml.attributes().value("name"_L1).toString();
    QString about;
    QStringList parts;
    while (xml.readNext() != QXmlStreamReader::EndElement) {
        if (!xml.isStartElement())
            name += xml.text().trimmed();
        else if (xml.name() == "documentation"_L1)
            about = "## "_L1 + xml.readElementText() + u'\n' + indent;
        else
            parts.append(compact(xml, inner));
    }
    if (kind == "choice"_L1 && parts.size() == 1)
        return parts.front();
    QString text = indented(form.open, inner);
    if (text.contains("%1"_L1)) // an element or attribute without a name has a class of them
        text = text.arg(name.isEmpty() ? parts.takeFirst() : name);
    return about + text + parts.join(indented(form.separator, inner))
           + indented(form.close, indent);
}

/// A RELAX NG schema of requests for the document at `method` of documentMethods, or for any (-1):
/// what elements it reads, in any order and nesting, and their attributes. What is wanted only
/// under a setting may be missing; elements without attributes may group others. In the XML syntax
/// or the compact one.
QString requestSchema(qsizetype method, bool isCompact)
{
    const auto about =
        "Print requests, as zentaro-print reads them. Written by `zentaro schema`."_L1;
    QXmlStreamReader grammar(grammarOf(method));
    grammar.setNamespaceProcessing(false); // names are written as they are read
    if (isCompact && grammar.readNextStartElement())
        return "# "_L1 + about + u'\n' + compact(grammar, {});
    QString text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeComment(u' ' + about + u' ');
    while (!grammar.atEnd()) {
        grammar.readNext();
        if (grammar.isStartElement()) {
            xml.writeStartElement(grammar.qualifiedName().toString());
            xml.writeAttributes(grammar.attributes());
        } else if (!grammar.isStartDocument() && !grammar.isWhitespace()) {
            xml.writeCurrentToken(grammar);
        }
    }
    return text;
}

} // namespace

int run(const tools::Call &call)
{
    tools::CommandLine line(call, u"Writes the RELAX NG schema of print requests, by which editors "
                                  u"and validators\ntell what a document reads."_s);
    line.addOption({u"method"_s, u"Of requests for one document, unless for any."_s, u"NAME"_s});
    line.addOption({u"compact"_s, u"Writes the compact syntax instead of XML."_s});
    line.read(0, 0);
    qsizetype method = -1;
    if (line.isSet(u"method"_s)) {
        const QString name = line.value(u"method"_s);
        const DocumentMethod *const chosen = documentMethod(name);
        if (!chosen)
            line.wrongUsage("unknown method `"_L1 + name + u'`'
                            + tools::didYouMean(requestcheck::methodNear(name)));
        method = chosen - documentMethods.data();
    }
    return tools::printBytes(requestSchema(method, line.isSet(u"compact"_s)).toUtf8());
}

} // namespace schema
