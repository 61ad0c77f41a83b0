// SPDX-License-Identifier: MIT
#include "tools/config/valuecheck.h"

#include "text/filename.h"
#include "tools/nearest.h"
#include "tools/terminal.h"

#include <QDir>

#include <algorithm>
#include <array>

namespace configtool {

using namespace Qt::StringLiterals;
using tools::excerpt;

namespace {

std::optional<ValueFault> numberFault(const QString &path, int most, const QString &value)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (!isNumber)
        return ValueFault{"not-a-number"_L1, excerpt(path) + " wants a whole number, not "_L1
                                                 + excerpt(value) + ": 0 is read"_L1};
    if (number < 0 || number > most)
        return ValueFault{"out-of-range"_L1, excerpt(path) + " is "_L1 + QString::number(number)
                                                 + ", which is not between 0 and "_L1
                                                 + QString::number(most)};
    return std::nullopt;
}

/// A value that must be one of some words, in any letter case.
std::optional<ValueFault> wordFault(const QString &path, const QString &value,
                                    const std::vector<QString> &words, const QString &otherwise)
{
    const auto isValue = [&value](const QString &known) {
        return known.compare(value, Qt::CaseInsensitive) == 0;
    };
    if (std::ranges::any_of(words, isValue))
        return std::nullopt;
    return ValueFault{"unknown-word"_L1, excerpt(path) + " is "_L1 + excerpt(value) + ": "_L1
                                             + otherwise + tools::suggestion(value, words)};
}

} // namespace

std::optional<ValueFault> valueFault(const QString &path, const Setting &setting,
                                     const QString &value)
{
    switch (setting.kind) {
    case SettingKind::Number:
        return numberFault(path, setting.most, value);
    case SettingKind::Switch:
        if (value == "true"_L1 || value == "false"_L1)
            return std::nullopt;
        return ValueFault{"not-a-switch"_L1, excerpt(path) + " is "_L1 + excerpt(value)
                                                 + R"(, neither "true" nor "false": it is off)"_L1};
    case SettingKind::LogLevel:
        return wordFault(path, value, {u"DEBUG"_s, u"INFO"_s, u"WARNING"_s, u"ERROR"_s, u"FATAL"_s},
                         u"every line is logged"_s);
    case SettingKind::LogType:
        return wordFault(path, value, {u"APPEND"_s, u"OVERWRITE"_s}, u"nothing is logged"_s);
    case SettingKind::Text:
    case SettingKind::Path:
        break;
    }
    return std::nullopt;
}

QString columnFault(const ColumnWidths &widths)
{
    constexpr qint64 Separators = 3; // " x "
    const qint64 paper = widths.paper != 0 ? widths.paper : DevicePaperWidth;
    const qint64 columns =
        qint64(widths.quantity) + widths.price + qint64(widths.total) + Separators;
    if (columns < paper)
        return {};
    return "quantity, price and total take "_L1 + QString::number(columns)
           + " characters with what stands between them, the paper has "_L1 + QString::number(paper)
           + ": nothing is left for the description"_L1;
}

bool hasTranslations(const QString &folder)
{
    const QDir dir(text::nameOfFile(text::bytesOf(folder)));
    return !dir.entryList({u"zentaro_*"_s}, QDir::Files).isEmpty();
}

} // namespace configtool
