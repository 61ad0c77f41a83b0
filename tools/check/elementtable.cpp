// SPDX-License-Identifier: MIT
#include "tools/check/elementtable.h"

#include "render/vocabulary.h"
#include "tools/terminal.h"

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

// In the order of documentMethods.
constexpr std::array summaries{
    QT_TRANSLATE_NOOP(
        "Document",
        "The ticket that carries an order to where it is prepared: quantities and names"),
    QT_TRANSLATE_NOOP("Document", "The pre-bill: items with prices"),
    QT_TRANSLATE_NOOP("Document", "The receipt, one line per item"),
    QT_TRANSLATE_NOOP("Document", "The invoice, one line per item"),
    QT_TRANSLATE_NOOP("Document", "The delivery note: its items are printed as on a ticket"),
    QT_TRANSLATE_NOOP("Document",
                      "The fiscal receipt: a command line per item for the fiscal printer"),
    QT_TRANSLATE_NOOP("Document", "An order in summary: it prints nothing"),
    QT_TRANSLATE_NOOP("Document", "The receipt, one line per type of item"),
    QT_TRANSLATE_NOOP("Document", "The invoice, one line per type of item"),
    QT_TRANSLATE_NOOP("Document", "The fiscal receipt, one command line per type of item"),
    QT_TRANSLATE_NOOP("Document", "The summary of a period"),
    QT_TRANSLATE_NOOP("Document", "The items sold in a period"),
    QT_TRANSLATE_NOOP("Document", "A customer's statement of account"),
};
static_assert(summaries.size() == documentMethods.size());

using S = DocumentSettings;
using A = AttributeUse;
using enum Column;

constexpr A number{"number"_L1, "how many"_L1, Quantity};
constexpr A name{"name"_L1, "what it is"_L1, Description};
constexpr A price{"price"_L1, "the price of one"_L1, Price};
constexpr A totalPrice{"totalPrice"_L1, "the price of all of them"_L1, Total};
constexpr A sign{"quantity"_L1,
                 "-1 or 0 for what is left away, 1 for what is added, or a number"_L1, Sign};
constexpr A amount{"price"_L1, "the amount"_L1, Total};
constexpr A count{"number"_L1, "how many there are"_L1};
constexpr A sum{"total"_L1, "their amount"_L1};
constexpr A firstSerial{"firstserial"_L1, "the number of the first"_L1};
constexpr A lastSerial{"lastserial"_L1, "the number of the last"_L1};
constexpr A department{"department"_L1, "the fiscal printer's department, a number"_L1};
constexpr A fiscalNumber{"number"_L1, "how many: digits with one point at most"_L1};
constexpr A fiscalPrice{"price"_L1, "the price: digits with one point at most"_L1};
constexpr A fiscalName{"name"_L1, "what it is, without double quotes"_L1};
constexpr std::span<const A> none;

constexpr A printers[] = {
    {"name"_L1, "the printer's name"_L1},
    {"charsize"_L1, "the size of its characters, which this printer does not use"_L1, None, nullptr,
     false},
    {"ipaddress"_L1, "its address, which this printer does not use"_L1, None, nullptr, false},
    {"port"_L1, "its port, which this printer does not use"_L1, None, nullptr, false},
};
constexpr A serialNumber[] = {{"serialnumber"_L1, "the document's number"_L1}};
constexpr A orderInfo[] = {
    {"date"_L1, "the date of the order"_L1, None, &S::printDate},
    {"time"_L1, "its time"_L1, None, &S::printTime},
    {"table"_L1, "the table"_L1, None, &S::printTable},
    {"waiter"_L1, "who took it"_L1, None, &S::printWaiter},
    {"note"_L1, "a note on it"_L1, None, &S::printNote},
    {"credit"_L1, "the customer's credit"_L1, None, &S::printCredit},
};
constexpr A customer[] = {
    {"name"_L1, "the customer's name"_L1},
    {"billingaddress"_L1, "the address of the bill, its lines between commas"_L1, None,
     &S::printBillingAddress},
    {"deliveryaddress"_L1, "the address of delivery, its lines between commas"_L1, None,
     &S::printDeliveryAddress},
    {"telephone"_L1, "the telephone number"_L1, None, &S::printTelephone},
    {"licensenumber"_L1, "the tax number"_L1, None, &S::printLicenseNumber},
    {"fiscalcode"_L1, "the fiscal code"_L1, None, &S::printFiscalCode},
};

constexpr A ticketItem[] = {number, name};
constexpr A ticketVariant[] = {number, name, sign};
constexpr A pricedItem[] = {number, name, price, totalPrice};
constexpr A pricedVariant[] = {number, name, sign, price, totalPrice};
constexpr A itemType[] = {number, name, amount};
constexpr A total[] = {amount};
constexpr A notPaid[] = {{"price"_L1, "the amount"_L1}};
constexpr A invoiceTotals[] = {{"taxable"_L1, "the amount that is taxed"_L1, Total},
                               {"taxrate"_L1, "the rate of the tax"_L1, Total},
                               {"tax"_L1, "the tax"_L1, Total},
                               {"total"_L1, "the amount with the tax"_L1, Total}};
