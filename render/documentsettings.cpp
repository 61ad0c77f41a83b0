// SPDX-License-Identifier: MIT
#include "render/documentsettings.h"

#include "render/settings.h"

#include <algorithm>
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

constexpr auto numbers = keysOf<int, &Setting::number>();
constexpr auto switches = keysOf<bool, &Setting::aSwitch>();

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
