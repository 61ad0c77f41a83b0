// SPDX-License-Identifier: MIT
#pragma once

#include "render/rowlayout.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
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

/// What the value of a setting has to be.
enum class SettingKind {
    Text,
    Folder,   ///< its name: the bytes that the system has for it
    FileName, ///< likewise, or a part of it
    Number,   ///< a decimal integer, 0 or more
    Switch,   ///< "true", or anything else for off
    LogLevel, ///< the least level that a log keeps
    LogType,  ///< how a log file is opened
};

/// A setting of the suite's configuration, `zentaro.GROUP.WORD`.
struct Setting
{
    QLatin1StringView group; ///< empty for a setting of documents: each type of them has its own
    QLatin1StringView word;
    SettingKind kind;
    QLatin1StringView byDefault; ///< what counts where the configuration gives none
    const char *effect; ///< in a sentence or two, to be translated in the context "Setting"
    int DocumentSettings::*number = nullptr;   ///< the member that it fills, if any
    bool DocumentSettings::*aSwitch = nullptr; ///< likewise
    int most = rowlayout::MaxPaddedWidth;      ///< of a number
    unsigned types = 0xff; ///< of a document's: bit i for the type at i of documentTypes

    /// All settings. Those of documents stand in the order in which a document reads them.
    static consteval auto all();

    Q_DECLARE_TR_FUNCTIONS(Setting)
};

