// SPDX-License-Identifier: MIT
#include "render/companyprinterdriver.h"

#include "render/rowlayout.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView center = u"center";
constexpr QStringView replacedWord = u"TOTALE";
constexpr QStringView replacement = u"SOMMA";

/// Where the word stands next from `at` on, or -1. Most lines do not even hold its first letter,
/// which the toolkit looks for much faster.
qsizetype nextReplacedWord(QStringView text, qsizetype at)
{
    const QChar letter = replacedWord.front();
    for (at = text.indexOf(letter, at); at >= 0; at = text.indexOf(letter, at + 1)) {
        if (text.sliced(at).startsWith(replacedWord))
            break;
    }
    return at;
}

} // namespace

CompanyPrinterDriver::CompanyPrinterDriver(const QString &fileName)
    : PrinterDriver(fileName, false)
    , line(u""_s)
{
}

CompanyPrinterDriver::CompanyPrinterDriver(std::unique_ptr<QFile> printFile)
    : PrinterDriver(std::move(printFile))
    , line(u""_s)
{
}

unsigned int CompanyPrinterDriver::getPaperWidth()
{
    return DevicePaperWidth;
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
    rowlayout::pad(line, indent, u' ');
    qsizetype from = 0; // the toolkit's own replacing takes minutes where the word is all there is
    for (qsizetype at = nextReplacedWord(text, from); at >= 0; at = nextReplacedWord(text, from)) {
        line += QStringView(text).sliced(from, at - from);
        line += replacement;
        from = at + replacedWord.size();
    }
    line += QStringView(text).sliced(from);
}

void CompanyPrinterDriver::println(unsigned int indent, const QString &text)
{
    constexpr int Slack = 7; // counts the frame, and gives half of itself away to the right
    print(indent, text);
    line += u"\"@\n";
    const qsizetype room = qsizetype(getPaperWidth()) - line.size() + Slack;
    if (justify == center && room > 1)
        line.insert(1, QString(room / 2, u' '));
    write(line);
    line = u'"'; // its memory serves the next line
}

void CompanyPrinterDriver::println(const QString &text)
{
    println(0, text);
}
