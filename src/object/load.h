// Loading the components' records.
#pragma once

#include <cstdint>
#include <string>

#include "object/state.h"

namespace velor {

// See Smes::Inivlr. Returns the number of components, 0 when one is missing from the database.
std::int16_t loadComponents(State& state);

// The record of loaded component i (1..20) as the database holds it; the loaded one where that cannot be read any more.
TLatka databaseRecord(const State& state, int i);

// Says that the records cannot be loaded, in every mode but 2.
void tellLoadFailure(const State& state);

// The 30 characters of component i's name; an empty text for an empty slot.
std::string componentName(const ComponentSlots& slots, int i);

}  // namespace velor
