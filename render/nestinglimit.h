// SPDX-License-Identifier: MIT
#pragma once

#include <QXmlDefaultHandler>

/// Stands between the XML reader and a content handler and stops the reading, as a fault in the XML
/// does, at an element nested deeper than MaxDepth: the toolkit's reader recurses for every level,
/// and a hostile request would overflow its stack.
class NestingLimit : public QXmlDefaultHandler
{
public:
    static constexpr int MaxDepth = 1'000;

    /// `handler` is borrowed and gets every event of the elements up to MaxDepth.
    explicit NestingLimit(QXmlContentHandler &handler)
        : handler(handler)
    {
    }

    bool startDocument() override
    {
        depth = 0;
        return handler.startDocument();
    }
    bool endDocument() override { return handler.endDocument(); }
    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &atts) override
    {
        return ++depth <= MaxDepth && handler.startElement(namespaceURI, localName, qName, atts);
    }
    bool endElement(const QString &namespaceURI, const QString &localName,
                    const QString &qName) override
    {
        --depth;
        return handler.endElement(namespaceURI, localName, qName);
    }

private:
    QXmlContentHandler &handler;
    int depth = 0; // of the element being read; the root has 1
};