// NOLINTNEXTLINE(readability-function-size): a table
consteval auto Setting::all()
{
    using namespace Qt::StringLiterals;
    using D = DocumentSettings;
    using enum SettingKind;
    constexpr unsigned OnlyFiscal = 1 << 2;
    constexpr unsigned AllButSold = 0x7f;
    constexpr auto shown = [](QLatin1StringView word, bool D::*member, const char *effect) {
        return Setting{""_L1, word, Switch, "false"_L1, effect, nullptr, member};
    };
    return std::to_array<Setting>({
        {"language"_L1, "basedir"_L1, Folder, ""_L1,
         QT_TR_NOOP("The folder of the translations of the printed labels.")},
        {"language"_L1, "file"_L1, FileName, ""_L1,
         QT_TR_NOOP("Which translation: / for that of the system's language, or a name that is put "
                    "right behind the folder's.")},
        {"logger"_L1, "level"_L1, LogLevel, "DEBUG"_L1,
         QT_TR_NOOP("Lines below this level are not logged: DEBUG, INFO, WARNING, ERROR or FATAL, "
                    "in any letter case. Any other text means the default.")},
        {"logger"_L1, "basedir"_L1, Folder, ""_L1,
         QT_TR_NOOP("The folder of the log file; it has to exist.")},
        {"logger"_L1, "filename"_L1, FileName, ""_L1,
         QT_TR_NOOP("The name of the log file in its folder.")},
        {"logger"_L1, "type"_L1, LogType, ""_L1,
         QT_TR_NOOP("APPEND goes on in the log file, OVERWRITE empties it first, in any letter "
                    "case. With any other text nothing is logged.")},
        {"db"_L1, "dbname"_L1, Text, ""_L1, QT_TR_NOOP("The name of the database.")},
        {"db"_L1, "username"_L1, Text, ""_L1, QT_TR_NOOP("The database's user.")},
        {"db"_L1, "password"_L1, Text, ""_L1,
         QT_TR_NOOP("The user's password, which whoever may read this file can read.")},
        {"db"_L1, "hostname"_L1, Text, ""_L1, QT_TR_NOOP("The database's server.")},
        {"bin"_L1, "path"_L1, Folder, ""_L1, QT_TR_NOOP("The folder of the suite's programs.")},

        {""_L1, "quantityFieldWidth"_L1, Number, "0"_L1,
         QT_TR_NOOP("Characters of the quantity column."), &D::quantityFieldWidth},
        {""_L1, "priceFieldWidth"_L1, Number, "0"_L1,
         QT_TR_NOOP("Characters of the unit price column; in a statement of account, of the "
                    "amount."),
         &D::priceFieldWidth},
        {""_L1, "totalPriceFieldWidth"_L1, Number, "0"_L1,
         QT_TR_NOOP("Characters of the column of line totals."), &D::totalPriceFieldWidth},
        {""_L1, "paperWidth"_L1, Number, "32"_L1,
         QT_TR_NOOP("Characters in a line. The description gets what the other columns leave, and "
                    "is cut to it. 0 means the default."),
         &D::paperWidth},
        {""_L1, "paperRows"_L1, Number, "0"_L1,
         QT_TR_NOOP("Nothing on this printer: kept for printers with pages."), &D::paperRows},
        {""_L1, "style"_L1, Text, ""_L1,
         QT_TR_NOOP("Nothing on this printer: kept for printers with styles.")},
        {""_L1, "topMargin"_L1, Number, "0"_L1,
         QT_TR_NOOP("Empty lines of the top margin, which printGeometry switches on."), nullptr,
         nullptr, MaxTopMargin},
        {""_L1, "descriptionWidth"_L1, Number, "32"_L1,
         QT_TR_NOOP("Characters that an item's name keeps in a fiscal receipt by item. 0 means the "
                    "default."),
         nullptr, nullptr, rowlayout::MaxPaddedWidth, OnlyFiscal},
        {""_L1, "copyNumber"_L1, Number, ""_L1,
         QT_TR_NOOP("The copies that the suite's programs print of the document."), nullptr,
         nullptr, rowlayout::MaxPaddedWidth, AllButSold},
        shown("printGeometry"_L1, &D::printGeometry,
              QT_TR_NOOP("Prints the top margin, at the geometry element.")),
        shown("printHeader"_L1, &D::printHeader,
              QT_TR_NOOP("Prints the lines of the headers element; the printer's name below them "
                         "is printed always.")),
        shown("printLogo"_L1, &D::printLogo,
              QT_TR_NOOP("Nothing on this printer, which has no logo.")),
        shown("printCompany"_L1, &D::printCompany, QT_TR_NOOP("Prints the company element.")),
        shown("printDeliveryAddress"_L1, &D::printDeliveryAddress,
              QT_TR_NOOP("Prints the customer's delivery address.")),
        shown("printBillingAddress"_L1, &D::printBillingAddress,
              QT_TR_NOOP("Prints the customer's billing address.")),
        shown("printTelephone"_L1, &D::printTelephone,
              QT_TR_NOOP("Prints the customer's telephone.")),
        shown("printDate"_L1, &D::printDate, QT_TR_NOOP("Prints the order's date.")),
        shown("printTime"_L1, &D::printTime, QT_TR_NOOP("Prints the order's time.")),
        shown("printTable"_L1, &D::printTable, QT_TR_NOOP("Prints the order's table.")),
        shown("printCustomer"_L1, &D::printCustomer,
              QT_TR_NOOP("Prints the customer element. Without it no other setting of the customer "
                         "counts.")),
        shown("printLicenseNumber"_L1, &D::printLicenseNumber,
              QT_TR_NOOP("Prints the customer's license number.")),
        shown("printFiscalCode"_L1, &D::printFiscalCode,
              QT_TR_NOOP("Prints the customer's fiscal code.")),
        shown("printCredit"_L1, &D::printCredit, QT_TR_NOOP("Prints the order's credit.")),
        shown("printWaiter"_L1, &D::printWaiter, QT_TR_NOOP("Prints the order's waiter.")),
        shown("printNote"_L1, &D::printNote, QT_TR_NOOP("Prints the order's note.")),
        shown("openCashDrawer"_L1, &D::openCashDrawer,
              QT_TR_NOOP("Nothing on this printer, which has no drawer.")),
    });
}

inline constexpr auto allSettings = Setting::all();

/// The settings that fill a member, in the order in which they are read.
inline constexpr auto loadedSettings = [] {
    constexpr auto fills = [](const Setting &setting) { return setting.number || setting.aSwitch; };
    std::array<Setting, std::ranges::count_if(allSettings, fills)> loaded{};
    std::ranges::copy_if(allSettings, loaded.begin(), fills);
    return loaded;
}();
