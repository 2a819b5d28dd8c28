// The component's entries in the registry.
#pragma once

#include <windows.h>

namespace velor::com {

// Registers this DLL for all users or, without the right to do so, for the current one. Then writes VELOR.CFG beside
// the DLL if VELOR.DRC lies there and no CFG exists. Where something fails nothing is left: SELFREG_E_CLASS.
HRESULT registerServer();

// Removes every entry, for all users and for the current one. Absent entries are no failure; SELFREG_E_CLASS where one
// may not be removed.
HRESULT unregisterServer();

// The parts of both, below a root: the machine's or the user's "Software\Classes". A Windows error code, 0 for success.
LSTATUS writeEntries(HKEY root);
LSTATUS removeEntries(HKEY root);

}  // namespace velor::com
