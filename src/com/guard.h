// What stands around every entry of the component: the library's floating-point state inside, the host's outside, and
// no C++ exception across the border.
#pragma once

#include <windows.h>

#include <type_traits>

namespace velor::com {

// Runs body(context). An exception becomes a failure code, with the error's source and description as the thread's
// error information: a classic error n is 0x800A0000 + n, so that Basic hosts see n.
HRESULT guardedCall(void (*body)(void*), void* context) noexcept;

template <class Body>
HRESULT guarded(Body&& body) noexcept {
    return guardedCall([](void* context) { (*static_cast<std::remove_reference_t<Body>*>(context))(); }, &body);
}

// For an entry that answers a code of its own.
template <class Body>
HRESULT guardedResult(const Body& body) noexcept {
    HRESULT result = E_UNEXPECTED;
    const HRESULT failure = guarded([&] { result = body(); });
    return FAILED(failure) ? failure : result;
}

}  // namespace velor::com
