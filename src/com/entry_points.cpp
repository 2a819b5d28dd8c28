// The four functions that the DLL exports; the module definition file names them.
#include <olectl.h>
#include <windows.h>

#include "com/class_factory.h"
#include "com/guard.h"
#include "com/module.h"
#include "com/registration.h"

using namespace velor::com;

STDAPI DllGetClassObject(REFCLSID classId, REFIID interfaceId, void** object) {
    return guardedResult([&] { return getClassObject(classId, interfaceId, object); });
}

STDAPI DllCanUnloadNow() {
    return guardedResult([] { return moduleIsIdle() ? S_OK : S_FALSE; });
}

STDAPI DllRegisterServer() {
    return guardedResult([] { return registerServer(); });
}

STDAPI DllUnregisterServer() {
    return guardedResult([] { return unregisterServer(); });
}
