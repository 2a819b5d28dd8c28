// Loading the components' records.
#pragma once

#include <cstdint>

#include "smes/state.h"

namespace velor {

// See Smes::Inivlr. Returns the number of components, 0 when one is missing from the database.
std::int16_t loadComponents(State& state);

}  // namespace velor
