// The temperature typed for a value of a component.
#pragma once

#include <optional>
#include <string_view>

namespace velor {

inline constexpr std::string_view kTemperatureComplaint = "Teplota: zadejte kladné číslo v kelvinech.";

// Kelvin; nothing where the text is no positive number.
std::optional<double> typedTemperature(std::string_view text);

}  // namespace velor
