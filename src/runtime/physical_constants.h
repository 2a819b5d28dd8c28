// Constants of nature as this system rounds them.
#pragma once

namespace velor {

inline constexpr double kGasConstant = 8.314;   // J/(mol K), three decimals, kept
inline constexpr double kZeroCelsius = 273.15;  // K

}  // namespace velor
