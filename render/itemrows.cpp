// SPDX-License-Identifier: MIT
#include "render/rowlayout.h"
#include "render/vocabulary.h"

using namespace Qt::StringLiterals;

// The rows that more than one family of documents is made of.

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
    println(rowlayout::Line().left({}, settings.paperWidth, u'=').toString());
}

/// The titles are handed over with every item and printed with the first: translating the four
/// each time would cost more than laying out the item.
const PrinterDriver::ColumnTitles &PrinterDriver::columnTitles()
{
    if (!translatedTitles)
        translatedTitles = {tr("Num"), tr("Description"), tr("Price"), tr("Amount")};
    return *translatedTitles;
}

/// One item of a full document, below the column titles when it is the first.
void PrinterDriver::printPricedItem(const QXmlAttributes &atts, const QString &layout)
{
    const ColumnTitles &titles = columnTitles();
    printColumnsHeader(titles.number, titles.description, titles.price, titles.amount);
    println(descriptionRow(atts.value("number"_L1), atts.value("name"_L1), atts.value("price"_L1),
                           atts.value("totalPrice"_L1), u'.', layout));
}

/// One item type of an abstract document. Its amount stands in the total column, under "Price".
void PrinterDriver::printItemType(const QXmlAttributes &atts)
{
    const ColumnTitles &titles = columnTitles();
    printColumnsHeader(titles.number, titles.description, {}, titles.price);
    println(descriptionRow(atts.value("number"_L1), atts.value("name"_L1), {},
                           atts.value("price"_L1), u'.', u"qxdpt"_s));
}

/// A title and the amount that belongs to it, with dots between them.
void PrinterDriver::printTitledRow(const QString &title, const QString &amount)
{
    println(descriptionRow({}, title, {}, amount, u'.', u"qdpt"_s));
}
