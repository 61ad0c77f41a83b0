// SPDX-License-Identifier: MIT
#pragma once

#include "tools/knownkeys.h"

#include <QString>

#include <optional>

/// What single values have to be.
namespace configtool {

struct ValueFault
{
    QLatin1StringView code;
    QString text;
};

/// Why the value is not what the setting, at the key `path`, wants; nothing when it is.
std::optional<ValueFault> valueFault(const QString &path, const Setting &setting,
                                     const QString &value);

/// Of a document, in characters; 0 where the configuration gives none.
struct ColumnWidths
{
    int quantity;
    int price;
    int total;
    int paper;
};

/// Why the columns do not fit the paper; empty when they do.
QString columnFault(const ColumnWidths &widths);

/// Whether a folder holds language files that the system's language could choose from.
bool hasTranslations(const QString &folder);

} // namespace configtool
