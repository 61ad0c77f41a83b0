// SPDX-License-Identifier: MIT
#include "render/vocabulary.h"

using namespace Qt::StringLiterals;

/// The total of a receipt, below an empty line.
void PrinterDriver::printTotal(const QXmlAttributes &atts)
{
    println(u""_s);
    printTitledRow(tr("TOTAL"), atts.value("price"_L1));
}

void PrinterDriver::printInvoiceTotals(const QXmlAttributes &atts)
{
    setBold();
    println(u""_s);
    printTitledRow(tr("Taxable"), atts.value("taxable"_L1));
    printTitledRow(tr("TaxRate"), atts.value("taxrate"_L1));
    printTitledRow(tr("Tax"), atts.value("tax"_L1));
    printTitledRow(tr("TOTAL"), atts.value("total"_L1));
    setCharSize();
}

void PrinterDriver::printFullOrderReceipt(const QString &qName, const QXmlAttributes &atts)
{
    if (printSections(qName, atts))
        return;
    if (qName == element::customer) {
        printCustomerHeader(atts);
    } else if (qName == element::receipe) {
        printPricedItem(atts, u"qxdpt"_s);
    } else if (qName == element::total) {
        printTotal(atts);
    } else if (qName == element::notPaid) {
        println(u""_s);
        println(tr("    Amount not paid: ") + atts.value("price"_L1));
    }
}

void PrinterDriver::printFullOrderInvoice(const QString &qName, const QXmlAttributes &atts)
{
    if (printSections(qName, atts))
        return;
    if (qName == element::customer)
        printCustomerHeader(atts);
    else if (qName == element::receipe)
        printPricedItem(atts, u"qdpt"_s);
    else if (qName == element::totals)
        printInvoiceTotals(atts);
}

void PrinterDriver::printFullOrderDelivery(const QString &qName, const QXmlAttributes &atts)
{
    if (qName == element::customer)
        printCustomerHeader(atts);
    else
        printPartialOrder(qName, atts);
}

void PrinterDriver::printFullOrderFiscal(const QString &qName, const QXmlAttributes &atts)
{
    if (qName == element::receipe) {
        // Looked up once for a prefix: that takes longer the larger the configuration is.
        if (std::exchange(descriptionWidth.first, docPath) != docPath)
            descriptionWidth.second = numberSetting("descriptionWidth"_L1);
        const int setWidth = descriptionWidth.second;
        const qint64 width = setWidth == 0 ? qint64(getPaperWidth()) : setWidth;
        const QString name = atts.value("name"_L1);
        printRowFiscal(atts.value("department"_L1), atts.value("number"_L1),
                       rowlayout::cut(name, width).toString(), atts.value("price"_L1));
    } else if (qName == element::total) {
        printRowFiscal(qName, atts);
    }
}

void PrinterDriver::printAbstractOrderReceipt(const QString &qName, const QXmlAttributes &atts)
{
    if (printSections(qName, atts))
        return;
    if (qName == element::receipeType) {
        printItemType(atts);
    } else if (qName == element::total) {
        printTotal(atts);
    } else if (qName == element::notPaid) {
        println(u""_s);
        // This title is Italian in every language.
        println("   Corrispettivo non pagato: "_L1 + atts.value("price"_L1));
    }
}

void PrinterDriver::printAbstractOrderInvoice(const QString &qName, const QXmlAttributes &atts)
{
    if (printSections(qName, atts))
        return;
    if (qName == element::customer)
        printCustomerHeader(atts);
    else if (qName == element::receipeType)
        printItemType(atts);
    else if (qName == element::totals)
        printInvoiceTotals(atts);
}

void PrinterDriver::printAbstractOrderFiscal(const QString &qName, const QXmlAttributes &atts)
{
    if (qName == element::receipeType)
        printRowFiscal(atts.value("department"_L1), u"1"_s, atts.value("name"_L1),
                       atts.value("price"_L1));
    else if (qName == element::total)
        printRowFiscal(qName, atts);
}
