// SPDX-License-Identifier: MIT
#include "tools/check/elementtable.h"

#include "render/vocabulary.h"

#include <algorithm>
#include <array>

namespace requestcheck {

using namespace Qt::StringLiterals;

namespace {

// The methods in the order of documentMethods.
enum Method : quint16 {
    Partial = 1 << 0,
    Full = 1 << 1,
    FullReceipt = 1 << 2,
    FullInvoice = 1 << 3,
    Delivery = 1 << 4,
    FullFiscal = 1 << 5,
    AbstractReceipt = 1 << 7, // the one before it, printAbstractOrder, reads no element
    AbstractInvoice = 1 << 8,
    AbstractFiscal = 1 << 9,
    Report = 1 << 10,
    Sold = 1 << 11,
    Statement = 1 << 12,
};

constexpr quint16 Tickets = Partial | Delivery;
constexpr quint16 Receipts = FullReceipt | AbstractReceipt;
constexpr quint16 Invoices = FullInvoice | AbstractInvoice;
constexpr quint16 Fiscals = FullFiscal | AbstractFiscal;
constexpr quint16 WithCustomer = Tickets | Full | FullReceipt | Invoices;
constexpr quint16 Lists = WithCustomer | Receipts | Report | Sold | Statement;

using S = DocumentSettings;
using Uses = std::span<const AttributeUse>;
using enum Column;

constexpr auto kept(QLatin1StringView name)
{
    return AttributeUse{name, None, nullptr, Need::Kept};
}
constexpr auto checked(QLatin1StringView name)
{
    return AttributeUse{name, None, nullptr, Need::Checked};
}

constexpr std::array printers = {AttributeUse{"name"_L1}, kept("charsize"_L1), kept("ipaddress"_L1),
                                 kept("port"_L1)};
constexpr std::array serialNumber = {AttributeUse{"serialnumber"_L1}};
constexpr std::array orderInfo = {
    AttributeUse{"date"_L1, None, &S::printDate},
    AttributeUse{"time"_L1, None, &S::printTime},
    AttributeUse{"table"_L1, None, &S::printTable},
    AttributeUse{"waiter"_L1, None, &S::printWaiter},
    AttributeUse{"note"_L1, None, &S::printNote},
    AttributeUse{"credit"_L1, None, &S::printCredit},
};
constexpr std::array customer = {
    AttributeUse{"name"_L1},
    AttributeUse{"billingaddress"_L1, None, &S::printBillingAddress},
    AttributeUse{"deliveryaddress"_L1, None, &S::printDeliveryAddress},
    AttributeUse{"telephone"_L1, None, &S::printTelephone},
    AttributeUse{"licensenumber"_L1, None, &S::printLicenseNumber},
    AttributeUse{"fiscalcode"_L1, None, &S::printFiscalCode},
};

constexpr auto number = AttributeUse{"number"_L1, Quantity};
constexpr auto name = AttributeUse{"name"_L1, Description};
constexpr auto price = AttributeUse{"price"_L1, Price};
constexpr auto totalPrice = AttributeUse{"totalPrice"_L1, Total};
constexpr auto sign = AttributeUse{"quantity"_L1, Sign};

constexpr std::array ticketItem = {number, name};
constexpr std::array ticketVariant = {number, name, sign};
constexpr std::array pricedItem = {number, name, price, totalPrice};
constexpr std::array pricedVariant = {number, name, sign, price, totalPrice};
constexpr std::array itemType = {number, name, AttributeUse{"price"_L1, Total}};
constexpr std::array total = {AttributeUse{"price"_L1, Total}};
constexpr std::array notPaid = {AttributeUse{"price"_L1}};
constexpr std::array invoiceTotals = {
    AttributeUse{"taxable"_L1, Total}, AttributeUse{"taxrate"_L1, Total},
    AttributeUse{"tax"_L1, Total}, AttributeUse{"total"_L1, Total}};
constexpr std::array fiscalItem = {checked("department"_L1), checked("number"_L1),
                                   AttributeUse{"name"_L1}, checked("price"_L1)};
constexpr std::array fiscalType = {checked("department"_L1), AttributeUse{"name"_L1},
                                   checked("price"_L1)};

constexpr std::array dates = {AttributeUse{"begindate"_L1}, AttributeUse{"enddate"_L1}};
constexpr std::array prefiscals = {AttributeUse{"number"_L1}, AttributeUse{"total"_L1}};
constexpr std::array receipts = {
    AttributeUse{"number"_L1},   AttributeUse{"firstserial"_L1}, AttributeUse{"lastserial"_L1},
    AttributeUse{"notPaid"_L1},  AttributeUse{"cash"_L1},        AttributeUse{"creditCard"_L1},
    AttributeUse{"bancomat"_L1}, AttributeUse{"other"_L1},       AttributeUse{"total"_L1},
};
constexpr std::array taxRate = {AttributeUse{"taxrate"_L1, TaxRate},
                                AttributeUse{"taxable"_L1, Money}, AttributeUse{"tax"_L1, Money},
                                AttributeUse{"amount"_L1, Money}};
constexpr std::array invoices = {
    AttributeUse{"number"_L1},  AttributeUse{"firstserial"_L1}, AttributeUse{"lastserial"_L1},
    AttributeUse{"taxable"_L1}, AttributeUse{"tax"_L1},         AttributeUse{"total"_L1},
};
constexpr std::array cancelled = {AttributeUse{"number"_L1}, AttributeUse{"totals"_L1}};
constexpr std::array soldItem = {AttributeUse{"quantity"_L1, Quantity},
                                 AttributeUse{"description"_L1, Description},
                                 AttributeUse{"amount"_L1, Total}};
constexpr std::array statement = {AttributeUse{"date"_L1, Date},
                                  AttributeUse{"type"_L1, Description},
                                  AttributeUse{"amount"_L1, DateAmount}};

constexpr std::array rows = {
    ElementRow{element::printers, Lists, printers},
    ElementRow{element::geometry, Lists, Uses(), &S::printGeometry},
    ElementRow{element::headers, Lists, Uses(), &S::printHeader, Rest::InOrder},
    ElementRow{element::logo, Lists, Uses()},
    ElementRow{element::company, Lists, Uses(), &S::printCompany, Rest::InOrder},
    ElementRow{element::receipt, Lists, serialNumber},
    ElementRow{element::invoice, Lists, serialNumber},
    ElementRow{element::delivery, Lists, serialNumber},
    ElementRow{element::orderInfo, Lists, orderInfo},
    ElementRow{element::customer, WithCustomer, customer, &S::printCustomer},

    ElementRow{element::receipe, Tickets, ticketItem},
    ElementRow{element::otherReceipe, Tickets, ticketItem},
    ElementRow{element::variant, Tickets, ticketVariant},
    ElementRow{element::receipe, Full, pricedItem, nullptr, Rest::Nothing, true},
    ElementRow{element::receipe, FullReceipt | FullInvoice, pricedItem},
    ElementRow{element::variant, Full, pricedVariant},
    ElementRow{element::receipeType, AbstractReceipt | AbstractInvoice, itemType},
    ElementRow{element::total, Full | Receipts, total},
    ElementRow{element::notPaid, Receipts, notPaid},
    ElementRow{element::totals, Invoices, invoiceTotals},
    ElementRow{element::receipe, FullFiscal, fiscalItem},
    ElementRow{element::receipeType, AbstractFiscal, fiscalType},
    ElementRow{element::total, Fiscals, Uses(), nullptr, Rest::Ignored},

    ElementRow{element::date, Report, dates},
    ElementRow{element::prefiscalsSummary, Report, prefiscals},
    ElementRow{element::receiptsSummary, Report, receipts},
    ElementRow{element::taxRateItem, Report, taxRate},
    ElementRow{element::invoicesSummary, Report, invoices},
    ElementRow{element::cancelledSummary, Report, cancelled, nullptr, Rest::Triples},
    ElementRow{element::receipe, Sold, soldItem},
    ElementRow{element::statementList, Statement, Uses()},
    ElementRow{element::statement, Statement, statement},
};

bool reads(const ElementRow &row, qsizetype method)
{
    return ((row.methods >> method) & 1) != 0;
}

} // namespace

int widthOf(Column column, const DocumentSettings &settings)
{
    switch (column) {
    case Quantity:
        return settings.quantityFieldWidth;
    case Price:
    case DateAmount:
        return settings.priceFieldWidth;
    case Total:
        return settings.totalPriceFieldWidth;
    case Date:
        return 13; // of 15, which hold a colon and a blank as well
    case TaxRate:
        return 6;
    case Money:
        return 10;
    case None:
    case Description:
    case Sign:
        break;
    }
    return -1;
}

const AttributeUse *ElementRow::find(QStringView name) const
{
    const auto found = std::ranges::find_if(
        attributes, [name](const AttributeUse &use) { return use.name == name; });
    return found == attributes.end() ? nullptr : &*found;
}

bool ElementRow::isHidden(const QXmlAttributes &atts) const
{
    return hidesMarked && valueOf(atts, "name"_L1).startsWith(u'=');
}

bool ElementRow::hasColumns() const
{
    return std::ranges::any_of(attributes,
                               [](const AttributeUse &use) { return use.column != None; });
}

const ElementRow *elementRow(QStringView element, qsizetype method)
{
    const auto *const found = std::ranges::find_if(
        rows, [&](const ElementRow &row) { return reads(row, method) && row.element == element; });
    return found == rows.end() ? nullptr : found;
}

std::vector<QString> elementsOf(qsizetype method)
{
    std::vector<QString> names;
    for (const ElementRow &row : rows) {
        if (reads(row, method))
            names.push_back(row.element.toString());
    }
    return names;
}

bool isKnownElement(QStringView element)
{
    return std::ranges::find(rows, element, &ElementRow::element) != rows.end();
}

std::span<const ElementRow> elementRows()
{
    return rows;
}

Fate fateOf(const ElementRow &row, const QXmlAttributes &atts, int position,
            const DocumentSettings &settings)
{
    const QString name = atts.qName(position);
    const AttributeUse *const use = row.find(name);
    const bool isNamed = use && atts.index(name) == position; // the first where two bear the name
    constexpr int FirstOfTriples = 2;
    const bool isInOrder =
        row.rest == Rest::InOrder || (row.rest == Rest::Triples && position >= FirstOfTriples);
    if (!isNamed && !isInOrder)
        return row.rest == Rest::Ignored ? Fate::Kept : Fate::Unread;
    if (isNamed && use->need == Need::Kept)
        return Fate::Kept;
    const auto isOff = [&](bool S::*aSwitch) { return aSwitch && !(settings.*aSwitch); };
    return isOff(row.onlyIf) || (isNamed && isOff(use->onlyIf)) ? Fate::SwitchedOff : Fate::Printed;
}

} // namespace requestcheck
