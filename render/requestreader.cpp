// SPDX-License-Identifier: MIT
#include "render/requestreader.h"

#include "render/requestsource.h"

#include <QXmlDefaultHandler>
#include <QXmlSimpleReader>

namespace requestreader {
namespace {

/// Hands the elements on to another handler, up to MaxDepth, and tells the source what it has to
/// count. The reader does not look at name spaces, which takes it long and nobody here asks for.
class ElementFilter : public QXmlDefaultHandler
{
public:
    ElementFilter(QXmlContentHandler &target, RequestSource &source)
        : target(target)
        , source(source)
    {
    }

    bool startDTD(const QString &, const QString &, const QString &) override
    {
        source.setInDocumentType(true);
        return true;
    }
    bool endDTD() override
    {
        source.setInDocumentType(false);
        return true;
    }
    /// False, which is a fault, where too much of the entities is used.
    bool internalEntityDecl(const QString &name, const QString &value) override
    {
        return go(source.entityDeclared(name, value), Stop::Expansion);
    }
    bool fatalError(const QXmlParseException &exception) override
    {
        fault = exception.message();
        return false;
    }

    void setDocumentLocator(QXmlLocator *locator) override { target.setDocumentLocator(locator); }
    bool startDocument() override { return target.startDocument(); }
    bool endDocument() override { return target.endDocument(); }
    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &atts) override
    {
        source.elementBegan();
        return go(++depth <= MaxDepth, Stop::Depth)
               && go(target.startElement(namespaceURI, localName, qName, atts), Stop::Refused);
    }
    bool endElement(const QString &namespaceURI, const QString &localName,
                    const QString &qName) override
    {
        --depth;
        return target.endElement(namespaceURI, localName, qName);
    }
    bool skippedEntity(const QString &name) override
    {
        source.tell();
        return target.skippedEntity(name);
    }
    /// No document reads text; a handler learns here where the tag after it begins.
    bool characters(const QString &text) override { return target.characters(text); }

    Stop reason = Stop::Fault; ///< why the reading was stopped, where it was
    QString fault;             ///< the reader's word for the one that it met

private:
    /// Answers `fine`, and keeps the reason where it is not.
    bool go(bool fine, Stop otherwise)
    {
        if (!fine)
            reason = otherwise;
        return fine;
    }

    QXmlContentHandler &target;
    RequestSource &source;
    int depth = 0; // of the element that is being read; the root has 1
};

} // namespace

QString exceededLimit(Stop why)
{
    constexpr std::pair<const char *, qint64> limits[] = {
        {}, // a fault
        {}, // refused, which the device has told
        {"elements nest deeper than %1", MaxDepth},
        {"the request is longer than %1 bytes", MaxRequestBytes},
        {"an element has more than %1 attributes", MaxAttributes},
        {"the document type is longer than %1 bytes", MaxDocumentTypeBytes},
        {"the references to entities expand to more than %1 characters", MaxExpansion},
    };
    const auto &[text, limit] = limits[size_t(why)];
    return text ? QString::fromLatin1(text).arg(limit) : QString();
}

void pass(qint64 &line, qint64 &column, QChar c, bool utf8)
{
    const char16_t code = c.unicode();
    if (code == u'\n') {
        ++line;
        column = 1;
    } else if (!utf8) {
        column += c.isLowSurrogate() ? 0 : 1;
    } else if (code < 0x80 || code == QChar::ReplacementCharacter) {
        ++column; // the replacement character stands for one byte that could not be read
    } else {
        column += code < 0x800 || c.isSurrogate() ? 2 : 3; // half of four for half of a pair
    }
}

bool read(QIODevice &request, QXmlContentHandler &handler, Observer *observer)
{
    RequestSource source(request, observer);
    ElementFilter filter(handler, source);
    QXmlSimpleReader reader;
    reader.setContentHandler(&filter);
    reader.setDeclHandler(&filter);
    reader.setLexicalHandler(&filter);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    reader.setErrorHandler(&filter);
    const bool complete = reader.parse(&source);
    if (complete)
        source.tell();
    else
        source.tellStop(filter.reason, filter.fault);
    return complete;
}

} // namespace requestreader
