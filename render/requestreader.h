// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

class QIODevice;
class QXmlContentHandler;

/// Reads print requests with the toolkit's SAX reader, a piece at a time, in constant memory.
namespace requestreader {

/// Elements nested deeper stop the reading as a fault in the XML does: the toolkit's reader
/// recurses for every level, and a hostile request would overflow its stack.
constexpr int MaxDepth = 1'000;

/// So does what is behind these bytes, give or take a piece of 16 KiB: the value of an attribute is
/// in memory as a whole, and a pipe need not end.
constexpr int MaxRequestBytes = 64 * 1'024 * 1'024;

/// And an element of more attributes, counted by pieces and equals signs: they are in memory
/// together, and each takes far more there than in the request.
constexpr int MaxAttributes = 1'000'000;

/// A longer document type stops the reading as a fault does, give or take a piece of 16 KiB: the
/// reader also recurses in content models, and its checks of entities take time that grows with the
/// square of their number.
constexpr int MaxDocumentTypeBytes = 16 * 1'024;

/// References to entities that expand to more characters, all together, are a fault too: a small
/// request would take gigabytes and minutes. They are counted ahead of the reading, by pieces, with
/// all that the reader goes through for them; what is declared and never used counts nothing.
constexpr qint64 MaxExpansion = 10'000'000;

/// Why a reading ended before its request did, in the order of their texts.
enum class Stop {
    Fault,        ///< the XML is not well-formed
    Refused,      ///< the handler answered an event with false
    Depth,        ///< MaxDepth is exceeded
    Size,         ///< MaxRequestBytes is exceeded
    Attributes,   ///< MaxAttributes is exceeded
    DocumentType, ///< MaxDocumentTypeBytes is exceeded
    Expansion,    ///< MaxExpansion is exceeded
};

/// What a request exceeds, for a person; empty for a reason that is no limit.
QString exceededLimit(Stop why);

/// Moves a place of the request, which begins at line 1 and column 1, behind a character. Columns
/// count bytes where the request is in UTF-8, otherwise characters.
void pass(qint64 &line, qint64 &column, QChar c, bool utf8);

/// Follows a reading through the text of the request, of which nothing is kept.
class Observer
{
public:
    virtual ~Observer() = default;
    /// What the reader took since it was last told, a piece of it at most: told before the handler
    /// gets an element, whose tag it then ends with, or an undeclared entity, and when the reading
    /// ends. `utf8`: whether the request is in UTF-8.
    virtual void taken(QStringView text, bool utf8) = 0;
    /// The reading ended early, at the last character taken; `fault` is the reader's word for it.
    virtual void stopped(Stop why, const QString &fault) = 0;
};

/// Hands the elements of a request, and the text between them, to `handler` until its end, the
/// first fault in the XML, or the first event that the handler answers with false. Declarations of
/// name spaces come as attributes: ownAttributes() tells them apart. `request` need not be open;
/// one that cannot be opened or read is an empty request. Answers whether the end was reached.
bool read(QIODevice &request, QXmlContentHandler &handler, Observer *observer = nullptr);

} // namespace requestreader