constexpr A fiscalItem[] = {department, fiscalNumber, fiscalName, fiscalPrice};
constexpr A fiscalType[] = {department, fiscalName, fiscalPrice};

constexpr A dates[] = {{"begindate"_L1, "when the period began"_L1},
                       {"enddate"_L1, "when it ended"_L1}};
constexpr A prefiscals[] = {count, sum};
constexpr A receipts[] = {
    count,
    firstSerial,
    lastSerial,
    {"notPaid"_L1, "the amount that was not paid"_L1},
    {"cash"_L1, "paid in cash"_L1},
    {"creditCard"_L1, "paid by credit card"_L1},
    {"bancomat"_L1, "paid by debit card"_L1},
    {"other"_L1, "paid in other ways"_L1},
    sum,
};
constexpr A taxRate[] = {{"taxrate"_L1, "the rate, without a sign"_L1, TaxRate},
                         {"taxable"_L1, "the amount that is taxed"_L1, Money},
                         {"tax"_L1, "the tax"_L1, Money},
                         {"amount"_L1, "the amount with the tax"_L1, Money}};
constexpr A invoices[] = {count,
                          firstSerial,
                          lastSerial,
                          {"taxable"_L1, "the amount that is taxed"_L1},
                          {"tax"_L1, "the tax"_L1},
                          sum};
constexpr A cancelled[] = {count, {"totals"_L1, "their amount"_L1}};
constexpr A soldItem[] = {{"quantity"_L1, "how many"_L1, Quantity},
                          {"description"_L1, "what it is"_L1, Description},
                          {"amount"_L1, "the price of all of them"_L1, Total}};
constexpr A statement[] = {{"date"_L1, "when it was"_L1, Date},
                           {"type"_L1, "what it was, in English"_L1, Description},
                           {"amount"_L1, "the amount"_L1, Price}};

constexpr auto change =
    "a change to the item before it: `-` for a quantity of -1 or 0, `+` for 1, else the quantity "
    "itself, and the name"_L1;

constexpr A methodName[] = {{"name"_L1, "the document method"_L1}};

constexpr auto rows = std::to_array<ElementRow>({
    {element::printers, Lists, "nothing; the name is kept for `headers`"_L1, printers},
    {element::geometry, Lists, "as many empty lines as `topMargin` says, 1,000 at most"_L1, none,
     Role::Other, &S::printGeometry, Rest::Nothing, "topMargin"_L1},
    {element::headers, Lists,
     "a line for each attribute, whatever its name, and a rule; then, whatever the setting, the "
     "printer's name centred and a rule. What follows stays centred until an element turns back to "
     "the left"_L1,
     none, Role::Other, &S::printHeader, Rest::InOrder},
    {element::logo, Lists, "nothing on this printer"_L1, none},
    {element::company, Lists, "a centred line for each attribute and a rule"_L1, none, Role::Other,
     &S::printCompany, Rest::InOrder},
    {element::receipt, Lists, "the serial number and a rule"_L1, serialNumber},
    {element::invoice, Lists, "the invoice number and a rule"_L1, serialNumber},
    {element::delivery, Lists, "the delivery number and a rule"_L1, serialNumber},
    {element::orderInfo, Lists,
     "a labelled line for each attribute whose setting is on, and a rule"_L1, orderInfo},
    {element::customer, WithCustomer,
     "nothing at all without `printCustomer`; else a title, the name, a line for each part of the "
     "addresses between commas (up to an empty part), labelled lines and a rule"_L1,
     customer, Role::Other, &S::printCustomer},

    {element::receipe, Tickets, "the item"_L1, ticketItem, Role::Item},
    {element::otherReceipe, Tickets,
     "the item, in another character size where the printer has one"_L1, ticketItem, Role::Item},
    {element::variant, Tickets, change, ticketVariant},
    {element::receipe, Full,
     "the column titles above the first item, and the item; nothing when the name begins with "
     "`=`"_L1,
     pricedItem, Role::Item, nullptr, Rest::Nothing, ""_L1, true},
    {element::receipe, FullReceipt | FullInvoice,
     "the column titles above the first item, and the item"_L1, pricedItem, Role::Item},
    {element::variant, Full, change, pricedVariant},
    {element::receipeType, AbstractReceipt | AbstractInvoice,
     "the column titles above the first line, and the type with its amount"_L1, itemType,
     Role::Item},
    {element::total, Full | Receipts, "an empty line and the total"_L1, total, Role::Total},
    {element::notPaid, FullReceipt, "an empty line and the amount that was not paid"_L1, notPaid},
    {element::notPaid, AbstractReceipt,
     "an empty line and the amount that was not paid, under an Italian title in every language"_L1,
     notPaid},
    {element::totals, Invoices, "an empty line and the four amounts"_L1, invoiceTotals,
     Role::Total},
    {element::receipe, FullFiscal,
     "the item's command; the name is cut to `descriptionWidth` characters, 32 without the "
     "setting"_L1,
     fiscalItem, Role::Item, nullptr, Rest::Nothing, "descriptionWidth"_L1},
    {element::receipeType, AbstractFiscal,
     "the command, with a quantity of 1; the name is not cut"_L1, fiscalType, Role::Item},
    {element::total, Fiscals, "nothing"_L1, none, Role::Other, nullptr, Rest::Ignored},

    {element::date, Report, "the title and the two dates"_L1, dates},
    {element::prefiscalsSummary, Report, "the pre-bills"_L1, prefiscals},
    {element::receiptsSummary, Report,
     "the receipts, their payments, and the titles of the table of tax rates"_L1, receipts},
    {element::taxRateItem, Report, "a row of the table of tax rates"_L1, taxRate},
    {element::invoicesSummary, Report, "the invoices"_L1, invoices},
    {element::cancelledSummary, Report,
     "the cancelled documents. `number` and `totals` have to come first; serial, total and tax "
     "rate of each document follow in this order, whatever the attributes are called"_L1,
     cancelled, Role::Other, nullptr, Rest::Triples},
    {element::receipe, Sold, "the item"_L1, soldItem},
    {element::statementList, Statement, "the column titles"_L1, none},
    {element::statement, Statement,
     "a movement. `type` is an English word, printed in the language of the labels: Payment, "
     "Receipt, Invoice, Credit note, Opening balance, Balance"_L1,
     statement},
});

