// Where this library was loaded from.
#pragma once

#include <string>

namespace velor::platform {

// Full path of the DLL, or of the program when the library is linked statically.
std::string libraryFile();

}  // namespace velor::platform
