// SPDX-License-Identifier: MIT
#include "render/requestreader.h"

#include <QIODevice>
#include <QStringDecoder>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

namespace requestreader {
namespace {

/// Hands the elements on to another handler, up to MaxDepth. The reader does not look at name
/// spaces, which costs it a tenth of its time and nobody here asks for; their declarations are no
/// attributes of an element and are taken out.
class ElementFilter : public QXmlDefaultHandler
{
public:
    explicit ElementFilter(QXmlContentHandler &target)
        : target(target)
    {
    }

    bool isInDocumentType() const { return inDocumentType; }
    bool entitiesAreDeclared() const { return declared; }

    bool startDTD(const QString &, const QString &, const QString &) override
    {
        inDocumentType = true;
        return true;
    }
    bool endDTD() override
    {
        inDocumentType = false;
        return true;
    }
    /// False, which is a fault, for an entity that is long or holds others.
    bool internalEntityDecl(const QString &, const QString &value) override
    {
        declared = true;
        const bool holdsOthers =
            value.contains(u'%') || value.count(u'&') != value.count(QStringView(u"&#"));
        return value.size() <= MaxEntitySize && !holdsOthers;
    }

    void setDocumentLocator(QXmlLocator *locator) override { target.setDocumentLocator(locator); }
    bool startDocument() override { return target.startDocument(); }
    bool endDocument() override { return target.endDocument(); }
    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &atts) override
    {
        if (++depth > MaxDepth)
            return false;
        for (int i = 0; i < atts.count(); ++i) {
            if (isNameSpaceDeclaration(atts.qName(i)))
                return target.startElement(namespaceURI, localName, qName, plainAttributes(atts));
        }
        return target.startElement(namespaceURI, localName, qName, atts);
    }
    bool endElement(const QString &namespaceURI, const QString &localName,
                    const QString &qName) override
    {
        --depth;
        return target.endElement(namespaceURI, localName, qName);
    }
    /// No document reads text; a handler learns here where the tag after it begins.
    bool characters(const QString &text) override { return target.characters(text); }

private:
    static bool isNameSpaceDeclaration(QStringView name)
    {
        constexpr QStringView word = u"xmlns";
        return name.startsWith(word) && (name.size() == word.size() || name[word.size()] == u':');
    }

    static QXmlAttributes plainAttributes(const QXmlAttributes &atts)
    {
        QXmlAttributes plain;
        for (int i = 0; i < atts.count(); ++i) {
            if (!isNameSpaceDeclaration(atts.qName(i)))
                plain.append(atts.qName(i), atts.uri(i), atts.localName(i), atts.value(i));
        }
        return plain;
    }

    QXmlContentHandler &target;
    bool inDocumentType = false;
    bool declared = false;
    int depth = 0; // of the element that is being read; the root has 1
};

/// Whether a request that begins with this piece is in UTF-8: no declaration says otherwise, no
/// byte-order mark but UTF-8's stands before it, and it is none of the encodings with NUL bytes.
bool isUtf8(QByteArrayView piece)
{
    if (piece.first(qMin(piece.size(), qsizetype(4))).contains('\0') || piece.startsWith("\xFE\xFF")
        || piece.startsWith("\xFF\xFE"))
        return false;
    const qsizetype declaration = piece.indexOf("<?xml");
    if (declaration < 0)
        return true;
    const QByteArrayView rest = piece.sliced(declaration);
    const QByteArray text = rest.first(qMax(rest.indexOf("?>"), qsizetype(0))).toByteArray();
    const qsizetype encoding = text.indexOf("encoding");
    return !text.isEmpty() && (encoding < 0 || text.sliced(encoding).toLower().contains("utf-8"));
}

/// Feeds the reader piece by piece, until the request ends or exceeds a limit. Pieces of
/// this size, and the toolkit's decoder in place of a codec where the request is in UTF-8, make
/// reading faster than the reader alone; any other encoding is left to the toolkit's own way.
class RequestSource : public QXmlInputSource
{
public:
    RequestSource(QIODevice &request, const ElementFilter &progress)
        : request(request)
        , progress(progress)
        , piece(PieceBytes, Qt::Uninitialized)
    {
        if (!request.isOpen())
            request.open(QIODevice::ReadOnly); // else there is nothing to read
    }

    /// One character for the reader, which asks for nothing else. It does so for every one: what
    /// is rare stands elsewhere, or this would cost twice as much.
    QChar next() override
    {
        if (at == end) [[unlikely]]
            return firstOfNextPiece();
        const QChar c = *at++;
        return isEndMark(c) ? QChar(EndOfDocument) : c;
    }

private:
    static constexpr int PieceBytes = 16 * 1'024;

    /// The reader takes two of Unicode's non-characters for its own marks.
    static bool isEndMark(QChar c) { return c.unicode() >= 0xFFFE; }

    [[gnu::noinline]] QChar firstOfNextPiece()
    {
        do {
            const bool readable = request.isOpen() && !ended && !exceedsLimits();
            const qint64 size = readable ? request.read(piece.data(), PieceBytes) : 0;
            ended = size <= 0;
            if (ended)
                return QChar(EndOfDocument);
            decodePiece(QByteArrayView(piece).first(size));
            bytesRead += size;
        } while (text.isEmpty());
        at = text.cbegin();
        end = text.cend();
        return next();
    }

    /// Counts what the present piece uses of the limits, and tells whether one is exceeded.
    bool exceedsLimits()
    {
        documentTypeBytes = progress.isInDocumentType() ? documentTypeBytes + PieceBytes : 0;
        if (progress.entitiesAreDeclared())
            references += text.count(u'&');
        return documentTypeBytes > MaxDocumentTypeBytes || references > MaxEntityReferences;
    }

    void decodePiece(QByteArrayView bytes)
    {
        const bool first = bytesRead == 0;
        if (first)
            utf8 = isUtf8(bytes);
        if (utf8)
            text = decodeUtf8(bytes);
        else
            text = fromRawData(QByteArray::fromRawData(bytes.data(), bytes.size()), first);
    }

    QIODevice &request;
    const ElementFilter &progress;
    QByteArray piece;
    QStringDecoder decodeUtf8{QStringDecoder::Utf8};
    bool utf8 = false; // of the request, known with its first piece
    bool ended = false;
    qint64 bytesRead = 0;
    qint64 documentTypeBytes = 0; // of the one being read
    qsizetype references = 0;     // counted where they may be to entities of the request's own
    QString text;                 // of the present piece
    QString::const_iterator at = text.cbegin();
    QString::const_iterator end = text.cend();
};

} // namespace

bool read(QIODevice &request, QXmlContentHandler &handler)
{
    ElementFilter filter(handler);
    QXmlSimpleReader reader;
    reader.setContentHandler(&filter);
    reader.setDeclHandler(&filter);
    reader.setLexicalHandler(&filter);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    RequestSource source(request, filter);
    return reader.parse(&source);
}

} // namespace requestreader
