#include "table/lanes.h"

namespace velor {

const LaneFunctions* laneFunctions() {
#ifdef VELOR_HAS_LANES
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq")) return &kLanesOfAvx512;
    if (__builtin_cpu_supports("avx2")) return &kLanesOfAvx2;
    return &kLanesOfSse2;
#else
    return nullptr;
#endif
}

}  // namespace velor
