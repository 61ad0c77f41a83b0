// SPDX-License-Identifier: MIT
#include "render/requestsource.h"

#include <QIODevice>

#include <algorithm>

namespace requestreader {
namespace {

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

} // namespace

RequestSource::RequestSource(QIODevice &request, Observer *observer)
    : request(request)
    , observer(observer)
    , piece(PieceBytes, Qt::Uninitialized)
{
    if (!request.isOpen())
        request.open(QIODevice::ReadOnly | QIODevice::Unbuffered); // else there is nothing to read
}

void RequestSource::tellStop(Stop otherwise, const QString &fault)
{
    if (!observer)
        return;
    tell();
    const bool endMark = at != text.cbegin() && isEndMark(at[-1]);
    observer->stopped(stop.value_or(otherwise),
                      endMark ? QStringLiteral("a character that XML does not allow") : fault);
}

bool RequestSource::entityDeclared(const QString &name, const QString &value)
{
    entities.try_emplace(name, Entity{value});
    for (auto &[_, entity] : entities)
        entity.expansion = Unknown;
    expansion = expansionOf(QStringView(at, end));
    return expansion <= MaxExpansion;
}

qint64 RequestSource::expansionOf(QStringView text)
{
    const auto isSign = [](QChar c) { return c == u'&' || c == u'%'; };
    const auto endsName = [&](QChar c) { return c == u';' || isSign(c); };
    qint64 expansion = 0;
    auto at = std::find_if(text.begin(), text.end(), isSign);
    while (at != text.end() && expansion <= MaxExpansion) {
        const auto end = std::find_if(at + 1, text.end(), endsName);
        const QString name = QStringView(*at == u'%' ? at : at + 1, end).toString();
        if (end == text.end()) { // what follows may end the name: any that begins so
            for (auto &[whole, entity] : entities)
                expansion += whole.startsWith(name) ? expansionOf(entity) : 0;
        } else if (const auto found = entities.find(name);
                   *end == u';' && found != entities.end()) {
            expansion += expansionOf(found->second);
        }
        at = std::find_if(end, text.end(), isSign);
    }
    return expansion;
}

qint64 RequestSource::expansionOf(Entity &entity)
{
    if (entity.expansion == Unknown) {
        entity.expansion = MaxExpansion + 1; // for one that holds itself
        entity.expansion = entity.value.size() + expansionOf(entity.value);
    }
    return entity.expansion;
}

QChar RequestSource::firstOfNextPiece()
{
    tell();
    do {
        ended = ended || exceedsLimits();
        const qint64 size = readPiece();
        if (size == 0)
            return QChar(EndOfDocument);
        decodePiece(QByteArrayView(piece).first(size));
        bytesRead += size;
        expansion += entities.empty() ? 0 : expansionOf(text);
        if (expansion > MaxExpansion) {
            stop = Stop::Expansion;
            ended = true;
            text.clear();
        }
        told = at = text.cbegin();
        end = text.cend();
    } while (text.isEmpty());
    return next();
}

/// Fills the piece unless the request ends, and answers its size: a pipe gives no more than has
/// come, be it a single byte, and the first piece tells the encoding.
qint64 RequestSource::readPiece()
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
bool RequestSource::exceedsLimits()
{
    documentTypeBytes = inDocumentType ? documentTypeBytes + PieceBytes : 0;
    attributes = elementSeen ? 0 : attributes + text.count(u'='); // few pieces see none
    elementSeen = false;
    if (bytesRead > MaxRequestBytes)
        stop = Stop::Size;
    else if (documentTypeBytes > MaxDocumentTypeBytes)
        stop = Stop::DocumentType;
    else if (attributes > MaxAttributes)
        stop = Stop::Attributes;
    return stop.has_value();
}

void RequestSource::decodePiece(QByteArrayView bytes)
{
    const bool first = bytesRead == 0;
    if (first)
        utf8 = isUtf8(bytes);
    if (utf8) { // in place: the piece before it is done with
        text.resize(decodeUtf8.requiredSpace(bytes.size()));
        text.truncate(decodeUtf8.appendToBuffer(text.data(), bytes) - text.constData());
    } else {
        text = fromRawData(QByteArray::fromRawData(bytes.data(), bytes.size()), first);
    }
}

} // namespace requestreader
