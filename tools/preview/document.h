// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"
#include "tools/preview/rendering.h"

#include <QIODevice>
#include <QTemporaryDir>

#include <memory>

namespace preview {

/// A file that a word of the command names: a print request or a print file.
struct Source
{
    QString name;
    std::unique_ptr<QIODevice> content; ///< closed, and not sequential
    bool isRequest = false;             ///< by its content, whatever its name
};

/// The file, or standard input for `-`; nothing when it cannot be read, which is told.
std::optional<Source> readSource(const tools::Call &call, const QString &name);

/// The print file of a source.
struct Document
{
    std::unique_ptr<QIODevice> printFile; ///< closed, and not sequential
    Trace trace;                          ///< empty where the source is a print file itself
    bool isRendered = false;              ///< and so in the encoding of the locale
    bool isWhole = true;                  ///< whether the request was read to its end
};

/// Makes the print files of sources, with the configuration that is in use.
class Printer
{
public:
    Printer(const tools::Call &call, bool traceElements);

    /// The document of a source, whose content it takes when that is a print file. What cannot be
    /// printed to its end, or prints nothing, is told. Nothing where there is no print file.
    std::optional<Document> print(Source &source);

private:
    bool printRequest(Source &source, Document &document);

    const tools::Call &call;
    const bool traceElements;
    QTemporaryDir folder;
    int printed = 0;
};

} // namespace preview
