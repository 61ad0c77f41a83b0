// SPDX-License-Identifier: MIT
#include "tools/preview/paper.h"

#include "tools/paperrules.h"

#include <QList>
#include <QTextCodec>

#include <algorithm>
#include <array>
#include <cwchar>
#include <locale.h>
#include <utility>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

constexpr bool isControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

/// Adds one text at the left and one at the right, on two lines where they do not fit on one.
void addLine(std::vector<Cells> &lines, CellsView left, const Cells &right, int width)
{
    const size_t room = size_t(width);
    if (left.size() + 1 + right.size() > room)
        lines.emplace_back(std::exchange(left, {}));
    const size_t blanks = room - std::min(room, left.size() + right.size());
    lines.push_back(Cells(left).append(blanks, U' ') + right);
}

/// Reads `"name"quantity*priceHdepartmentR`, and after it an adjustment, as `-1,50*5M` or `2*1M`.
/// The name may hold quotes of its own: it ends at the last one.
FiscalReceipt itemOf(CellsView command, int width)
{
    const size_t quote = command.rfind(U'"');
    if (!command.starts_with(U'"') || quote == 0)
        return {};
    const CellsView name = command.substr(1, quote - 1);
    CellsView rest = command.substr(quote + 1);
    std::array<CellsView, 3> parts;
    for (size_t i = 0; i < parts.size(); ++i) {
        const size_t mark = rest.find(U"*HR"[i]);
        if (mark == CellsView::npos)
            return {};
        parts[i] = rest.substr(0, mark);
        rest.remove_prefix(mark + 1);
    }
    if (!rest.empty() && !rest.ends_with(U"*1M") && !rest.ends_with(U"*5M"))
        return {};
    const auto &[quantity, price, department] = parts;
    FiscalReceipt receipt;
    addLine(receipt.lines, name,
            Cells(quantity).append(U" x ").append(price).append(U" dep. ").append(department),
            width);
    if (rest.size() > 3)
        addLine(receipt.lines, U"  Adjustment", Cells(rest.substr(0, rest.size() - 3)), width);
    if (name.find(U'"') != CellsView::npos)
        receipt.fault = u"a double quote ends the name early"_s;
    else if (!tools::isFiscalNumber(quantity, U'.') || !tools::isFiscalNumber(price, U','))
        receipt.fault = u"quantity and price take digits and at most one point"_s;
    else if (!tools::isFiscalNumber(department))
        receipt.fault = u"the department is no number"_s;
    return receipt;
}

/// A discount or payment: what stands before and after its value, and its title on the receipt.
struct FiscalValue
{
    CellsView before, after, title, unit;
};

constexpr std::array<FiscalValue, 5> values = {{
    {U"=", U"*2M", U"Discount", U"%"},
    {U"", U"H1T", U"Cash", U""},
    {U"", U"H3T", U"Credit card", U""},
    {U"", U"H2T", U"Cheque", U""},
    {U"", U"H5T", U"Ticket", U""},
}};

LineKind kindOf(CellsView line)
{
    constexpr size_t FrameSize = 3;
    if (line.empty())
        return LineKind::Empty;
    if (line == U"j")
        return LineKind::SectionStart;
    if (line == U"J")
        return LineKind::SectionEnd;
    if (line == U"1T")
        return LineKind::FiscalEnd;
    if (line.size() >= FrameSize && line.starts_with(U'"') && line.ends_with(U"\"@"))
        return LineKind::Printed;
    return fiscalReceipt(line, 0).lines.empty() ? LineKind::Unframed : LineKind::Fiscal;
}

/// Adds the character that `bytes` begin with, or their first byte where none does; answers its
/// size.
qsizetype addCharacter(Cells &cells, QByteArrayView bytes, QTextCodec *codec)
{
    const auto first = uchar(bytes.front());
    if (first < 0x80) {
        cells += char32_t(first);
        return 1;
    }
    for (qsizetype size = 1; size <= std::min<qsizetype>(4, bytes.size()); ++size) {
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        const QString text = codec->toUnicode(bytes.data(), int(size), &state);
        const bool isDecoded =
            !text.isEmpty() && state.invalidChars == 0 && state.remainingChars == 0;
        // Not every codec counts what it replaces.
        if (isDecoded
            && (text.front() != QChar::ReplacementCharacter
                || codec->fromUnicode(text) == bytes.first(size))) {
            cells += cellsOf(text);
            return size;
        }
    }
    cells += char32_t(UndecodedByte + first);
    return 1;
}

