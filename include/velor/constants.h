// The constants of a substance in the record's order (Smes::Bod 1..15): what they are called, and how they are shown.
#pragma once

#include <array>
#include <string_view>

namespace velor {

inline constexpr float kNoConstant = -9999;  // in a record: not known
inline constexpr double kNothing = -9999;    // of Smes::Vlastnost: nothing was computed

struct ConstantDescription {
    std::string_view key;
    std::string_view caption;
    std::string_view unit;         // in the record and in the interface
    std::string_view pattern;      // for display, of the value in the display's unit
    std::string_view displayUnit;  // where the record's own would need too many decimal places
    double displayed = 1;          // one of the record's unit in the display's
};

inline constexpr std::array<ConstantDescription, 15> kConstantTable{{
    {"Mv", "molární hmotnost", "kg/mol", "0.00000", "kg/mol"},
    {"Tkr", "kritická teplota", "K", "#0.00", "K"},
    {"Pkr", "kritický tlak", "Pa", "#0.0", "kPa", 1e-3},
    {"Vkr", "kritický molární objem", "m³/mol", "#0.0", "cm³/mol", 1e6},
    {"Acent", "acentrický faktor", "", "#0.000", ""},
    {"Gyr", "gyrační poloměr", "m", "0.00000", "nm", 1e9},
    {"Nlomu", "index lomu", "", "0.00000", ""},
    {"TNlomu", "teplota indexu lomu", "K", "#0.00", "K"},
    {"Dipol", "dipólový moment", "D", "#0.000", "D"},
    {"TDipol", "teplota dipólového momentu", "K", "#0.00", "K"},
    {"Permit", "relativní permitivita", "", "#0.000", ""},
    {"TPermit", "teplota permitivity", "K", "#0.00", "K"},
    {"Htani", "molární teplo tání", "J/mol", "#0.0", "J/mol"},
    {"Ttani", "teplota tání", "K", "#0.00", "K"},
    {"Tnbv", "normální teplota varu", "K", "#0.00", "K"},
}};

}  // namespace velor
