// What the choice of a mixture's components hands over.
#pragma once

#include <array>
#include <cstdint>

namespace velor {

// Element 0 holds the count, the elements behind it the substance numbers.
using CislaLatek = std::array<std::int16_t, 21>;

}  // namespace velor
