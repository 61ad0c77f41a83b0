// SPDX-License-Identifier: MIT
#pragma once

#include "render/settings.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>
#include <QXmlDefaultHandler>

#include <memory>
#include <optional>
#include <utility>

class ZTConfiguration;
struct DocumentMethod;

/// The renderer: takes the elements of one print request from the XML reader, chooses the document
/// method that the `method` element names, loads the settings of its document type and hands every
/// later element to it. A device derives from it and says how a line reaches the paper:
///
///     CompanyPrinterDriver device(u"print.out"_s);
///     QFile request(u"request.xml"_s);
///     const bool whole = requestreader::read(request, device); // the file closes with the device
///
/// Printed labels are translated in the context "PrinterDriver". Attributes that an element lacks
/// are empty texts, elements that a method does not know print nothing; neither is reported.
class PrinterDriver : public QXmlDefaultHandler
{
    Q_DECLARE_TR_FUNCTIONS(PrinterDriver)

public:
    /// Opens the print file, truncating it unless `append`. A file that cannot be opened is told in
    /// one line on standard output and leaves the stream null.
    PrinterDriver(const QString &fileName, bool append);
    /// Prints into a file that is open for writing, unbuffered, as a text::LocaleFile on a
    /// descriptor: a filter's standard output, or memory. It is closed with the driver.
    explicit PrinterDriver(std::unique_ptr<QFile> printFile);
    PrinterDriver(const PrinterDriver &) = delete;
    PrinterDriver &operator=(const PrinterDriver &) = delete;
    /// Tells in one line where the print file holds only a part of the document, and why.
    ~PrinterDriver() override;

    // The reader's events.

    bool startDocument() override;
    bool endDocument() override;
    /// False, which stops the reader, for a `method` element with an unknown name; else true.
    bool startElement(const QString &namespaceURI, const QString &localName, const QString &qName,
                      const QXmlAttributes &atts) override;
    bool endElement(const QString &, const QString &, const QString &) override { return true; }

    // What a device does: companyprinterdriver.cpp, the rule in itemrows.cpp.

    /// Characters in a line of the device's paper: the width of documents that set none.
    virtual unsigned int getPaperWidth() = 0;
    /// Ends emphasis. Does nothing by default.
    virtual void reset() {}
    virtual void setBold() = 0;
    /// Back to the normal character size, and to the left.
    virtual void setCharSize() = 0;
    virtual void setCharSize(int size) = 0;
    virtual void setCenterJustify() = 0;
    virtual void fullCut() = 0;
    virtual void generatePulse() = 0;
    /// A rule of "=" over the paper's width.
    virtual void printSeparatorLine();
    virtual void startSection() = 0;
    virtual void endSection() = 0;
    /// Called for the `printers` element. Does nothing by default.
    virtual void initPrinter() {}
    /// Adds `indent` blanks and `text` to the line.
    virtual void print(unsigned int indent, const QString &text) = 0;
    /// The same, and ends the line.
    virtual void println(unsigned int indent, const QString &text) = 0;
    virtual void println(const QString &text) = 0;

    // Command lines for a fiscal printer, in companyprinterdriver.cpp. They do nothing by default.

    /// The discount and payment lines of an element `name`.
    virtual void printRowFiscal(const QString & /*name*/, const QXmlAttributes &) {}
    /// One item.
    virtual void printRowFiscal(const QString & /*department*/, const QString & /*quantity*/,
                                const QString & /*description*/, const QString & /*price*/)
    {
    }

    // The top of a document, in documentheaders.cpp: each prints what one element tells, under its
    // switch.

    /// As many empty lines as the setting `topMargin` says, MaxTopMargin at most.
    virtual void printGeometry(const QXmlAttributes &atts);
    /// The printer's name, centred, and a separator; what follows stays centred.
    virtual void printPrinterInfo();
    /// A line for every attribute, in document order, and a separator.
    virtual void printHeaders(const QXmlAttributes &atts);
    virtual void printLogo() = 0;
    /// A centred line for every attribute, in document order, and a separator.
    virtual void printCompanyHeader(const QXmlAttributes &atts);
    virtual void printReceiptHeader(const QXmlAttributes &atts);
    virtual void printInvoiceHeader(const QXmlAttributes &atts);
    virtual void printDeliveryHeader(const QXmlAttributes &atts);
    virtual void printCustomerHeader(const QXmlAttributes &atts);
    virtual void printOrderInfo(const QXmlAttributes &atts);
    /// Prints the elements above, which all list documents share; false for any other element.
    virtual bool printSections(const QString &name, const QXmlAttributes &atts);
    /// The column titles, once in a document: not after oneTime() has been asked. In itemrows.cpp.
    virtual void printColumnsHeader(const QString &a1, const QString &a2, const QString &a3,
                                    const QString &a4);

