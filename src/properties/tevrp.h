// The real-gas state solver.
#pragma once

#include <optional>

#include "object/trap.h"
#include "properties/fractions.h"

namespace velor {

// Mode 1 fills the eight members of the state, any other mode the density and the fugacity coefficient only. Returns
// the compressibility factor; no value after a trapped error. See Smes::TEVRP.
std::optional<double> TEVRP(State& state, int mode, HostNumber T, HostNumber P, const Composition& X);

}  // namespace velor
