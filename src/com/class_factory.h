// Creates Smes objects for COM.
#pragma once

#include <windows.h>

namespace velor::com {

// The factory of the class, or CLASS_E_CLASSNOTAVAILABLE for another one.
HRESULT getClassObject(REFCLSID classId, REFIID interfaceId, void** object);

}  // namespace velor::com
