// SPDX-License-Identifier: MIT
#include "render/vocabulary.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// What a variant does to the item before it: "-" takes something away, "+" adds it, any other
/// quantity stands as it is. Text that is no number counts as 0.
QString variantSign(const QString &quantity)
{
    bool isNumber = false;
    const double value = quantity.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value) || value == 0 || value == -1)
        return u"-"_s;
    return value == 1 ? u"+"_s : quantity;
}

QString variantText(const QXmlAttributes &atts)
{
    return variantSign(atts.value("quantity"_L1)) + u' ' + atts.value("name"_L1);
}

} // namespace

void PrinterDriver::printPartialOrder(const QString &qName, const QXmlAttributes &atts)
{
    if (printSections(qName, atts))
        return;
    const auto printItem = [&](const QString &description) {
        println(descriptionRow(atts.value("number"_L1), description, {}, {}, u'.', u"qd"_s));
    };
    if (qName == element::customer) {
        printCustomerHeader(atts);
    } else if (qName == element::receipe) {
        setCharSize();
        printItem(atts.value("name"_L1));
    } else if (qName == element::otherReceipe) {
        setCharSize(1);
        printItem(atts.value("name"_L1));
    } else if (qName == element::variant) {
        printItem(variantText(atts));
    }
}

void PrinterDriver::printFullOrder(const QString &qName, const QXmlAttributes &atts)
{
    if (printSections(qName, atts))
        return;
    if (qName == element::customer) {
        printCustomerHeader(atts);
    } else if (qName == element::receipe) {
        if (!atts.value("name"_L1).startsWith(u'=')) // such an item is never printed
            printPricedItem(atts, u"qdpt"_s);
    } else if (qName == element::variant) {
        println(descriptionRow(atts.value("number"_L1), variantText(atts), atts.value("price"_L1),
                               atts.value("totalPrice"_L1), u'.', u"qdpt"_s));
    } else if (qName == element::total) {
        println(u""_s);
        setBold();
        printTitledRow(tr("TOTAL"), atts.value("price"_L1));
    }
}
