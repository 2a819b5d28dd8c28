// What the values on the command line are called in the help; from the name follows how one is completed.
#pragma once

#include <array>

namespace velor::app {

inline constexpr const char* kSubstanceValue = "LÁTKA";
inline constexpr const char* kSubstancesValue = "LÁTKY";
inline constexpr const char* kPropertyValue = "VLASTNOST";
inline constexpr const char* kOrderValue = "POŘADÍ";
inline constexpr const char* kFileValue = "SOUBOR";
inline constexpr const char* kPictureValue = "OBRÁZEK";

inline constexpr const char* kOrderByName = "nazvu";
inline constexpr const char* kOrderByNumber = "cisel";

}  // namespace velor::app
