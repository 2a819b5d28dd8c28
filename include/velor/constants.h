// The constants of a substance in the record's order (Smes::Bod 1..15): what they are called, and how they are shown.
#pragma once

#include <array>
#include <string_view>

#include "velor/record.h"

namespace velor {

inline constexpr float kNoConstant = -9999;  // in a record: not known
inline constexpr double kNothing = -9999;    // of Smes::Vlastnost: nothing was computed

struct ConstantDescription {
    std::string_view key;
    std::string_view caption;
    std::string_view unit;     // in the record, in the interface and in the display
    std::string_view pattern;  // for display
    float TLatka::*member;
};

inline constexpr std::array<ConstantDescription, 15> kConstantTable{{
    {"Mv", "molární hmotnost", "kg/mol", "0.00000", &TLatka::Mv},
    {"Tkr", "kritická teplota", "K", "#0.00", &TLatka::Tkr},
    {"Pkr", "kritický tlak", "Pa", "#0.0", &TLatka::Pkr},
    {"Vkr", "kritický molární objem", "m³/mol", "0.0000E+00", &TLatka::Vkr},
    {"Acent", "acentrický faktor", "", "#0.000", &TLatka::Acent},
    {"Gyr", "gyrační poloměr", "m", "0.0000E+00", &TLatka::Gyr},
    {"Nlomu", "index lomu", "", "0.00000", &TLatka::Nlomu},
    {"TNlomu", "teplota indexu lomu", "K", "#0.00", &TLatka::TNlomu},
    {"Dipol", "dipólový moment", "D", "#0.000", &TLatka::Dipol},
    {"TDipol", "teplota dipólového momentu", "K", "#0.00", &TLatka::TDipol},
    {"Permit", "relativní permitivita", "", "#0.000", &TLatka::Permit},
    {"TPermit", "teplota permitivity", "K", "#0.00", &TLatka::TPermit},
    {"Htani", "molární teplo tání", "J/mol", "#0.0", &TLatka::Htani},
    {"Ttani", "teplota tání", "K", "#0.00", &TLatka::Ttani},
    {"Tnbv", "normální teplota varu", "K", "#0.00", &TLatka::Tnbv},
}};

}  // namespace velor
