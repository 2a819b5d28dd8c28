// The library's version. CMake reads the three numbers from here.
#pragma once

namespace velor {

inline constexpr int kVersionMajor = 0;
inline constexpr int kVersionMinor = 1;
inline constexpr int kVersionRevision = 0;

}  // namespace velor
