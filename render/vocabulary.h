// SPDX-License-Identifier: MIT
#pragma once

#include "render/printerdriver.h"

#include <QXmlAttributes>

#include <algorithm>
#include <array>

// The words of a print request: its elements, and the document methods that its `method` element
// chooses from.

/// The names of the elements, spelled as the suite sends them. They are compared for every element:
/// views of UTF-16 are what the toolkit compares fastest.
namespace element {

constexpr QStringView method = u"method";

// The top of a document.
constexpr QStringView printers = u"printers";
constexpr QStringView geometry = u"geometry";
constexpr QStringView headers = u"headers";
constexpr QStringView logo = u"logo";
constexpr QStringView company = u"company";
constexpr QStringView receipt = u"receipt";
constexpr QStringView invoice = u"invoice";
constexpr QStringView delivery = u"delivery";
constexpr QStringView orderInfo = u"orderinfo";
constexpr QStringView customer = u"customer";

// Items and what closes them.
constexpr QStringView receipe = u"receipe";
constexpr QStringView otherReceipe = u"otherreceipe";
constexpr QStringView receipeType = u"receipe_type";
constexpr QStringView variant = u"variant";
constexpr QStringView total = u"total";
constexpr QStringView totals = u"totals";
constexpr QStringView notPaid = u"notPaid";

// The period report and the statement of account.
constexpr QStringView date = u"date";
constexpr QStringView prefiscalsSummary = u"prefiscalssummary";
constexpr QStringView receiptsSummary = u"receiptssummary";
constexpr QStringView taxRateItem = u"taxrate_item";
constexpr QStringView invoicesSummary = u"invoicessummary";
constexpr QStringView cancelledSummary = u"cancelledsummary";
constexpr QStringView statementList = u"statement_list";
constexpr QStringView statement = u"statement";

} // namespace element

/// The attributes without the declarations of name spaces: what a document takes by position.
QXmlAttributes ownAttributes(const QXmlAttributes &atts);

/// What choosing a document method does to the driver's duplicate flag.
enum class DuplicateFlag { Unchanged, Set, Cleared };

/// One document method: what the `method` element calls it, the document type whose settings it
/// prints with, and the operation that prints its elements.
struct DocumentMethod
{
    QLatin1StringView name;
    QLatin1StringView settingsType;
    DuplicateFlag duplicate;
    void (PrinterDriver::*print)(const QString &, const QXmlAttributes &);
};

/// All methods, in the order of the driver's operations.
inline constexpr auto documentMethods = [] {
    using namespace Qt::StringLiterals;
    using D = PrinterDriver;
    using enum DuplicateFlag;
    return std::to_array<DocumentMethod>({
        {"printPartialOrder"_L1, "order"_L1, Unchanged, &D::printPartialOrder},
        {"printFullOrder"_L1, "prefiscal"_L1, Unchanged, &D::printFullOrder},
        {"printFullOrderReceipt"_L1, "receipt"_L1, Unchanged, &D::printFullOrderReceipt},
        {"printFullOrderInvoice"_L1, "invoice"_L1, Set, &D::printFullOrderInvoice},
        {"printFullOrderDelivery"_L1, "delivery"_L1, Unchanged, &D::printFullOrderDelivery},
        {"printFullOrderFiscal"_L1, "fiscal"_L1, Cleared, &D::printFullOrderFiscal},
        {"printAbstractOrder"_L1, "order"_L1, Unchanged, &D::printAbstractOrder},
        {"printAbstractOrderReceipt"_L1, "receipt"_L1, Unchanged, &D::printAbstractOrderReceipt},
        {"printAbstractOrderInvoice"_L1, "invoice"_L1, Set, &D::printAbstractOrderInvoice},
        {"printAbstractOrderFiscal"_L1, "fiscal"_L1, Cleared, &D::printAbstractOrderFiscal},
        {"printReport"_L1, "report"_L1, Unchanged, &D::printReport},
        {"printSold"_L1, "sold"_L1, Unchanged, &D::printSold},
        // A statement of account has no settings of its own: it shares the report's.
        {"printStatementOfAccount"_L1, "report"_L1, Unchanged, &D::printStatementOfAccount},
    });
}();

/// The method of exactly this name, or null.
inline const DocumentMethod *documentMethod(QStringView name)
{
    const auto *const found = std::ranges::find_if(
        documentMethods, [name](const DocumentMethod &method) { return method.name == name; });
    return found == documentMethods.end() ? nullptr : found;
}
