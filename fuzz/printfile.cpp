// SPDX-License-Identifier: MIT
// A print file of any bytes: its lines hold all of them, and its drawing commands no terminal.
#include "fuzz/scratch.h"
#include "tools/preview/terminaldrawing.h"

#include <QBuffer>

#include <algorithm>

using namespace Qt::StringLiterals;
using preview::LineEnd;
using preview::LineKind;

namespace {

/// The bytes of the file that a line stands for.
QByteArray bytesOf(const preview::PrintLine &line)
{
    QByteArray bytes;
    for (const char32_t c : line.text) {
        if (preview::isUndecodedByte(c))
            bytes += char(c & 0xFF);
        else
            bytes += QStringView(QChar::fromUcs4(c)).toUtf8();
    }
    if (line.kind == LineKind::Printed)
        bytes = '"' + bytes + "\"@";
    if (line.end != LineEnd::Missing && line.kind != LineKind::Piece)
        bytes += line.end == LineEnd::LineFeed ? "\n" : "\r\n";
    return bytes;
}

void expectAllBytes(QBuffer &content)
{
    content.seek(0);
    preview::PrintFile file(content, nullptr);
    QByteArray bytes;
    while (const auto line = file.next()) {
        if (line->kind == LineKind::Piece)
            return; // a piece does not tell the end of its line
        fuzz::expectEqual(QString::number(line->offset), QString::number(bytes.size()));
        bytes += bytesOf(*line);
    }
    fuzz::expectEqual(QString::fromLatin1(bytes), QString::fromLatin1(content.data()));
}

bool isControl(QChar c)
{
    return c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() <= 0x9F);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QBuffer content;
    content.setData(reinterpret_cast<const char *>(data), int(size));
    content.open(QIODevice::ReadOnly);
    expectAllBytes(content);

    content.seek(0);
    const preview::Trace trace; // of no request
    preview::Paper paper(content, nullptr, trace, 0);
    const preview::TerminalDrawing drawing(nullptr, 0);
    while (const auto row = paper.next()) {
        const QString line = drawing.drawn(*row);
        if (std::ranges::any_of(line, isControl))
            fuzz::expectEqual(line, u"no control character"_s);
    }
    return 0;
}
