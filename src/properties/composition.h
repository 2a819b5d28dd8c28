// The mixture's molar mass for the other methods.
#pragma once

#include <optional>

#include "properties/fractions.h"

namespace velor {

// Sum of x M, kg/mol. Errors: 9, 13 those of reading the fractions.
double molarMass(const State& state, const Composition& X);

// The same under the trap of VSM.
std::optional<double> VSM(State& state, const Composition& X);

}  // namespace velor
