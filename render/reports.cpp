// SPDX-License-Identifier: MIT
#include "render/rowlayout.h"
#include "render/vocabulary.h"

using namespace Qt::StringLiterals;
using rowlayout::Line;

namespace {

/// The payment lines of the receipts summary: the label and the attribute that holds the amount.
constexpr std::pair<const char *, QLatin1StringView> paymentRows[] = {
    {QT_TRANSLATE_NOOP("PrinterDriver", "Amount not paid: "), "notPaid"_L1},
    {QT_TRANSLATE_NOOP("PrinterDriver", "Cash: "), "cash"_L1},
    {QT_TRANSLATE_NOOP("PrinterDriver", "Credit Card: "), "creditCard"_L1},
    {QT_TRANSLATE_NOOP("PrinterDriver", "Bancomat: "), "bancomat"_L1},
    {QT_TRANSLATE_NOOP("PrinterDriver", "Other: "), "other"_L1},
};

/// The types of movement that the suite sends, named here for the translators.
[[maybe_unused]] constexpr const char *movementTypes[] = {
    QT_TRANSLATE_NOOP("PrinterDriver", "Payment"),
    QT_TRANSLATE_NOOP("PrinterDriver", "Receipt"),
    QT_TRANSLATE_NOOP("PrinterDriver", "Invoice"),
    QT_TRANSLATE_NOOP("PrinterDriver", "Credit note"),
    QT_TRANSLATE_NOOP("PrinterDriver", "Opening balance"),
    QT_TRANSLATE_NOOP("PrinterDriver", "Balance"),
};

/// A row of the tax-rate table; `afterRate` stands between its first two columns.
QString taxRow(const QString &rate, QStringView afterRate, const QString &taxable,
               const QString &tax, const QString &amount)
{
    constexpr int Rate = 6;
    constexpr int Money = 10;
    return Line()
        .right(rate, Rate, u' ')
        .text(afterRate)
        .right(taxable, Money, u' ')
        .text(u" ")
        .right(tax, Money, u' ')
        .text(u" ")
        .right(amount, Money, u' ')
        .toString();
}

/// One element of a report, and the device that prints it.
struct Report
{
    Q_DECLARE_TR_FUNCTIONS(PrinterDriver)

public:
    PrinterDriver &device;
    const QXmlAttributes &atts;
    const qint64 paperWidth; // characters

    void printDates() const
    {
        printTitle(tr("SUMMARIES"));
        device.println(u""_s); // still centred, unlike the empty line below the other titles
        device.setCharSize();
        device.print(0, tr("BeginDate: "));
        device.println(value("begindate"_L1));
        device.print(0, tr("EndDate: "));
        device.println(value("enddate"_L1));
    }

    void printPrefiscals() const
    {
        printSummary(tr("PREFISCAL SUMMARY"));
        printDotted(tr("TOTAL"), value("total"_L1));
    }

    void printReceipts() const
    {
        printSummary(tr("RECEIPTS SUMMARY"));
        printSerials();
        for (const auto &[label, attribute] : paymentRows)
            device.println(tr(label) + value(attribute));
        printDotted(tr("TOTAL"), value("total"_L1));
        device.println(u""_s);
        device.printSeparatorLine();
        device.println(taxRow(tr("TAXRATE"), u" ", tr("TAXABLE"), tr("TAX"), tr("AMOUNT")));
    }

    /// The rate is followed by one character more than in the heading, and the row by a blank.
    void printTaxRate() const
    {
        device.println(taxRow(value("taxrate"_L1), u"% ", value("taxable"_L1), value("tax"_L1),
                              value("amount"_L1))
                       + u' ');
    }

    void printInvoices() const
    {
        device.printSeparatorLine();
        device.println(u""_s); // a second empty line stands above the title
        printSummary(tr("INVOICES SUMMARY"));
        printSerials();
        printDotted(tr("Taxable"), value("taxable"_L1));
        printDotted(tr("Tax"), value("tax"_L1));
        printDotted(tr("TOTAL"), value("total"_L1));
    }

