// The list of the substances in the database, one line each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "object/state.h"

namespace velor {

// The positions of the lines in the order of their first 17 characters; lines equal in these keep their order.
std::vector<std::size_t> sortedOrder(std::uint32_t& randomState, std::span<const std::string> lines);

// See Smes::AkSeznam.
void rebuildSubstanceList(State& state);

// For a dialog, which needs the list alone: where only SEZNAM.DAT may not be written it goes on.
void buildListForDialog(State& state);

}  // namespace velor