bool reads(const ElementRow &row, qsizetype method) { return ((row.methods >> method) & 1) != 0; }

} // namespace

int widthOf(Column column, const DocumentSettings &settings)
{
    constexpr int DateWidth = 13; // of 15, which hold a colon and a blank as well
    const std::array widths{-1,
                            settings.quantityFieldWidth,
                            -1,
                            settings.priceFieldWidth,
                            settings.totalPriceFieldWidth,
                            DateWidth,
                            6,
                            10,
                            -1};
    return widths[size_t(column)];
}

const AttributeUse *ElementRow::find(QStringView name) const
{
    const auto found = std::ranges::find_if(
        attributes, [name](const AttributeUse &use) { return use.name == name; });
    return found == attributes.end() ? nullptr : &*found;
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

constinit const ElementRow methodElement{element::method, 0, "opens the document's section"_L1,
                                         methodName};

std::vector<const ElementRow *> rowsOf(qsizetype method)
{
    std::vector<const ElementRow *> result;
    for (const ElementRow &row : rows) {
        if (reads(row, method))
            result.push_back(&row);
    }
    return result;
}

QString elementWith(Role role, qsizetype method)
{
    const auto *const found = std::ranges::find_if(
        rows, [&](const ElementRow &row) { return reads(row, method) && row.role == role; });
    return found == rows.end() ? QString() : found->element.toString();
}

bool isElement(QStringView name)
{
    return std::ranges::find(rows, name, &ElementRow::element) != rows.end();
}

QStringList documentsWith(QStringView element)
{
    QStringList names;
    for (size_t i = 0; i < documentMethods.size(); ++i) {
        if (elementRow(element, qsizetype(i)))
            names.push_back(documentMethods[i].name);
    }
    return names;
}

QString methodNear(QStringView word)
{
    std::array<QString, documentMethods.size()> names;
    std::ranges::transform(documentMethods, names.begin(), &DocumentMethod::name);
    return tools::nearest(word, names);
}

QLatin1StringView summaryOf(qsizetype method)
{
    return QLatin1StringView(summaries.at(size_t(method)));
}

std::span<const ElementRow> elementRows() { return rows; }

QString keyWordOf(bool S::*aSwitch)
{
    const auto *const found = std::ranges::find(loadedSettings, aSwitch, &Setting::aSwitch);
    return aSwitch && found != loadedSettings.end() ? QString(found->word) : QString();
}

Fate fateOf(const ElementRow &row, const QXmlAttributes &atts, int position,
            const DocumentSettings &settings)
{
    const QString name = atts.qName(position);
    const AttributeUse *const use = row.find(name);
    const bool isNamed = use && atts.index(name) == position; // the first where two bear the name
    const bool isInOrder = (row.rest == Rest::InOrder || row.rest == Rest::Triples)
                           && position >= int(row.attributes.size());
    if (!isNamed && !isInOrder)
        return Fate::Unread;
    if (isNamed && !use->isPrinted)
        return Fate::Kept;
    return isOff(settings, row.onlyIf) || (isNamed && isOff(settings, use->onlyIf))
               ? Fate::SwitchedOff
               : Fate::Printed;
}

} // namespace requestcheck
