// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

/// The characters in a line of the receipt printer.
constexpr int DevicePaperWidth = 32;
/// A margin of more empty lines is a typing error, and would only cost paper.
constexpr int MaxTopMargin = 1'000;

/// The settings of one type of document. Each bears the name of the key word that fills it.
struct DocumentSettings
{
    int quantityFieldWidth = 0;   ///< columns
    int priceFieldWidth = 0;      ///< columns
    int totalPriceFieldWidth = 0; ///< columns
    int paperWidth = 0;           ///< characters in a line
    int paperRows = 0;            ///< lines on a page; no document reads it

    QString style; ///< free text; no document reads it

    bool printGeometry = false;
    bool printHeader = false;
    bool printLogo = false;
    bool printCompany = false;
    bool printDeliveryAddress = false;
    bool printTelephone = false;
    bool printDate = false;
    bool printTime = false;
    bool printTable = false;
    bool printCustomer = false;
    bool printBillingAddress = false;
    bool printLicenseNumber = false;
    bool printFiscalCode = false;
    bool printCredit = false;
    bool printWaiter = false;
    bool printNote = false;
    bool openCashDrawer = false;
};

/// A type of document, as the method table names it, and the prefix of its configuration keys.
struct DocumentType
{
    QLatin1StringView name;
    QLatin1StringView keyPrefix;
};

/// The eight types.
inline constexpr auto documentTypes = [] {
    using namespace Qt::StringLiterals;
    return std::to_array<DocumentType>({
        {"order"_L1, "zentaro.doc."_L1},
        {"prefiscal"_L1, "zentaro.prefiscaldoc."_L1},
        {"fiscal"_L1, "zentaro.fiscaldoc."_L1},
        {"receipt"_L1, "zentaro.receiptdoc."_L1},
        {"invoice"_L1, "zentaro.invoicedoc."_L1},
        {"delivery"_L1, "zentaro.deliverydoc."_L1},
        {"report"_L1, "zentaro.reportdoc."_L1},
        {"sold"_L1, "zentaro.solddoc."_L1},
    });
}();
