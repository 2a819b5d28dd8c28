// The list of the substances in the database, one line each.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "object/state.h"

namespace velor {

// Sorts the lines by their first 17 characters; lines equal in these keep their order.
void sortLines(std::uint32_t& randomState, std::vector<std::string>& lines);

// See Smes::AkSeznam.
void rebuildSubstanceList(State& state);

}  // namespace velor
