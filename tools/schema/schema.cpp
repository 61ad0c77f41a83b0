// SPDX-License-Identifier: MIT
#include "tools/schema/schema.h"

#include "render/vocabulary.h"
#include "tools/check/elementtable.h"
#include "tools/terminal.h"

#include <QXmlStreamWriter>

#include <algorithm>
#include <bit>

namespace schema {

using namespace Qt::StringLiterals;
using requestcheck::ElementRow;
using requestcheck::Rest;

namespace {

/// A pattern or name class of RELAX NG. That of an element or attribute without a name is the first
/// of its parts.
struct Pattern
{
    QLatin1StringView kind; ///< the name of its element in the XML syntax
    QString name{};         ///< what it bears, defines or refers to, or the value
    QString text{};         ///< its documentation
    std::vector<Pattern> parts{};
};

Pattern pattern(QLatin1StringView kind, std::vector<Pattern> parts)
{
    return {kind, {}, {}, std::move(parts)};
}
Pattern ref(const QString &name) { return {"ref"_L1, name}; }
Pattern define(const QString &name, std::vector<Pattern> parts)
{
    return {"define"_L1, name, {}, std::move(parts)};
}

/// The names of a class (`anyName`, or `nsName` for those of no name space) but some.
Pattern namesBut(QLatin1StringView kind, const QStringList &names)
{
    Pattern except{"except"_L1};
    for (const QString &name : names)
        except.parts.push_back({"name"_L1, name});
    return names.isEmpty() ? Pattern{kind} : pattern(kind, {except});
}
Pattern anyName() { return {"anyName"_L1}; }
/// The names of any name space.
Pattern foreignName() { return pattern("anyName"_L1, {pattern("except"_L1, {{"nsName"_L1}})}); }
Pattern attributes(const Pattern &names)
{
    return pattern("zeroOrMore"_L1, {pattern("attribute"_L1, {names, {"text"_L1}})});
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
Pattern attributesOf(const ElementRow &row)
{
    std::vector<Pattern> parts;
    QStringList names;
    for (const requestcheck::AttributeUse &use : row.attributes) {
        const Pattern attribute{"attribute"_L1, use.name, use.text, {{"text"_L1}}};
        const bool isOptional = use.need == requestcheck::Need::Kept || use.onlyIf || row.onlyIf;
        parts.push_back(isOptional ? pattern("optional"_L1, {attribute}) : attribute);
        names.append(use.name);
    }
    parts.push_back(row.rest == Rest::Nothing ? ref(u"foreign.attributes"_s)
                                              : attributes(namesBut("anyName"_L1, names)));
    return define(rowName(row), std::move(parts));
}

/// One document: `NAME` is what stands in the root, `NAME.element` any element behind
/// `NAME.method`, in whose `NAME.content` others may stand.
void addDocument(qsizetype method, std::vector<Pattern> &grammar)
{
    const QString name = documentMethods[size_t(method)].name;
    const Pattern content = ref(name + ".content"_L1);
    const Pattern any = ref(name + ".element"_L1);
    const Pattern more = pattern("zeroOrMore"_L1, {any});
    const Pattern plain = ref(u"foreign.attributes"_s);
    QStringList known{::element::method.toString()};
    std::vector<Pattern> elements{ref(u"foreign"_s)};
    for (const ElementRow *const row : requestcheck::rowsOf(method)) {
        known.append(row->element.toString());
        elements.push_back({"element"_L1,
                            known.back(),
                            "Prints "_L1 + row->prints + u'.',
                            {ref(rowName(*row)), content}});
    }
    const Pattern others = namesBut("nsName"_L1, known);
    if (known.size() == 1) // a document that prints nothing takes anything
        elements.push_back(pattern("element"_L1, {others, ref(u"anything"_s)}));
    else
        elements.push_back(pattern(
            "element"_L1, {others, plain, pattern("mixed"_L1, {pattern("oneOrMore"_L1, {any})})}));
    const Pattern group = pattern("element"_L1, {others, plain, pattern("mixed"_L1, {ref(name)})});
    grammar.push_back(
        define(name + ".method"_L1,
               {{"element"_L1,
                 known.front(),
                 requestcheck::summaryOf(method) + u'.',
                 {{"attribute"_L1, u"name"_s, {}, {{"value"_L1, name}}}, plain, content}}}));
    grammar.push_back(
        define(name, {pattern("choice"_L1, {ref(name + ".method"_L1), group}), more}));
    grammar.push_back(define(content.name, {pattern("mixed"_L1, {more})}));
    grammar.push_back(define(any.name, {pattern("choice"_L1, std::move(elements))}));
}

/// The request: its root may bear any name that no document reads, or be the `method` itself.
Pattern grammarOf(qsizetype method)
{
    std::vector<Pattern> documents;
    std::vector<Pattern> roots{ref(u"foreign"_s)};
    std::vector<Pattern> grammar;
    QStringList known{::element::method.toString()};
    for (const ElementRow &row : requestcheck::elementRows()) {
        if (!known.contains(row.element))
            known.append(row.element.toString());
        if (method < 0 || requestcheck::elementRow(row.element, method) == &row)
            grammar.push_back(attributesOf(row));
    }
    for (qsizetype i = 0; i < qsizetype(documentMethods.size()); ++i) {
        if (method >= 0 && method != i)
            continue;
        documents.push_back(ref(documentMethods[size_t(i)].name));
        roots.push_back(ref(documents.back().name + ".method"_L1));
        addDocument(i, grammar);
    }
    const Pattern opened = pattern("choice"_L1, std::move(documents));
    roots.push_back(pattern("element"_L1, {namesBut("nsName"_L1, known), attributes(anyName()),
                                           pattern("mixed"_L1, {opened})}));
    grammar.insert(grammar.begin(), pattern("start"_L1, {pattern("choice"_L1, std::move(roots))}));
    // What has a name space belongs to others; the print run reads names as they are spelled, which
    // a schema cannot say.
    const Pattern anything = ref(u"anything"_s);
    const Pattern anyElement = pattern("element"_L1, {anyName(), anything});
    grammar.push_back(define(u"foreign.attributes"_s, {attributes(foreignName())}));
    grammar.push_back(define(u"foreign"_s, {pattern("element"_L1, {foreignName(), anything})}));
    grammar.push_back(
        define(anything.name,
               {attributes(anyName()),
                pattern("zeroOrMore"_L1, {pattern("choice"_L1, {{"text"_L1}, anyElement})})}));
    return pattern("grammar"_L1, std::move(grammar));
}

void writeXml(QXmlStreamWriter &xml, const Pattern &of)
{
    xml.writeStartElement(of.kind);
    if (of.kind == "grammar"_L1) {
        xml.writeDefaultNamespace("http://relaxng.org/ns/structure/1.0"_L1);
        xml.writeNamespace("http://relaxng.org/ns/compatibility/annotations/1.0"_L1, "a"_L1);
    }
    if (of.kind == "nsName"_L1)
        xml.writeAttribute("ns"_L1, {});
    if (of.kind == "value"_L1 || of.kind == "name"_L1)
        xml.writeCharacters(of.name);
    else if (!of.name.isEmpty())
        xml.writeAttribute("name"_L1, of.name);
    if (!of.text.isEmpty())
        xml.writeTextElement("a:documentation"_L1, of.text);
    for (const Pattern &part : of.parts)
        writeXml(xml, part);
    xml.writeEndElement();
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

QString compact(const Pattern &of, const QString &indent)
{
    if (of.kind == "choice"_L1 && of.parts.size() == 1)
        return compact(of.parts.front(), indent);
    const CompactForm &form = *std::ranges::find_if(compactForms, [&of](const CompactForm &row) {
        return of.kind == QLatin1StringView(row.kind);
    });
    const auto indented = [](const char *text, const QString &by) {
        return QString(QLatin1StringView(text)).replace(u'\n', u'\n' + by);
    };
    const bool isBlock = QLatin1StringView(form.open).endsWith(u'\n') && of.kind != "grammar"_L1;
    const QString inner = isBlock ? indent + "  "_L1 : indent;
    QStringList parts;
    for (const Pattern &part : of.parts)
        parts.append(compact(part, inner));
    QString text = indented(form.open, inner);
    if (text.contains("%1"_L1))
        text = text.arg(of.name.isEmpty() ? parts.takeFirst() : of.name);
    const QString about = of.text.isEmpty() ? QString() : "## "_L1 + of.text + u'\n' + indent;
    return about + text + parts.join(indented(form.separator, inner))
           + indented(form.close, indent);
}

} // namespace

QString requestSchema(qsizetype method, bool isCompact)
{
    const Pattern grammar = grammarOf(method);
    const auto about =
        "Print requests, as zentaro-print reads them. Written by `zentaro schema`."_L1;
    if (isCompact)
        return "# "_L1 + about + u'\n' + compact(grammar, {});
    QString text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeComment(u' ' + about + u' ');
    writeXml(xml, grammar);
    xml.writeEndDocument();
    return text;
}

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
