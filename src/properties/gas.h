// Gas properties for the methods of other rooms; the records are loaded by whoever is called first.
#pragma once

#include <optional>

#include "object/trap.h"
#include "properties/fractions.h"

namespace velor {

// Under their own traps; no value after an error.
std::optional<double> ETAG(State& state, HostNumber T, const Composition& X);
std::optional<double> ALAG(State& state, HostNumber T, const Composition& X);

}  // namespace velor
