// SPDX-License-Identifier: MIT
#include "render/companyprinterdriver.h"

#include "render/rowlayout.h"

using namespace Qt::StringLiterals;

CompanyPrinterDriver::CompanyPrinterDriver(const QString &fileName)
    : PrinterDriver(fileName, false)
    , line(u""_s)
{
}

unsigned int CompanyPrinterDriver::getPaperWidth()
{
    return 32;
}

void CompanyPrinterDriver::setBold() {}

void CompanyPrinterDriver::setCharSize()
{
    justify = u"left"_s;
}

void CompanyPrinterDriver::setCharSize(int)
{
    justify = u"left"_s;
}

void CompanyPrinterDriver::setCenterJustify()
{
    justify = u"center"_s;
}

void CompanyPrinterDriver::fullCut() {}

void CompanyPrinterDriver::generatePulse() {}

void CompanyPrinterDriver::printLogo() {}

bool CompanyPrinterDriver::isFiscal() const
{
    return currentMethod == "printAbstractOrderFiscal"_L1
           || currentMethod == "printFullOrderFiscal"_L1;
}

void CompanyPrinterDriver::write(const QString &text)
{
    if (stream)
        *stream << text;
}

void CompanyPrinterDriver::startSection()
{
    write(u"\n"_s);
    if (isFiscal()) // the line stays as it is, so that it may lack its opening quote
        return;
    write(u"j\n"_s);
    line = u"\""_s;
}

void CompanyPrinterDriver::endSection()
{
    write(isFiscal() ? u"1T\n"_s : u"J\n"_s);
}

void CompanyPrinterDriver::print(unsigned int indent, const QString &text)
{
    QString copy = text;
    copy.replace("TOTALE"_L1, "SOMMA"_L1);
    line += rowlayout::leftJustified({}, indent, u' ') + copy;
}

void CompanyPrinterDriver::println(unsigned int indent, const QString &text)
{
    constexpr int Slack = 7; // counts the frame, and gives half of itself away to the right
    print(indent, text);
    print(0, u"\"@\n"_s);
    const qsizetype room = qsizetype(getPaperWidth()) - line.size() + Slack;
    if (justify == "center"_L1 && room > 1)
        line.insert(1, QString(room / 2, u' '));
    write(line);
    line = u"\""_s;
}

void CompanyPrinterDriver::println(const QString &text)
{
    println(0, text);
}
