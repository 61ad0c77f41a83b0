// SPDX-License-Identifier: MIT
#include "tools/schema/schema.h"

#include "render/vocabulary.h"
#include "tools/check/elementtable.h"
#include "tools/nearest.h"
#include "tools/terminal.h"

#include <QXmlStreamWriter>

#include <algorithm>
#include <bit>

namespace schema {

using namespace Qt::StringLiterals;
using requestcheck::ElementRow;
using requestcheck::Rest;

namespace {

/// The names of an element or attribute pattern.
enum class Names {
    One,
    Any,
    Plain,   ///< those of no name space
    Foreign, ///< those of any
};

/// A pattern of RELAX NG.
struct Pattern
{
    QLatin1StringView kind; ///< the name of its element in the XML syntax
    QString name;           ///< of One, of what is defined or referred to, or the value
    QString text{};         ///< its documentation
    std::vector<Pattern> parts{};
    Names names = Names::One;
    QStringList except{}; ///< names that are not among Any or Plain
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
Pattern element(Names names, const QStringList &except, std::vector<Pattern> parts)
{
    return {"element"_L1, {}, {}, std::move(parts), names, except};
}
Pattern attributes(Names names, const QStringList &except = {})
{
    return pattern("zeroOrMore"_L1, {{"attribute"_L1, {}, {}, {{"text"_L1, {}}}, names, except}});
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
        const Pattern attribute{"attribute"_L1, use.name, use.text, {{"text"_L1, {}}}};
        const bool isOptional = use.need == requestcheck::Need::Kept || use.onlyIf || row.onlyIf;
        parts.push_back(isOptional ? pattern("optional"_L1, {attribute}) : attribute);
        names.append(use.name);
    }
    parts.push_back(row.rest == Rest::Nothing ? ref(u"foreign.attributes"_s)
                                              : attributes(Names::Any, names));
    return define(rowName(row), std::move(parts));
}

/// One document: `NAME` is what stands in the root, `NAME.element` any element behind
/// `NAME.method`, in whose `NAME.content` others may stand.
void addDocument(qsizetype method, std::vector<Pattern> &grammar)
{
    const QString name = documentMethods[size_t(method)].name;
    const Pattern content = ref(name + ".content"_L1);
    const Pattern any = ref(name + ".element"_L1);
    const Pattern others = pattern("zeroOrMore"_L1, {any});
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
    if (known.size() == 1) // a document that prints nothing takes anything
        elements.push_back(element(Names::Plain, known, {ref(u"anything"_s)}));
    else
        elements.push_back(element(Names::Plain, known,
                                   {plain, pattern("mixed"_L1, {pattern("oneOrMore"_L1, {any})})}));
    const Pattern group = element(Names::Plain, known, {plain, pattern("mixed"_L1, {ref(name)})});
    grammar.push_back(
        define(name + ".method"_L1,
               {{"element"_L1,
                 known.front(),
                 requestcheck::summaryOf(method) + u'.',
                 {{"attribute"_L1, u"name"_s, {}, {{"value"_L1, name}}}, plain, content}}}));
    grammar.push_back(
        define(name, {pattern("choice"_L1, {ref(name + ".method"_L1), group}), others}));
    grammar.push_back(define(content.name, {pattern("mixed"_L1, {others})}));
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
    roots.push_back(
        element(Names::Plain, known, {attributes(Names::Any), pattern("mixed"_L1, {opened})}));
    grammar.insert(grammar.begin(), pattern("start"_L1, {pattern("choice"_L1, std::move(roots))}));
    // What has a name space belongs to others; the print run reads names as they are spelled, which
    // a schema cannot say.
    grammar.push_back(define(u"foreign.attributes"_s, {attributes(Names::Foreign)}));
    grammar.push_back(define(u"foreign"_s, {element(Names::Foreign, {}, {ref(u"anything"_s)})}));
    grammar.push_back(
        define(u"anything"_s,
               {attributes(Names::Any),
                pattern("zeroOrMore"_L1,
                        {pattern("choice"_L1, {{"text"_L1, {}},
                                               element(Names::Any, {}, {ref(u"anything"_s)})})})}));
    return pattern("grammar"_L1, std::move(grammar));
}

// The XML syntax.

void writeNames(QXmlStreamWriter &xml, const Pattern &of)
{
    if (of.names == Names::Plain) {
        xml.writeStartElement("nsName"_L1);
        xml.writeAttribute("ns"_L1, {});
    } else {
        xml.writeStartElement("anyName"_L1);
    }
    if (of.names == Names::Foreign || !of.except.isEmpty()) {
        xml.writeStartElement("except"_L1);
        if (of.names == Names::Foreign) {
            xml.writeEmptyElement("nsName"_L1);
            xml.writeAttribute("ns"_L1, {});
        }
        for (const QString &name : of.except)
            xml.writeTextElement("name"_L1, name);
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

void writePattern(QXmlStreamWriter &xml, const Pattern &of)
{
    if (of.kind == "value"_L1) {
        xml.writeTextElement(of.kind, of.name);
        return;
    }
    xml.writeStartElement(of.kind);
    if (of.kind == "grammar"_L1) {
        xml.writeDefaultNamespace("http://relaxng.org/ns/structure/1.0"_L1);
        xml.writeNamespace("http://relaxng.org/ns/compatibility/annotations/1.0"_L1, "a"_L1);
    }
    if (!of.name.isEmpty())
        xml.writeAttribute("name"_L1, of.name);
    if (!of.text.isEmpty())
        xml.writeTextElement("a:documentation"_L1, of.text);
    if (of.names != Names::One)
        writeNames(xml, of);
    for (const Pattern &part : of.parts)
        writePattern(xml, part);
    xml.writeEndElement();
}

// The compact syntax.

QString compact(const Pattern &of, const QString &indent);

QString compactParts(const Pattern &of, QLatin1StringView separator, const QString &indent)
{
    QStringList parts;
    for (const Pattern &part : of.parts)
        parts.append(compact(part, indent));
    return parts.join(separator + u'\n' + indent);
}

QString compactNames(const Pattern &of)
{
    const QStringList except = of.names == Names::Foreign ? QStringList{u"plain:*"_s} : of.except;
    return (of.names == Names::One     ? of.name
            : of.names == Names::Plain ? u"plain:*"_s
                                       : u"*"_s)
           + (except.isEmpty() ? QString() : " - ("_L1 + except.join(" | "_L1) + u')');
}

QString compact(const Pattern &of, const QString &indent)
{
    const QString inner = indent + "  "_L1;
    const auto first = [&] { return compact(of.parts.front(), indent); };
    if (of.kind == "text"_L1)
        return u"text"_s;
    if (of.kind == "ref"_L1)
        return of.name;
    if (of.kind == "value"_L1)
        return u'"' + of.name + u'"';
    if (of.kind == "mixed"_L1)
        return "mixed { "_L1 + first() + " }"_L1;
    if (of.kind == "choice"_L1)
        return of.parts.size() == 1
                   ? first()
                   : "(\n"_L1 + inner + compactParts(of, " |"_L1, inner) + u'\n' + indent + u')';
    if (of.kind == "grammar"_L1)
        return "namespace plain = \"\"\n"_L1 + compactParts(of, ""_L1, {}) + u'\n';
    if (of.kind == "define"_L1 || of.kind == "start"_L1)
        return u'\n' + (of.name.isEmpty() ? u"start"_s : of.name) + " =\n  "_L1
               + compactParts(of, ","_L1, u"  "_s);
    if (of.kind != "element"_L1 && of.kind != "attribute"_L1)
        return first()
               + (of.kind == "optional"_L1    ? u'?'
                  : of.kind == "oneOrMore"_L1 ? u'+'
                                              : u'*');
    const QString text = of.text.isEmpty() ? QString() : "## "_L1 + of.text + u'\n' + indent;
    const QString head = text + of.kind + u' ' + compactNames(of);
    if (of.kind == "attribute"_L1)
        return head + " { "_L1 + first() + " }"_L1;
    return head + " {\n"_L1 + inner + compactParts(of, ","_L1, inner) + u'\n' + indent + u'}';
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
    writePattern(xml, grammar);
    xml.writeEndDocument();
    return text;
}

int run(const tools::Call &call)
{
    tools::CommandLine line(call, u"Writes the RELAX NG schema of print requests, by which editors "
                                  u"and validators\ntell what a document reads."_s);
    line.addOption({u"method"_s, u"Of requests for one document, unless for any."_s, u"NAME"_s});
    line.addOption({u"compact"_s, u"Writes the compact syntax instead of XML."_s});
    if (const auto done = line.read(0, 0))
        return *done;
    qsizetype method = -1;
    if (line.isSet(u"method"_s)) {
        const QString name = line.value(u"method"_s);
        const DocumentMethod *const chosen = documentMethod(name);
        if (!chosen) {
            std::vector<QString> names;
            for (const DocumentMethod &other : documentMethods)
                names.push_back(other.name);
            return line.wrongUsage("unknown method `"_L1 + name + u'`'
                                   + tools::suggestion(name, names));
        }
        method = chosen - documentMethods.data();
    }
    return tools::printBytes(requestSchema(method, line.isSet(u"compact"_s)).toUtf8());
}

} // namespace schema
