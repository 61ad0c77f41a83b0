// SPDX-License-Identifier: MIT
#include "render/requestreader.h"

#include <QIODevice>
#include <QStringDecoder>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <optional>
#include <utility>

namespace requestreader {
namespace {

class RequestSource;

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
    qint64 elementsSeen() const { return elements; }
    /// Why the reading was stopped from here, if it was.
    std::optional<Stop> reason() const { return stop; }
    /// The reader's word for the fault that it met.
    const QString &fault() const { return faultText; }
    /// Has the source tell its observer of the text before each element.
    void announceElements(RequestSource *from) { source = from; }

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
        return go(value.size() <= MaxEntitySize && !holdsOthers, Stop::Entity);
    }
    bool fatalError(const QXmlParseException &exception) override
    {
        faultText = exception.message();
        return false;
    }

    void setDocumentLocator(QXmlLocator *locator) override { target.setDocumentLocator(locator); }
    bool startDocument() override { return target.startDocument(); }
    bool endDocument() override { return target.endDocument(); }
    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &atts) override;
    bool endElement(const QString &namespaceURI, const QString &localName,
                    const QString &qName) override
    {
        --depth;
        return target.endElement(namespaceURI, localName, qName);
    }
    bool skippedEntity(const QString &name) override;
    /// No document reads text; a handler learns here where the tag after it begins.
    bool characters(const QString &text) override { return target.characters(text); }

private:
    /// Answers `fine`, and keeps the reason where it is not.
    bool go(bool fine, Stop otherwise)
    {
        if (!fine)
            stop = otherwise;
        return fine;
    }

    static bool isNameSpaceDeclaration(QStringView name)
    {
        constexpr QStringView word = u"xmlns";
        // Hardly any name begins with its first letter, which is asked in place: 200 instructions
        // an item.
        return name.startsWith(word.front()) && name.startsWith(word)
               && (name.size() == word.size() || name[word.size()] == u':');
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
    RequestSource *source = nullptr; // borrowed: to announce elements to
    std::optional<Stop> stop;
    QString faultText;
    bool inDocumentType = false;
    bool declared = false;
    qint64 elements = 0;
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
    RequestSource(QIODevice &request, const ElementFilter &progress, Observer *observer)
        : request(request)
        , progress(progress)
        , observer(observer)
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

    /// Tells the observer of the text that was taken since.
    void tell()
    {
        if (observer && told != at)
            observer->taken(QStringView(told, at), utf8);
        told = at;
    }
    /// Tells it that the reading ended early.
    void tellStop()
    {
        if (!observer)
            return;
        tell();
        const bool endMark = at != text.cbegin() && isEndMark(at[-1]);
        observer->stopped(stop ? *stop : progress.reason().value_or(Stop::Fault),
                          endMark ? QStringLiteral("a character that XML does not allow")
                                  : progress.fault());
    }

private:
    static constexpr int PieceBytes = 16 * 1'024;

    /// The reader takes two of Unicode's non-characters for its own marks.
    static bool isEndMark(QChar c) { return c.unicode() >= 0xFFFE; }

    [[gnu::noinline]] QChar firstOfNextPiece()
    {
        tell();
        do {
            ended = ended || exceedsLimits();
            const qint64 size = readPiece();
            if (size == 0)
                return QChar(EndOfDocument);
            decodePiece(QByteArrayView(piece).first(size));
            bytesRead += size;
            told = at = text.cbegin();
            end = text.cend();
        } while (text.isEmpty());
        return next();
    }

    /// Fills the piece unless the request ends, and answers its size: a pipe gives no more than has
    /// come, be it a single byte, and the first piece tells the encoding.
    qint64 readPiece()
    {
        qint64 size = 0;
        while (size < PieceBytes && request.isOpen() && !ended) {
            const qint64 got = request.read(piece.data() + size, PieceBytes - size);
            ended = got <= 0;
            size += ended ? 0 : got;
        }
        return size;
    }

    /// Counts what the present piece uses of the limits, and tells whether one is exceeded.
    bool exceedsLimits()
    {
        documentTypeBytes = progress.isInDocumentType() ? documentTypeBytes + PieceBytes : 0;
        if (progress.entitiesAreDeclared())
            references += text.count(u'&');
        if (std::exchange(elements, progress.elementsSeen()) != progress.elementsSeen())
            attributes = 0; // of one that began in this piece; few pieces see none begin
        else
            attributes += text.count(u'=');
        if (bytesRead > MaxRequestBytes)
            stop = Stop::Size;
        else if (documentTypeBytes > MaxDocumentTypeBytes)
            stop = Stop::DocumentType;
        else if (references > MaxEntityReferences)
            stop = Stop::EntityReferences;
        else if (attributes > MaxAttributes)
            stop = Stop::Attributes;
        return stop.has_value();
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
    Observer *observer; // null: nobody follows
    std::optional<Stop> stop;
    QByteArray piece;
    QStringDecoder decodeUtf8{QStringDecoder::Utf8};
    bool utf8 = false; // of the request, known with its first piece
    bool ended = false;
    qint64 bytesRead = 0;
    qint64 documentTypeBytes = 0; // of the one being read
    qint64 elements = 0;          // seen before the present piece
    qsizetype attributes = 0;     // of the element being read, but for its first piece
    qsizetype references = 0;     // counted where they may be to entities of the request's own
    QString text;                 // of the present piece
    QString::const_iterator at = text.cbegin();
    QString::const_iterator end = text.cend();
    QString::const_iterator told = at; // up to here the observer knows it
};

bool ElementFilter::startElement(const QString &namespaceURI, const QString &localName,
                                 const QString &qName, const QXmlAttributes &atts)
{
    if (source)
        source->tell();
    ++elements;
    if (!go(++depth <= MaxDepth, Stop::Depth))
        return false;
    for (int i = 0; i < atts.count(); ++i) {
        if (isNameSpaceDeclaration(atts.qName(i)))
            return go(target.startElement(namespaceURI, localName, qName, plainAttributes(atts)),
                      Stop::Refused);
    }
    return go(target.startElement(namespaceURI, localName, qName, atts), Stop::Refused);
}

bool ElementFilter::skippedEntity(const QString &name)
{
    if (source)
        source->tell();
    return target.skippedEntity(name);
}

} // namespace

bool read(QIODevice &request, QXmlContentHandler &handler, Observer *observer)
{
    ElementFilter filter(handler);
    QXmlSimpleReader reader;
    reader.setContentHandler(&filter);
    reader.setDeclHandler(&filter);
    reader.setLexicalHandler(&filter);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    RequestSource source(request, filter, observer);
    if (observer) {
        reader.setErrorHandler(&filter);
        filter.announceElements(&source);
    }
    const bool complete = reader.parse(&source);
    if (complete)
        source.tell();
    else
        source.tellStop();
    return complete;
}

} // namespace requestreader
