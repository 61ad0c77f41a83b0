// SPDX-License-Identifier: MIT
#include "render/documentmethod.h"

#include "render/printerdriver.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using D = PrinterDriver;
using enum DuplicateFlag;

constexpr auto methods = std::to_array<DocumentMethod>({
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

} // namespace

std::span<const DocumentMethod> documentMethods()
{
    return methods;
}

const DocumentMethod *documentMethod(QStringView name)
{
    const auto *const found = std::ranges::find_if(
        methods, [name](const DocumentMethod &method) { return method.name == name; });
    return found == methods.end() ? nullptr : found;
}
