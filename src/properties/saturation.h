// Bubble and dew point for the methods of this room.
#pragma once

#include <optional>

#include "properties/fractions.h"

namespace velor {

// See Smes::TBV and Smes::TRB; no value after a trapped error.
std::optional<double> TBV(State& state, double P, const Composition& X);
std::optional<double> TRB(State& state, double P, const Composition& Y);

}  // namespace velor
