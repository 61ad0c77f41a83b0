// SPDX-License-Identifier: MIT
#include "render/rowlayout.h"

#include "render/printerdriver.h"

using namespace Qt::StringLiterals;

namespace rowlayout {

QString rightJustified(QStringView text, qint64 width, QChar fill)
{
    return Line().right(text, width, fill).toString();
}

QString leftJustified(QStringView text, qint64 width, QChar fill)
{
    return Line().left(text, width, fill).toString();
}

QStringView cut(QStringView text, qint64 width)
{
    if (width < 0 || text.size() <= width)
        return text;
    const bool halvesPair =
        width > 0 && text[width - 1].isHighSurrogate() && text[width].isLowSurrogate();
    return text.first(halvesPair ? width - 1 : width);
}

Line &Line::text(QStringView text)
{
    line.append(text.data(), text.size());
    return *this;
}

Line &Line::right(QStringView text, qint64 width, QChar fill)
{
    pad(line, qMin(width, MaxPaddedWidth) - text.size(), fill);
    return this->text(text);
}

Line &Line::left(QStringView text, qint64 width, QChar fill)
{
    this->text(text);
    pad(line, qMin(width, MaxPaddedWidth) - text.size(), fill);
    return *this;
}

Line &Line::exact(QStringView text, qint64 width, QChar fill)
{
    return left(cut(text, width), width, fill);
}

} // namespace rowlayout

QString PrinterDriver::descriptionRow(const QString &a1, const QString &a2, const QString &a3,
                                      const QString &a4, QChar fill, const QString &layout) const
{
    const qint64 Q = settings.quantityFieldWidth;
    const qint64 P = settings.priceFieldWidth;
    const qint64 T = settings.totalPriceFieldWidth;
    const qint64 W = settings.paperWidth;
    constexpr qint64 Date = 15;
    constexpr QChar blank = u' ';

    // The price column is padded with the fill, the total column with blanks (but for the double
    // line): the dots lead from the description to the price. "qd" and "date-amount-type" end short
    // of the paper.
    rowlayout::Line row;
    if (layout == "qdpt"_L1)
        row.right(a1, Q, blank)
            .text(u" ")
            .exact(a2, W - Q - P - T - 1, fill)
            .right(a3, P, fill)
            .right(a4, T, blank);
    else if (layout == "qxdpt"_L1)
        row.right(a1, Q, blank)
            .text(u" x ")
            .exact(a2, W - Q - P - T - 3, fill)
            .right(a3, P, fill)
            .right(a4, T, blank);
    else if (layout == "qxdtDoubleLine"_L1)
        row.text(a1).text(u" x ").text(a3).text(u"\n").exact(a2, W - T, fill).right(a4, T, fill);
    else if (layout == "qxd"_L1)
        row.right(a1, Q, blank).text(u" x ").exact(a2, W - Q - 3, fill);
    else if (layout == "qd"_L1)
        row.right(a1, Q, blank).text(u" ").exact(a2, W - Q - 3, blank);
    else if (layout == "date-amount-type"_L1)
        row.left(a1, Date, blank).exact(a2, W - Date - P - 3, fill).right(a3, P, fill);
    return row.toString();
}

void PrinterDriver::printColumnsHeader(const QString &a1, const QString &a2, const QString &a3,
                                       const QString &a4)
{
    if (!oneTime())
        return;
    setBold();
    println(descriptionRow(a1, a2, a3, a4, u' ', u"qdpt"_s));
    setCharSize();
}

void PrinterDriver::printSeparatorLine()
{
    println(rowlayout::leftJustified({}, settings.paperWidth, u'='));
}
