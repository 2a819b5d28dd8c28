// The mixture's molar mass for the other methods.
#pragma once

#include <optional>

#include "properties/fractions.h"

namespace velor {

// Sum of x M under the trap of VSM. [kg/mol]
std::optional<double> VSM(State& state, const Composition& X);

}  // namespace velor
