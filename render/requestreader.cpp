// SPDX-License-Identifier: MIT
#include "render/requestreader.h"

#include <QIODevice>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

namespace requestreader {
namespace {

/// Hands everything on to another handler, up to MaxDepth.
class NestingLimit : public QXmlDefaultHandler
{
public:
    explicit NestingLimit(QXmlContentHandler &target)
        : target(target)
    {
    }

    bool rootHasBegun() const { return begun; }

    void setDocumentLocator(QXmlLocator *locator) override { target.setDocumentLocator(locator); }
    bool startDocument() override { return target.startDocument(); }
    bool endDocument() override { return target.endDocument(); }
    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &atts) override
    {
        begun = true;
        return ++depth <= MaxDepth && target.startElement(namespaceURI, localName, qName, atts);
    }
    bool endElement(const QString &namespaceURI, const QString &localName,
                    const QString &qName) override
    {
        --depth;
        return target.endElement(namespaceURI, localName, qName);
    }
    bool characters(const QString &text) override { return target.characters(text); }

private:
    QXmlContentHandler &target;
    bool begun = false;
    int depth = 0; // of the element that is being read; the root has 1
};

/// Feeds the reader piece by piece, until the request ends or its prolog is too long.
class RequestSource : public QXmlInputSource
{
public:
    RequestSource(QIODevice &request, const NestingLimit &progress)
        : request(request)
        , progress(progress)
        , piece(PieceBytes, Qt::Uninitialized)
    {
        if (!request.isOpen())
            request.open(QIODevice::ReadOnly); // else there is nothing to read
    }

    void fetchData() override
    {
        const bool tooLate = bytesRead >= MaxPrologBytes && !progress.rootHasBegun();
        const qint64 size =
            request.isOpen() && !tooLate ? request.read(piece.data(), PieceBytes) : 0;
        if (size <= 0) {
            setData(QString());
            return;
        }
        setData(fromRawData(QByteArray::fromRawData(piece.constData(), size), bytesRead == 0));
        bytesRead += size;
    }

private:
    static constexpr int PieceBytes = 16 * 1'024;

    QIODevice &request;
    const NestingLimit &progress;
    QByteArray piece;
    qint64 bytesRead = 0;
};

} // namespace

bool read(QIODevice &request, QXmlContentHandler &handler)
{
    NestingLimit limited(handler);
    QXmlSimpleReader reader;
    reader.setContentHandler(&limited);
    RequestSource source(request, limited);
    return reader.parse(&source);
}

} // namespace requestreader
