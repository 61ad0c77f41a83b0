// SPDX-License-Identifier: MIT
#pragma once

#include "render/requestreader.h"

#include <QStringDecoder>
#include <QXmlInputSource>

#include <map>
#include <optional>

class QIODevice;

namespace requestreader {

/// Feeds the reader piece by piece, until the request ends or exceeds a limit. Pieces of 16 KiB,
/// and the toolkit's decoder in place of a codec where the request is in UTF-8, make reading faster
/// than the reader alone; any other encoding is left to the toolkit's own way. What the limits
/// count is told by whoever takes the reader's events.
class RequestSource : public QXmlInputSource
{
public:
    /// `observer` may be null: nobody follows.
    RequestSource(QIODevice &request, Observer *observer);

    /// One character for the reader, which asks for nothing else. It does so for every one: what
    /// is rare stands elsewhere, or this would cost twice as much, and the mark for the end is a
    /// constant, which is chosen without a branch (a twentieth of a long request).
    QChar next() override
    {
        if (at == end) [[unlikely]]
            return firstOfNextPiece();
        const QChar c = *at++;
        return {isEndMark(c) ? char16_t(0xFFFF) : c.unicode()}; // EndOfDocument
    }

    void setInDocumentType(bool isIn) { inDocumentType = isIn; }
    /// The name of a parameter entity begins with `%`; of two declarations the first counts. False
    /// if what follows in the piece uses too much of the entities declared so far.
    bool entityDeclared(const QString &name, const QString &value);
    /// Of an element: its tag ends with the character taken last.
    void elementBegan()
    {
        elementSeen = true;
        tell();
    }

    /// Tells the observer of the text that was taken since.
    void tell()
    {
        if (observer && told != at)
            observer->taken(QStringView(told, at), utf8);
        told = at;
    }
    /// Tells it that the reading ended early: by the source's own limits, for `otherwise`, or at a
    /// fault, for which `fault` is the reader's word.
    void tellStop(Stop otherwise, const QString &fault);

private:
    static constexpr int PieceBytes = 16 * 1'024;

    /// The reader takes two of Unicode's non-characters for its own marks.
    static bool isEndMark(QChar c) { return c.unicode() >= 0xFFFE; }

    static constexpr qint64 Unknown = -1;
    struct Entity
    {
        QString value;
        qint64 expansion = Unknown; // of what is declared so far
    };

    /// The characters that the reader goes through for the references in `text`, and for those in
    /// what they stand for; somewhere above MaxExpansion where it goes through more.
    qint64 expansionOf(QStringView text);
    qint64 expansionOf(Entity &entity);

    [[gnu::noinline]] QChar firstOfNextPiece();
    qint64 readPiece();
    bool exceedsLimits();
    void decodePiece(QByteArrayView bytes);

    QIODevice &request;
    Observer *observer;
    std::optional<Stop> stop;
    QByteArray piece;
    QStringDecoder decodeUtf8{QStringDecoder::Utf8};
    bool utf8 = false; // of the request, known with its first piece
    bool ended = false;
    bool inDocumentType = false;
    bool elementSeen = false; // in the present piece
    qint64 bytesRead = 0;
    qint64 documentTypeBytes = 0;       // of the one being read
    qsizetype attributes = 0;           // of the element being read, but for its first piece
    std::map<QString, Entity> entities; // that the document type declares
    qint64 expansion = 0;               // of what stands behind the last declaration of one
    QString text;                       // of the present piece
    QString::const_iterator at = text.cbegin();
    QString::const_iterator end = text.cend();
    QString::const_iterator told = at; // up to here the observer knows it
};

} // namespace requestreader
