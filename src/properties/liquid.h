// Liquid properties for the methods of other rooms; the records are loaded by whoever is called first.
#pragma once

#include <optional>

#include "properties/fractions.h"

namespace velor {

// Vapour pressure of the ideal solution under the trap of TENS. [Pa]
std::optional<double> TENS(State& state, double T, const Composition& X);

// Molar enthalpy relative to each component's liquid at its normal boiling point. [J/mol]
double HL(State& state, double T, const Composition& X);

}  // namespace velor
