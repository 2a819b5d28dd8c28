// Real-gas values for the methods of other rooms; the records are loaded by whoever is called first.
#pragma once

#include <optional>

#include "object/trap.h"
#include "properties/fractions.h"

namespace velor {

// Solves the state at (T, P, X) and returns one member of it; no value where it stayed empty.
std::optional<double> realGasMember(State& state, std::optional<double> RealGasState::*member, HostNumber T,
                                    HostNumber P, const Composition& X);

// The same per kilogram. Error 11: no molar mass.
std::optional<double> realGasMemberPerMass(State& state, std::optional<double> RealGasState::*member, HostNumber T,
                                           HostNumber P, const Composition& X);

// Mass density under the trap of RROGW, kg/m3; no value where the state could not be solved.
std::optional<double> RROGW(State& state, HostNumber T, HostNumber P, const Composition& X);

}  // namespace velor
