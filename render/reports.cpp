// SPDX-License-Identifier: MIT
#include "render/printerdriver.h"

#include "render/rowlayout.h"
#include "render/vocabulary.h"

#include <array>

using namespace Qt::StringLiterals;
using rowlayout::leftJustified;
using rowlayout::rightJustified;

namespace {

/// A payment line of the receipts summary: its label and the attribute that holds the amount.
struct PaymentRow
{
    const char *label;
    QLatin1StringView attribute;
};

constexpr std::array<PaymentRow, 5> paymentRows = {{
    {QT_TRANSLATE_NOOP("PrinterDriver", "Amount not paid: "), "notPaid"_L1},
    {QT_TRANSLATE_NOOP("PrinterDriver", "Cash: "), "cash"_L1},
    {QT_TRANSLATE_NOOP("PrinterDriver", "Credit Card: "), "creditCard"_L1},
    {QT_TRANSLATE_NOOP("PrinterDriver", "Bancomat: "), "bancomat"_L1},
    {QT_TRANSLATE_NOOP("PrinterDriver", "Other: "), "other"_L1},
}};

/// The value of the attribute at `position`, from 0 in document order; empty text past the last.
QString valueAt(const QXmlAttributes &atts, int position)
{
    return position < atts.count() ? atts.value(position) : QString();
}

/// A row of the tax-rate table; `afterRate` stands between its first two columns.
QString taxRow(const QString &rate, QLatin1StringView afterRate, const QString &taxable,
               const QString &tax, const QString &amount)
{
    constexpr int Rate = 6;
    constexpr int Money = 10;
    return rightJustified(rate, Rate, u' ') + afterRate + rightJustified(taxable, Money, u' ')
           + u' ' + rightJustified(tax, Money, u' ') + u' ' + rightJustified(amount, Money, u' ');
}

} // namespace

void PrinterDriver::printReport(const QString &qName, const QXmlAttributes &atts)
{
    if (printSections(qName, atts))
        return;
    if (qName == element::date)
        printReportDates(atts);
    else if (qName == element::prefiscalsSummary)
        printPrefiscalsSummary(atts);
    else if (qName == element::receiptsSummary)
        printReceiptsSummary(atts);
    else if (qName == element::taxRateItem)
        // The rate is followed by one character more than in the heading, and the row by a blank.
        println(taxRow(valueOf(atts, "taxrate"_L1), "% "_L1, valueOf(atts, "taxable"_L1),
                       valueOf(atts, "tax"_L1), valueOf(atts, "amount"_L1))
                + u' ');
    else if (qName == element::invoicesSummary)
        printInvoicesSummary(atts);
    else if (qName == element::cancelledSummary)
        printCancelledSummary(atts);
}

/// A title in its own centred block, below an empty line that is centred with it.
void PrinterDriver::printReportTitle(const QString &title)
{
    setBold();
    setCenterJustify();
    println(u""_s);
    println(title);
}

/// The label with dots up to the value, which begins 15 characters before the end of the paper.
void PrinterDriver::printDottedLabel(const QString &label)
{
    constexpr qint64 ValueWidth = 15; // paper that is narrower leaves no room for dots
    print(0, leftJustified(label, settings.paperWidth - ValueWidth, u'.'));
}

void PrinterDriver::printDottedLine(const QString &label, const QString &value)
{
    printDottedLabel(label);
    println(value);
}

void PrinterDriver::printSerialRange(const QXmlAttributes &atts)
{
    printDottedLabel(tr("Serials"));
    print(0, valueOf(atts, "firstserial"_L1));
    print(0, u" - "_s);
    println(valueOf(atts, "lastserial"_L1));
}

void PrinterDriver::printReportDates(const QXmlAttributes &atts)
{
    printReportTitle(tr("SUMMARIES"));
    println(u""_s); // still centred, unlike the empty line below the other titles
    setCharSize();
    print(0, tr("BeginDate: "));
    println(valueOf(atts, "begindate"_L1));
    print(0, tr("EndDate: "));
    println(valueOf(atts, "enddate"_L1));
}

void PrinterDriver::printPrefiscalsSummary(const QXmlAttributes &atts)
{
    printReportTitle(tr("PREFISCAL SUMMARY"));
    setCharSize();
    println(u""_s);
    printDottedLine(tr("Number"), valueOf(atts, "number"_L1));
    printDottedLine(tr("TOTAL"), valueOf(atts, "total"_L1));
}

void PrinterDriver::printReceiptsSummary(const QXmlAttributes &atts)
{
    printReportTitle(tr("RECEIPTS SUMMARY"));
    setCharSize();
    println(u""_s);
    printDottedLine(tr("Number"), valueOf(atts, "number"_L1));
    printSerialRange(atts);
    for (const PaymentRow &row : paymentRows)
        println(tr(row.label) + valueOf(atts, row.attribute));
    printDottedLine(tr("TOTAL"), valueOf(atts, "total"_L1));
    println(u""_s);
    printSeparatorLine();
    println(taxRow(tr("TAXRATE"), " "_L1, tr("TAXABLE"), tr("TAX"), tr("AMOUNT")));
}

void PrinterDriver::printInvoicesSummary(const QXmlAttributes &atts)
{
    printSeparatorLine();
    println(u""_s); // a second empty line stands above the title
    printReportTitle(tr("INVOICES SUMMARY"));
    setCharSize();
    println(u""_s);
    printDottedLine(tr("Number"), valueOf(atts, "number"_L1));
    printSerialRange(atts);
    printDottedLine(tr("Taxable"), valueOf(atts, "taxable"_L1));
    printDottedLine(tr("Tax"), valueOf(atts, "tax"_L1));
    printDottedLine(tr("TOTAL"), valueOf(atts, "total"_L1));
}

/// The cancelled documents are attributes by position: behind "number" and "totals" stand serial,
/// total and tax rate of one document after the other, whatever they are called.
void PrinterDriver::printCancelledSummary(const QXmlAttributes &atts)
{
    constexpr int FirstDocument = 2;
    constexpr int PerDocument = 3;
    const auto printRow = [this](const QString &serial, const QString &total, const QString &rate) {
        print(0, leftJustified(serial, 10, u' '));
        print(0, leftJustified(total, 11, u' '));
        println(leftJustified(rate, 10, u' '));
    };
    printReportTitle(tr("CANCELLED DOC SUMMARY"));
    setCharSize();
    println(u""_s);
    printDottedLine(tr("Number"), valueOf(atts, "number"_L1));
    printDottedLine(tr("TOTAL"), valueOf(atts, "totals"_L1)); // the plural is this element's own
    setBold();
    println(u""_s);
    printRow(tr("SERIAL"), tr("TOTAL"), tr("TAXRATE"));
    for (int i = FirstDocument; i < atts.count(); i += PerDocument)
        printRow(valueAt(atts, i), valueAt(atts, i + 1), valueAt(atts, i + 2));
}
