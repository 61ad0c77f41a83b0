// SPDX-License-Identifier: MIT
#pragma once

class QIODevice;
class QXmlContentHandler;

/// Reads print requests with the toolkit's SAX reader, a piece at a time, in constant memory.
namespace requestreader {

/// Elements nested deeper stop the reading as a fault in the XML does: the toolkit's reader
/// recurses for every level, and a hostile request would overflow its stack.
constexpr int MaxDepth = 1'000;

/// Bytes within which the root element has to begin, or the reading stops as at a fault: the
/// toolkit's reader also recurses in a document type's content models, and its entity checks take
/// time that grows with the square of their number.
constexpr int MaxPrologBytes = 32 * 1'024;

/// References with which a request that declares entities of its own may go on, counted by pieces
/// of 16 KiB; more stop the reading as at a fault. The reader expands each to up to 4,096
/// characters: a small request would take gigabytes and minutes.
constexpr int MaxEntityReferences = 1'000;

/// Hands the elements of a request to `handler` until its end, the first fault in the XML, or the
/// first event that the handler answers with false. `request` need not be open; one that cannot be
/// opened or read is an empty request. Answers whether the end was reached.
bool read(QIODevice &request, QXmlContentHandler &handler);

} // namespace requestreader
