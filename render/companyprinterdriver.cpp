// SPDX-License-Identifier: MIT
#include "render/companyprinterdriver.h"

#include "render/vocabulary.h"

#include <QStringBuilder>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// The payments: the attribute that holds one, and the commands around its value.
constexpr QLatin1StringView payments[][3] = {
    {"discountRate"_L1, "="_L1, "*2M\r\n"_L1}, {"cash"_L1, ""_L1, "H1T\r\n"_L1},
    {"creditCard"_L1, ""_L1, "H3T\r\n"_L1},    {"cheque"_L1, ""_L1, "H2T\r\n"_L1},
    {"ticket"_L1, ""_L1, "H5T\r\n"_L1},
};

QString withDecimalComma(QString text) { return text.replace(u'.', u','); }

/// An item's command up to where an adjustment may follow.
QString fiscalItem(const QString &department, const QString &quantity, const QString &description,
                   const QString &price)
{
    // Joined at once: piece by piece it would cost an item a quarter more.
    return u'"' % description % u'"' % quantity % u'*' % withDecimalComma(price) % u'H' % department
           % u'R';
}

} // namespace

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

void CompanyPrinterDriver::endSection() { write(isFiscal() ? u"1T\n"_s : u"J\n"_s); }

void CompanyPrinterDriver::print(unsigned int indent, const QString &text)
{
    const QString word = u"TOTALE"_s;
    rowlayout::pad(line, indent, u' ');
    if (text.size() < word.size() || !QStringView(text).contains(u'O')) // as most
        line += text;
    else // the toolkit's own replacing takes minutes where the word is all there is
        line += text.split(word).join(u"SOMMA"_s);
}

void CompanyPrinterDriver::println(unsigned int indent, const QString &text)
{
    print(indent, text);
    print(0, u"\"@\n"_s); // as a derived device may want it otherwise
    const qsizetype room = qsizetype(getPaperWidth()) - line.size() + CentringSlack;
    if (justify == "center"_L1 && room > 1)
        line.insert(1, QString(room / 2, u' '));
    write(line);
    line = u'"'; // its memory serves the next line
}

// The command lines of the fiscal printer. They go straight to the print file, each with its own
// line end, and nothing in them is translated but the decimal point.

void CompanyPrinterDriver::printRowFiscal(const QString &name, const QXmlAttributes &atts)
{
    if (name != element::totals)
        return;
    for (const auto &[attribute, before, after] : payments) {
        const QString value = withDecimalComma(atts.value(attribute));
        const double amount = QString(value).replace(u',', u'.').toDouble(); // 0 for no number
        if (std::isfinite(amount) && amount != 0)
            write(before % value % after);
    }
}

void CompanyPrinterDriver::printRowFiscal(const QString &department, const QString &quantity,
                                          const QString &description, const QString &price)
{
    write(fiscalItem(department, quantity, description, price) % "\r\n"_L1);
}

void CompanyPrinterDriver::printRowFiscal(const QString &department, const QString &quantity,
                                          const QString &description, const QString &price,
                                          const QString &adjustment)
{
    const auto command = adjustment.startsWith(u'-') ? "*5M"_L1 : "*1M"_L1;
    write(fiscalItem(department, quantity, description, price)
          % withDecimalComma(adjustment % command) % "\r\n"_L1);
}
