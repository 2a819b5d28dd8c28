// Pseudocritical values for the methods of other rooms; the records are loaded by whoever is called first.
#pragma once

#include "properties/fractions.h"
#include "rules/pseudocritical.h"

namespace velor {

// Computes and stores the values as PSEUD does; all 0 where it gives up.
Pseudocritical PSEUD(State& state, const Composition& X);

}  // namespace velor
