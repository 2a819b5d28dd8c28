// How a form raises its events.
#pragma once

#include <functional>
#include <type_traits>

namespace velor {

// To whoever listens. The handler is a copy: what it does may set the form's own anew.
template <class... Arguments>
void raiseEvent(const std::function<void(Arguments...)> handler, const std::type_identity_t<Arguments>&... arguments) {
    if (handler) handler(arguments...);
}

}  // namespace velor
