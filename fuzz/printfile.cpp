// SPDX-License-Identifier: MIT
// A print file of any bytes: its lines hold all of them, and its drawing commands no terminal.
#include "fuzz/expect.h"
#include "tools/preview/preview.h"

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
    if (line.end != LineEnd::Missing)
        bytes += line.end == LineEnd::LineFeed ? "\n" : "\r\n";
    return bytes;
}

void expectAllBytes(const QByteArray &file)
{
    QByteArray bytes;
    for (qsizetype at = 0; at < file.size();) {
        const preview::PrintLine line = preview::lineAt(file, at, nullptr);
        bytes += bytesOf(line);
        at = line.next;
        fuzz::expectEqual(QString::number(at), QString::number(bytes.size()));
    }
    fuzz::expectEqual(QString::fromLatin1(bytes), QString::fromLatin1(file));
}

bool isControl(QChar c)
{
    return c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() <= 0x9F);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray file = fuzz::content(data, size);
    expectAllBytes(file);
    const preview::TerminalDrawing drawing(nullptr, 0);
    preview::drawRows({file, nullptr, {}, {}}, 0, [&drawing](const preview::Row &row) {
        const QString line = drawing.drawn(row);
        if (std::ranges::any_of(line, isControl))
            fuzz::expectEqual(line, u"no control character"_s);
        return true;
    });
    return 0;
}
