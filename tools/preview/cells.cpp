// SPDX-License-Identifier: MIT
#include "tools/preview/cells.h"

#include <QList>

#include <cwchar>
#include <locale.h>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

constexpr bool isControl(char32_t c)
{
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

/// The columns that a UTF-8 terminal gives a character, whatever the process's own locale is.
int terminalColumns(char32_t c)
{
    static const locale_t utf8 = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (!utf8)
        return 1;
    const locale_t present = uselocale(utf8);
    const int columns = wcwidth(wchar_t(c));
    uselocale(present);
    return columns;
}

bool isSeen(char32_t c)
{
    const QChar::Category category = QChar::category(c);
    return category != QChar::Other_Format && category != QChar::Separator_Line
           && category != QChar::Separator_Paragraph && drawable(c) == c;
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
    return drawable(c) == c && direction != QChar::DirR && direction != QChar::DirAL
           && direction != QChar::DirAN && terminalColumns(c) == 1;
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
        text += isSeen(c) ? textOf({&c, 1}) : numberOf(c);
    return text;
}

} // namespace preview
