// The list of the substances in the database, one line each.
#pragma once

#include <string>
#include <vector>

#include "smes/state.h"

namespace velor {

// A uniform number of the classic generator in [0, 1); the state is the object's own and is never seeded.
double nextRandom(std::uint32_t& randomState);

// A whole number from lower to upper, both included.
int randomBetween(std::uint32_t& randomState, int lower, int upper);

// Sorts lines first..last (counted from 1) by their first 17 characters, with random pivots.
void quickSort(std::uint32_t& randomState, std::vector<std::string>& lines, int first, int last);

// See Smes::AkSeznam.
void rebuildSubstanceList(State& state);

}  // namespace velor
