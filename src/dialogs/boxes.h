// The boxes and lists of a form by their index.
#pragma once

#include <cstddef>

#include "runtime/checked.h"

namespace velor {

// Error 9: an index outside.
template <class Boxes>
auto& boxAt(Boxes& boxes, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= boxes.size()) checked::raise(RunTimeError::kSubscript);
    return boxes[static_cast<std::size_t>(index)];
}

}  // namespace velor
