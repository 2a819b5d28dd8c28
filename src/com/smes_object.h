// The automation object around a mixture.
#pragma once

#include <windows.h>

namespace velor::com {

// A new object and its first reference, as the interface asked for.
HRESULT createSmes(REFIID interfaceId, void** object);

}  // namespace velor::com
