// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <vector>

class QIODevice;

namespace preview {

/// Where the parts of a print file come from. Both lists are in the order of the file.
struct Trace
{
    /// What a line of the request printed: the bytes up to `end`.
    struct Element
    {
        qint64 end;
        qint64 requestLine; ///< from 1: where the element's tag begins
    };
    struct Section
    {
        qint64 begin;   ///< bytes of the print file before it
        int paperWidth; ///< characters in a line, by the settings of its document
    };

    std::vector<Element> elements; ///< only where asked for
    std::vector<Section> sections;

    /// The line of the request that printed the byte at `offset`; 0 where that is unknown.
    qint64 requestLineAt(qint64 offset) const;
    /// The paper's width at `offset`; nothing before the first section.
    std::optional<int> paperWidthAt(qint64 offset) const;
};

/// What the rendering of a request left behind.
struct Rendering
{
    Trace trace;
    QString fault; ///< why the print file is not whole; empty when it is
};

/// Prints `request` into the file `printName` with the configuration and the translation that are
/// in use, by the device of the print run. What that tells goes to standard error.
Rendering render(QIODevice &request, const QString &printName, bool traceElements);

/// Whether a file that begins with these bytes is a print request, whatever its encoding: its first
/// character other than white space is `<`.
bool isRequest(const QByteArray &begin);

} // namespace preview