Cells decoded(QByteArrayView bytes, QTextCodec *codec)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString text = codec->toUnicode(bytes.data(), int(bytes.size()), &state);
    if (state.invalidChars == 0 && state.remainingChars == 0
        && !text.contains(QChar::ReplacementCharacter))
        return cellsOf(text);
    Cells cells;
    while (!bytes.isEmpty())
        bytes = bytes.sliced(addCharacter(cells, bytes, codec));
    return cells;
}

} // namespace

Cells cellsOf(QStringView text)
{
    const QList<uint> points = text.toUcs4();
    return {points.cbegin(), points.cend()};
}

QString textOf(CellsView cells)
{
    QString text;
    text.reserve(qsizetype(cells.size()));
    for (const char32_t c : cells)
        text += QChar::fromUcs4(drawable(c)); // QString's own conversion drops U+FEFF
    return text;
}

char32_t drawable(char32_t c)
{
    constexpr char32_t FirstSymbol = 0x2400;
    constexpr char32_t SymbolForDelete = 0x2421;
    if (c < 0x20)
        return FirstSymbol + c;
    if (c == 0x7F)
        return SymbolForDelete;
    return isControl(c) || QChar::isSurrogate(c) || QChar::isNonCharacter(c) ? 0xFFFD : c;
}

bool fillsOneColumn(char32_t c)
{
    if (c >= 0x20 && c < 0x7F)
        return true;
    const QChar::Direction direction = QChar::direction(c);
    if (drawable(c) != c || direction == QChar::DirR || direction == QChar::DirAL
        || direction == QChar::DirAN)
        return false;
    // As a terminal of UTF-8 has it, whatever the process's own locale is.
    static const locale_t utf8 = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    const locale_t present = uselocale(utf8);
    const int columns = wcwidth(wchar_t(c));
    uselocale(present);
    return columns == 1;
}

QString numberOf(char32_t c)
{
    if (isControl(c) || isUndecodedByte(c))
        return "\\x"_L1 + QString::number(c & 0xFF, 16).rightJustified(2, u'0');
    return "U+"_L1 + QString::number(c, 16).toUpper().rightJustified(4, u'0');
}

QString escaped(CellsView cells)
{
    QString text;
    for (const char32_t c : cells)
        text += fillsOneColumn(c) ? textOf({&c, 1}) : numberOf(c);
    return text;
}

PrintLine lineAt(QByteArrayView file, qsizetype offset, QTextCodec *codec)
{
    PrintLine line;
    QByteArrayView bytes = file.sliced(offset);
    const qsizetype end = bytes.indexOf('\n');
    bytes = bytes.first(end < 0 ? bytes.size() : end);
    line.next = offset + bytes.size() + (end < 0 ? 0 : 1);
    line.end = end < 0                ? LineEnd::Missing
               : bytes.endsWith('\r') ? LineEnd::CarriageReturn
                                      : LineEnd::LineFeed;
    bytes.chop(line.end == LineEnd::CarriageReturn ? 1 : 0);
    line.text = decoded(bytes, codec ? codec : QTextCodec::codecForName("UTF-8"));
    line.kind = kindOf(line.text);
    if (line.kind == LineKind::Printed)
        line.text = line.text.substr(1, line.text.size() - 3);
    return line;
}

FiscalReceipt fiscalReceipt(CellsView command, int width)
{
    FiscalReceipt receipt = itemOf(command, width);
    for (const auto &[before, after, title, unit] : values) {
        if (command.size() <= before.size() + after.size() || !command.starts_with(before)
            || !command.ends_with(after))
            continue;
        const CellsView value =
            command.substr(before.size(), command.size() - before.size() - after.size());
        if (value.find_first_not_of(U"0123456789,.+-eE") == CellsView::npos)
            addLine(receipt.lines, title, Cells(value).append(unit), width);
    }
    return receipt;
}

} // namespace preview
