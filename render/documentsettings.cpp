// SPDX-License-Identifier: MIT
#include "render/documentsettings.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto types = std::to_array<DocumentType>({
    {"order"_L1, "zentaro.doc."_L1},
    {"prefiscal"_L1, "zentaro.prefiscaldoc."_L1},
    {"fiscal"_L1, "zentaro.fiscaldoc."_L1},
    {"receipt"_L1, "zentaro.receiptdoc."_L1},
    {"invoice"_L1, "zentaro.invoicedoc."_L1},
    {"delivery"_L1, "zentaro.deliverydoc."_L1},
    {"report"_L1, "zentaro.reportdoc."_L1},
    {"sold"_L1, "zentaro.solddoc."_L1},
});

using S = DocumentSettings;

constexpr std::array numbers = {
    SettingKey<int>{"quantityFieldWidth"_L1, &S::quantityFieldWidth},
    SettingKey<int>{"priceFieldWidth"_L1, &S::priceFieldWidth},
    SettingKey<int>{"totalPriceFieldWidth"_L1, &S::totalPriceFieldWidth},
    SettingKey<int>{"paperWidth"_L1, &S::paperWidth},
    SettingKey<int>{"paperRows"_L1, &S::paperRows},
};

constexpr std::array switches = {
    SettingKey<bool>{"printGeometry"_L1, &S::printGeometry},
    SettingKey<bool>{"printHeader"_L1, &S::printHeader},
    SettingKey<bool>{"printLogo"_L1, &S::printLogo},
    SettingKey<bool>{"printCompany"_L1, &S::printCompany},
    SettingKey<bool>{"printDeliveryAddress"_L1, &S::printDeliveryAddress},
    SettingKey<bool>{"printBillingAddress"_L1, &S::printBillingAddress},
    SettingKey<bool>{"printTelephone"_L1, &S::printTelephone},
    SettingKey<bool>{"printDate"_L1, &S::printDate},
    SettingKey<bool>{"printTime"_L1, &S::printTime},
    SettingKey<bool>{"printTable"_L1, &S::printTable},
    SettingKey<bool>{"printCustomer"_L1, &S::printCustomer},
    SettingKey<bool>{"printLicenseNumber"_L1, &S::printLicenseNumber},
    SettingKey<bool>{"printFiscalCode"_L1, &S::printFiscalCode},
    SettingKey<bool>{"printCredit"_L1, &S::printCredit},
    SettingKey<bool>{"printWaiter"_L1, &S::printWaiter},
    SettingKey<bool>{"printNote"_L1, &S::printNote},
    SettingKey<bool>{"openCashDrawer"_L1, &S::openCashDrawer},
};

} // namespace

std::span<const DocumentType> documentTypes()
{
    return types;
}

std::span<const SettingKey<int>> numberSettings()
{
    return numbers;
}

std::span<const SettingKey<bool>> switchSettings()
{
    return switches;
}
