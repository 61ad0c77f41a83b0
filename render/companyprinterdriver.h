// SPDX-License-Identifier: MIT
#pragma once

#include "render/printerdriver.h"

/// The receipt printer: every line goes out framed by a double quote and `"@`, a section is opened
/// by an empty line and `j` and closed by `J`. A fiscal document is opened by an empty line and
/// closed by `1T`; its items are command lines of the fiscal printer. The paper is 32 characters
/// wide. Without a stream, when the print file could not be opened, nothing is written.
class CompanyPrinterDriver : public PrinterDriver
{
public:
    /// What a centred line's room is counted as more than the paper's: it makes up for the frame of
    /// four characters, and the rest of it moves the text to the right.
    static constexpr int CentringSlack = 7;

    using PrinterDriver::PrinterDriver;
    /// Opens the print file and truncates it.
    explicit CompanyPrinterDriver(const QString &fileName)
        : PrinterDriver(fileName, false)
    {
    }

    unsigned int getPaperWidth() override { return DevicePaperWidth; }
    void setBold() override {}
    /// Back to the left; this printer has one character size.
    void setCharSize() override { justify = QStringLiteral("left"); }
    void setCharSize(int) override { setCharSize(); }
    void setCenterJustify() override { justify = QStringLiteral("center"); }
    void fullCut() override {}
    void generatePulse() override {}
    void startSection() override;
    void endSection() override;
    /// Adds to the line, in which every "TOTALE" becomes "SOMMA"; nothing is written yet.
    void print(unsigned int indent, const QString &text) override;
    /// Ends the line and writes it, centred when it is to be and is not too long to be. What was
    /// printed and never ended is never written.
    void println(unsigned int indent, const QString &text) override;
    void println(const QString &text) override { println(0, text); }
    void printRowFiscal(const QString &name, const QXmlAttributes &atts) override;
    void printRowFiscal(const QString &department, const QString &quantity,
                        const QString &description, const QString &price) override;
    void printLogo() override {}
    /// An item with an adjustment of its price; one that begins with "-" lowers it.
    virtual void printRowFiscal(const QString &department, const QString &quantity,
                                const QString &description, const QString &price,
                                const QString &adjustment);

protected:
    QString line = QStringLiteral(""); ///< being built, with its opening quote

private:
    bool isFiscal() const;
    void write(const QString &text);
};