    /// The cancelled documents are attributes by position: behind "number" and "totals" stand
    /// serial, total and tax rate of one document after the other, whatever they are called.
    void printCancelled() const
    {
        constexpr int FirstDocument = 2;
        constexpr int PerDocument = 3;
        printSummary(tr("CANCELLED DOC SUMMARY"));
        printDotted(tr("TOTAL"), value("totals"_L1)); // the plural is this element's own
        device.setBold();
        device.println(u""_s);
        printCancelledRow(tr("SERIAL"), tr("TOTAL"), tr("TAXRATE"));
        for (int i = FirstDocument; i < atts.count(); i += PerDocument)
            printCancelledRow(valueAt(i), valueAt(i + 1), valueAt(i + 2));
    }

    QString value(QLatin1StringView attribute) const { return atts.value(attribute); }
    /// The value of the attribute at `position`, from 0 in document order; empty past the last.
    QString valueAt(int position) const
    {
        return position < atts.count() ? atts.value(position) : QString();
    }

    /// A title in its own centred block, below an empty line that is centred with it.
    void printTitle(const QString &title) const
    {
        device.setBold();
        device.setCenterJustify();
        device.println(u""_s);
        device.println(title);
    }

    /// The title of a summary, and the number of documents that it sums up.
    void printSummary(const QString &title) const
    {
        printTitle(title);
        device.setCharSize();
        device.println(u""_s);
        printDotted(tr("Number"), value("number"_L1));
    }

    /// The label with dots up to the value, which begins 15 characters before the end of the paper.
    void printDots(const QString &label) const
    {
        constexpr qint64 ValueWidth = 15; // paper that is narrower leaves no room for dots
        device.print(0, Line().left(label, paperWidth - ValueWidth, u'.').toString());
    }
    void printDotted(const QString &label, const QString &text) const
    {
        printDots(label);
        device.println(text);
    }

    void printSerials() const
    {
        printDots(tr("Serials"));
        device.print(0, value("firstserial"_L1));
        device.print(0, u" - "_s);
        device.println(value("lastserial"_L1));
    }

    void printCancelledRow(const QString &serial, const QString &total, const QString &rate) const
    {
        device.print(0, serial.leftJustified(10));
        device.print(0, total.leftJustified(11));
        device.println(rate.leftJustified(10));
    }
};

} // namespace

void PrinterDriver::printReport(const QString &qName, const QXmlAttributes &atts)
{
    if (printSections(qName, atts))
        return;
    const Report report{*this, atts, settings.paperWidth};
    if (qName == element::date)
        report.printDates();
    else if (qName == element::prefiscalsSummary)
        report.printPrefiscals();
    else if (qName == element::receiptsSummary)
        report.printReceipts();
    else if (qName == element::taxRateItem)
        report.printTaxRate();
    else if (qName == element::invoicesSummary)
        report.printInvoices();
    else if (qName == element::cancelledSummary)
        Report{*this, ownAttributes(atts), settings.paperWidth}.printCancelled();
}

void PrinterDriver::printSold(const QString &qName, const QXmlAttributes &atts)
{
    if (printSections(qName, atts) || qName != element::receipe)
        return;
    setBold();
    println(descriptionRow(atts.value("quantity"_L1), atts.value("description"_L1), {},
                           atts.value("amount"_L1), u'.', u"qxdpt"_s));
    setCharSize();
}

void PrinterDriver::printStatementOfAccount(const QString &qName, const QXmlAttributes &atts)
{
    if (printSections(qName, atts))
        return;
    const auto layout = u"date-amount-type"_s;
    if (qName == element::statementList) {
        setBold();
        println(descriptionRow(tr("Date"), tr("Description", "statement of account"), tr("Amount"),
                               {}, u' ', layout));
        reset();
    } else if (qName == element::statement) {
        // The request sends the type of a movement as a source text of the translation.
        const QByteArray type = atts.value("type"_L1).toUtf8();
        println(descriptionRow(atts.value("date"_L1) + ": "_L1, tr(type.constData()),
                               atts.value("amount"_L1), {}, u'.', layout));
    }
}
