// What the forms share: their boxes and lists by index, and their events.
#pragma once

#include <cstddef>
#include <functional>
#include <type_traits>

#include "runtime/checked.h"

namespace velor {

// Error 9: an index outside.
template <class Boxes>
auto& boxAt(Boxes& boxes, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= boxes.size()) checked::raise(RunTimeError::kSubscript);
    return boxes[static_cast<std::size_t>(index)];
}

// Raises an event where somebody listens. The handler is a copy: what it does may set the form's own anew.
template <class... Arguments>
void raiseEvent(const std::function<void(Arguments...)> handler, const std::type_identity_t<Arguments>&... arguments) {
    if (handler) handler(arguments...);
}

}  // namespace velor
