// SPDX-License-Identifier: MIT
#pragma once

#include "render/documentsettings.h"
#include "render/rowlayout.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

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
    const char *group; ///< empty for a setting of documents, which the groups of their types have
    const char *word;
    SettingKind kind;
    const char *byDefault; ///< what counts where the configuration gives none
    const char *effect;    ///< in a sentence or two, to be translated in the context "Setting"
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
    using D = DocumentSettings;
    using enum SettingKind;
    constexpr unsigned OnlyFiscal = 1 << 2;
    constexpr unsigned AllButSold = 0x7f;
    constexpr auto shown = [](const char *word, bool D::*member, const char *effect) {
        return Setting{"", word, Switch, "false", effect, nullptr, member};
    };
    return std::to_array<Setting>({
        {"language", "basedir", Folder, "",
         QT_TR_NOOP("The folder of the translations of the printed labels.")},
        {"language", "file", FileName, "",
         QT_TR_NOOP("Which translation: / for that of the system's language, or a name that is put "
                    "right behind the folder's.")},
        {"logger", "level", LogLevel, "DEBUG",
         QT_TR_NOOP("Lines below this level are not logged: DEBUG, INFO, WARNING, ERROR or FATAL, "
                    "in any letter case. Any other text means the default.")},
        {"logger", "basedir", Folder, "",
         QT_TR_NOOP("The folder of the log file; it has to exist.")},
        {"logger", "filename", FileName, "", QT_TR_NOOP("The name of the log file in its folder.")},
        {"logger", "type", LogType, "",
         QT_TR_NOOP("APPEND goes on in the log file, OVERWRITE empties it first, in any letter "
                    "case. With any other text nothing is logged.")},
        {"db", "dbname", Text, "", QT_TR_NOOP("The name of the database.")},
        {"db", "username", Text, "", QT_TR_NOOP("The database's user.")},
        {"db", "password", Text, "",
         QT_TR_NOOP("The user's password, which whoever may read this file can read.")},
        {"db", "hostname", Text, "", QT_TR_NOOP("The database's server.")},
        {"bin", "path", Folder, "", QT_TR_NOOP("The folder of the suite's programs.")},

        {"", "quantityFieldWidth", Number, "0", QT_TR_NOOP("Characters of the quantity column."),
         &D::quantityFieldWidth},
        {"", "priceFieldWidth", Number, "0",
         QT_TR_NOOP("Characters of the unit price column; in a statement of account, of the "
                    "amount."),
         &D::priceFieldWidth},
        {"", "totalPriceFieldWidth", Number, "0",
         QT_TR_NOOP("Characters of the column of line totals."), &D::totalPriceFieldWidth},
        {"", "paperWidth", Number, "32",
         QT_TR_NOOP("Characters in a line. The description gets what the other columns leave, and "
                    "is cut to it. 0 means the default."),
         &D::paperWidth},
        {"", "paperRows", Number, "0",
         QT_TR_NOOP("Nothing on this printer: kept for printers with pages."), &D::paperRows},
        {"", "style", Text, "",
         QT_TR_NOOP("Nothing on this printer: kept for printers with styles.")},
        {"", "topMargin", Number, "0",
         QT_TR_NOOP("Empty lines of the top margin, which printGeometry switches on."), nullptr,
         nullptr, MaxTopMargin},
        {"", "descriptionWidth", Number, "32",
         QT_TR_NOOP("Characters that an item's name keeps in a fiscal receipt by item. 0 means the "
                    "default, a negative number cuts nothing."),
         nullptr, nullptr, rowlayout::MaxPaddedWidth, OnlyFiscal},
        {"", "copyNumber", Number, "",
         QT_TR_NOOP("The copies that the suite's programs print of the document."), nullptr,
         nullptr, rowlayout::MaxPaddedWidth, AllButSold},
        shown("printGeometry", &D::printGeometry,
              QT_TR_NOOP("Prints the top margin, at the geometry element.")),
        shown("printHeader", &D::printHeader,
              QT_TR_NOOP("Prints the lines of the headers element; the printer's name below them "
                         "is printed always.")),
        shown("printLogo", &D::printLogo,
              QT_TR_NOOP("Nothing on this printer, which has no logo.")),
        shown("printCompany", &D::printCompany, QT_TR_NOOP("Prints the company element.")),
        shown("printDeliveryAddress", &D::printDeliveryAddress,
              QT_TR_NOOP("Prints the customer's delivery address.")),
        shown("printBillingAddress", &D::printBillingAddress,
              QT_TR_NOOP("Prints the customer's billing address.")),
        shown("printTelephone", &D::printTelephone, QT_TR_NOOP("Prints the customer's telephone.")),
        shown("printDate", &D::printDate, QT_TR_NOOP("Prints the order's date.")),
        shown("printTime", &D::printTime, QT_TR_NOOP("Prints the order's time.")),
        shown("printTable", &D::printTable, QT_TR_NOOP("Prints the order's table.")),
        shown("printCustomer", &D::printCustomer,
              QT_TR_NOOP("Prints the customer element. Without it no other setting of the customer "
                         "counts.")),
        shown("printLicenseNumber", &D::printLicenseNumber,
              QT_TR_NOOP("Prints the customer's license number.")),
        shown("printFiscalCode", &D::printFiscalCode,
              QT_TR_NOOP("Prints the customer's fiscal code.")),
        shown("printCredit", &D::printCredit, QT_TR_NOOP("Prints the order's credit.")),
        shown("printWaiter", &D::printWaiter, QT_TR_NOOP("Prints the order's waiter.")),
        shown("printNote", &D::printNote, QT_TR_NOOP("Prints the order's note.")),
        shown("openCashDrawer", &D::openCashDrawer,
              QT_TR_NOOP("Nothing on this printer, which has no drawer.")),
    });
}

inline constexpr auto allSettings = Setting::all();

/// A key word of the configuration and the member that it fills.
template <typename T>
struct SettingKey
{
    QLatin1StringView keyWord;
    T DocumentSettings::*member;
};

/// The key words of the settings that fill a member of this type.
template <typename T, T DocumentSettings::*Setting::*Member>
consteval auto keysOf()
{
    constexpr auto Count = std::ranges::count_if(
        allSettings, [](const Setting &setting) { return setting.*Member != nullptr; });
    std::array<SettingKey<T>, Count> keys{};
    auto key = keys.begin();
    for (const Setting &setting : allSettings) {
        if (setting.*Member)
            *key++ = {QLatin1StringView(setting.word), setting.*Member};
    }
    return keys;
}

/// The whole numbers, in the order in which they are read.
inline constexpr auto numberSettings = keysOf<int, &Setting::number>();

/// The switches, in the order in which they are read (not that of the members).
inline constexpr auto switchSettings = keysOf<bool, &Setting::aSwitch>();