    // The document methods: each prints what one element contributes.

    // In ordertickets.cpp.
    virtual void printPartialOrder(const QString &qName, const QXmlAttributes &atts);
    virtual void printFullOrder(const QString &qName, const QXmlAttributes &atts);
    // In receipts.cpp.
    virtual void printFullOrderReceipt(const QString &qName, const QXmlAttributes &atts);
    virtual void printFullOrderInvoice(const QString &qName, const QXmlAttributes &atts);
    virtual void printFullOrderDelivery(const QString &qName, const QXmlAttributes &atts);
    virtual void printFullOrderFiscal(const QString &qName, const QXmlAttributes &atts);
    virtual void printAbstractOrder(const QString &, const QXmlAttributes &) {}
    virtual void printAbstractOrderReceipt(const QString &qName, const QXmlAttributes &atts);
    virtual void printAbstractOrderInvoice(const QString &qName, const QXmlAttributes &atts);
    virtual void printAbstractOrderFiscal(const QString &qName, const QXmlAttributes &atts);
    // In reports.cpp.
    virtual void printReport(const QString &qName, const QXmlAttributes &atts);
    virtual void printSold(const QString &qName, const QXmlAttributes &atts);
    virtual void printStatementOfAccount(const QString &qName, const QXmlAttributes &atts);

    // In printerdriver.cpp, but for the row.

    /// Whether the document is to be marked as a duplicate: invoices are.
    virtual bool printDuplicate() { return duplicate; }

    /// True the first time it is asked in a document, unless the column titles were printed before.
    bool oneTime() { return !std::exchange(oneTimeDone, true); }
    /// The prefix of the configuration keys of a document type, in any letter case. An unknown type
    /// is told in one line on standard output and answers the prefix of "prefiscal".
    QString documentPath(const QString &type);
    /// Loads the settings of a document type. Numbers are decimal integers, 0 for empty or bad
    /// text; a paper width of 0 becomes that of the device. Only "true" switches something on.
    void loadValues(const QString &type);
    /// One line of columns, without a line end. `layout` says which of the texts go where:
    /// "qdpt", "qxdpt" and "qxdtDoubleLine" take quantity, description, unit price and total,
    /// "qxd" and "qd" quantity and description, "date-amount-type" date, description and amount.
    /// The description is as wide as the other columns leave it, the others are padded and never
    /// cut. Answers an empty text for any other layout.
    QString descriptionRow(const QString &a1, const QString &a2, const QString &a3,
                           const QString &a4, QChar fill, const QString &layout) const;

protected:
    ZTConfiguration *config;             ///< borrowed: the process's configuration
    QString currentMethod;               ///< name of the chosen document method, or empty
    std::unique_ptr<QFile> file;         ///< the print file
    std::unique_ptr<QTextStream> stream; ///< all output; null when the file could not be opened
    bool duplicate = false;
    bool oneTimeDone = false;
    QString justify;                   ///< "left" or "center"
    QString docPath;                   ///< prefix of the configuration keys, as "zentaro.doc."
    QString printerInfo;               ///< the printer's name
    QString charsize, ipaddress, port; ///< as the request gives them; not read
    DocumentSettings settings;
    QString credit; ///< the order's credit, when it is printed

private:
    struct ColumnTitles
    {
        QString number, description, price, amount;
    };

    // In printerdriver.cpp.
    bool startMethod(const QString &name);
    QString setting(QLatin1StringView keyWord) const;
    int numberSetting(QLatin1StringView keyWord) const;
    // In itemrows.cpp.
    const ColumnTitles &columnTitles();
    void printPricedItem(const QXmlAttributes &atts, const QString &layout);
    void printItemType(const QXmlAttributes &atts);
    void printTitledRow(const QString &title, const QString &amount);
    // In receipts.cpp.
    void printTotal(const QXmlAttributes &atts);
    void printInvoiceTotals(const QXmlAttributes &atts);

    QString methodName;                     ///< currentMethod, when the method was last needed
    const DocumentMethod *method = nullptr; ///< the one of that name, or null
    std::optional<ColumnTitles> translatedTitles; ///< once they were needed
    std::pair<QString, int> descriptionWidth;     ///< characters, and the docPath that they are of
};
