// The value of one property of one component: what every mixture rule gathers.
#pragma once

#include <string_view>

#include "object/state.h"
#include "rules/temperature.h"
#include "velor/properties.h"

namespace velor {

// See Smes::FFce.
double FFce(State& state, const Temperature& T, int i, int k);

std::string_view propertyName(int k);

}  // namespace velor
