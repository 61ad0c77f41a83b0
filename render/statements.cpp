// SPDX-License-Identifier: MIT
#include "render/vocabulary.h"

using namespace Qt::StringLiterals;

namespace {

/// The types of movement that the suite sends, named here for the translators.
[[maybe_unused]] constexpr const char *movementTypes[] = {
    QT_TRANSLATE_NOOP("PrinterDriver", "Payment"),
    QT_TRANSLATE_NOOP("PrinterDriver", "Receipt"),
    QT_TRANSLATE_NOOP("PrinterDriver", "Invoice"),
    QT_TRANSLATE_NOOP("PrinterDriver", "Credit note"),
    QT_TRANSLATE_NOOP("PrinterDriver", "Opening balance"),
    QT_TRANSLATE_NOOP("PrinterDriver", "Balance"),
};

} // namespace

void PrinterDriver::printSold(const QString &qName, const QXmlAttributes &atts)
{
    if (printSections(qName, atts) || qName != element::receipe)
        return;
    setBold();
    println(descriptionRow(valueOf(atts, "quantity"_L1), valueOf(atts, "description"_L1), {},
                           valueOf(atts, "amount"_L1), u'.', u"qxdpt"_s));
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
        const QByteArray type = valueOf(atts, "type"_L1).toUtf8();
        println(descriptionRow(valueOf(atts, "date"_L1) + ": "_L1, tr(type.constData()),
                               valueOf(atts, "amount"_L1), {}, u'.', layout));
    }
}
