// Where this library was loaded from.
#pragma once

#include <windows.h>

#include <string>

namespace velor::platform {

// The DLL, or the program when the library is linked statically: where its resources are.
HINSTANCE libraryModule();

// Full path of the DLL, or of the program when the library is linked statically.
std::string libraryFile();

}  // namespace velor::platform
