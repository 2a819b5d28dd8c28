// The ten properties of a pure substance: what they are called and how one is computed.
#pragma once

#include <span>
#include <string_view>

#include "properties/standing.h"
#include "velor/smes.h"

namespace velor {

// Items of Smes::VLRConst behind the six coefficients.
inline constexpr int kTyp = 7, kPriznak = 8, kTmin = 9, kTmax = 10;

inline constexpr int kWater = 1;  // substance 1 of the database is water, by rule
// Where the equation shown is not the one used, it has to be said.
inline constexpr std::string_view kWaterDensityNote =
    "Hustota vody (ROLW) se počítá rovnicí IAPWS pro nasycenou kapalinu, ne uvedeným vztahem.";

struct PureProperty {
    int number;  // as Smes::FFce knows it
    std::string_view code;
    std::string_view caption;
    std::string_view unit;
};

std::span<const PureProperty> pureProperties();

// By its code in any letter case; none where there is no such property.
const PureProperty* findPureProperty(std::string_view code);

// Of the component in the slot, at T kelvin.
PropertyValue pureValue(Smes& smes, double T, int slot, const PureProperty& property);

bool isGiven(const Smes& smes, int slot, int property);

}  // namespace velor
