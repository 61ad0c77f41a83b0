// SPDX-License-Identifier: MIT
#include "render/vocabulary.h"

#include <span>

using namespace Qt::StringLiterals;

namespace {

/// A label line of the order block: printed under its switch, with the value of its attribute.
struct LabelRow
{
    bool DocumentSettings::*printed;
    const char *label;
    QLatin1StringView attribute;
};

using S = DocumentSettings;

constexpr LabelRow orderRows[] = {
    {&S::printDate, QT_TRANSLATE_NOOP("PrinterDriver", "Date:"), "date"_L1},
    {&S::printTime, QT_TRANSLATE_NOOP("PrinterDriver", "Time:"), "time"_L1},
    {&S::printTable, QT_TRANSLATE_NOOP("PrinterDriver", "Table:"), "table"_L1},
    {&S::printWaiter, QT_TRANSLATE_NOOP("PrinterDriver", "Waiter:"), "waiter"_L1},
    {&S::printNote, QT_TRANSLATE_NOOP("PrinterDriver", "Note:"), "note"_L1},
    {&S::printCredit, QT_TRANSLATE_NOOP("PrinterDriver", "Credit:"), "credit"_L1},
};

constexpr LabelRow customerRows[] = {
    {&S::printTelephone, QT_TRANSLATE_NOOP("PrinterDriver", "Telephone:"), "telephone"_L1},
    {&S::printLicenseNumber, QT_TRANSLATE_NOOP("PrinterDriver", "License Number:"),
     "licensenumber"_L1},
    {&S::printFiscalCode, QT_TRANSLATE_NOOP("PrinterDriver", "Fiscal Code:"), "fiscalcode"_L1},
};

/// A blank, the label, a blank, the value.
void printLabelLine(PrinterDriver &device, const QString &label, const QString &value)
{
    device.print(1, label);
    device.println(1, value);
}

/// The lines of `rows` that are switched on.
void printLabelRows(PrinterDriver &device, std::span<const LabelRow> rows,
                    const DocumentSettings &settings, const QXmlAttributes &atts)
{
    for (const LabelRow &row : rows) {
        if (settings.*row.printed)
            printLabelLine(device, PrinterDriver::tr(row.label), atts.value(row.attribute));
    }
}

/// A line for each part between commas, up to the first empty one. A part of blanks is a line too.
void printAddress(PrinterDriver &device, const QString &address)
{
    for (const QStringView part : qTokenize(address, u',')) {
        if (part.isEmpty())
            return;
        device.println(1, part.trimmed().toString());
    }
}

} // namespace

QXmlAttributes ownAttributes(const QXmlAttributes &atts)
{
    QXmlAttributes own;
    for (int i = 0; i < atts.count(); ++i) {
        const QString name = atts.qName(i);
        if (name != "xmlns"_L1 && !name.startsWith("xmlns:"_L1))
            own.append(name, atts.uri(i), atts.localName(i), atts.value(i));
    }
    return own;
}

void PrinterDriver::printGeometry(const QXmlAttributes &)
{
    if (!settings.printGeometry)
        return;
    const int lines = qMin(numberSetting("topMargin"_L1), MaxTopMargin);
    for (int i = 0; i < lines; ++i)
        println(u""_s);
}

void PrinterDriver::printPrinterInfo()
{
    setCenterJustify();
    println(printerInfo);
    printSeparatorLine();
}

void PrinterDriver::printHeaders(const QXmlAttributes &atts)
{
    if (!settings.printHeader)
        return;
    for (int i = 0; i < atts.count(); ++i)
        println(atts.value(i));
    printSeparatorLine();
}

void PrinterDriver::printCompanyHeader(const QXmlAttributes &atts)
{
    if (!settings.printCompany)
        return;
    setCharSize();
    setCenterJustify();
    for (int i = 0; i < atts.count(); ++i)
        println(atts.value(i));
    setCharSize();
    printSeparatorLine();
}

void PrinterDriver::printReceiptHeader(const QXmlAttributes &atts)
{
    println(1, tr("Serial Number: ") + atts.value("serialnumber"_L1));
    printSeparatorLine();
}

void PrinterDriver::printInvoiceHeader(const QXmlAttributes &atts)
{
    printLabelLine(*this, tr("Invoice Number:"), atts.value("serialnumber"_L1));
    printSeparatorLine();
}

void PrinterDriver::printDeliveryHeader(const QXmlAttributes &atts)
{
    printLabelLine(*this, tr("Delivery Number:"), atts.value("serialnumber"_L1));
    printSeparatorLine();
}

void PrinterDriver::printOrderInfo(const QXmlAttributes &atts)
{
    setCharSize();
    printLabelRows(*this, orderRows, settings, atts);
    if (settings.printCredit)
        credit = atts.value("credit"_L1);
    printSeparatorLine();
}

void PrinterDriver::printCustomerHeader(const QXmlAttributes &atts)
{
    if (!settings.printCustomer)
        return;
    println(tr("CUSTOMER"));
    println(1, atts.value("name"_L1));
    if (settings.printBillingAddress)
        printAddress(*this, atts.value("billingaddress"_L1));
    if (settings.printDeliveryAddress)
        printAddress(*this, atts.value("deliveryaddress"_L1));
    printLabelRows(*this, customerRows, settings, atts);
    printSeparatorLine();
}

bool PrinterDriver::printSections(const QString &name, const QXmlAttributes &atts)
{
    if (name == element::receipe)
        return false; // as most elements are
    if (name == element::printers) {
        printerInfo = atts.value("name"_L1);
        charsize = atts.value("charsize"_L1);
        ipaddress = atts.value("ipaddress"_L1);
        port = atts.value("port"_L1);
        initPrinter();
    } else if (name == element::geometry) {
        printGeometry(atts);
    } else if (name == element::headers) {
        printHeaders(ownAttributes(atts));
        printPrinterInfo();
    } else if (name == element::logo) {
        printLogo();
    } else if (name == element::company) {
        printCompanyHeader(ownAttributes(atts));
    } else if (name == element::receipt) {
        printReceiptHeader(atts);
    } else if (name == element::invoice) {
        printInvoiceHeader(atts);
    } else if (name == element::delivery) {
        printDeliveryHeader(atts);
    } else if (name == element::orderInfo) {
        printOrderInfo(atts);
    } else {
        return false;
    }
    return true;
}
