// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

/// The names of the elements that a print request is made of, spelled as the suite sends them.
/// They are compared for every element: views of UTF-16 are what the toolkit compares fastest.
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
