// What the whole DLL shares: how much of it is in use, and its type information.
#pragma once

#include <windows.h>

namespace velor::com {

// An object or a lock that keeps the DLL loaded.
class ModuleReference {
  public:
    ModuleReference();
    ~ModuleReference();
    ModuleReference(const ModuleReference&) = delete;
    ModuleReference& operator=(const ModuleReference&) = delete;
};

void lockModule();
// False where there is no lock to take back.
bool unlockModule();

// Whether no object and no lock is left. If so, lets go of the type information.
bool moduleIsIdle();

// Type information of ISmes, from the type library in the DLL's resources, with a reference for the caller. Error 48:
// the library cannot be loaded.
ITypeInfo* typeInformation();

}  // namespace velor::com
