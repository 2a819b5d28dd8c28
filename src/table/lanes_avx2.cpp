// Compiled for processors that have these instructions.
#include <immintrin.h>

#include "table/lanes_run.h"

// Of glibc's vector mathematics, by the names of the vector function ABI.
extern "C" {
__m256d _ZGVdN4v_exp(__m256d);
__m256d _ZGVdN4v_log(__m256d);
}

namespace velor {

namespace {

struct Avx2 {
    using Register [[gnu::vector_size(32)]] = double;
    using Mask [[gnu::vector_size(32)]] = long;

    static Register exponential(Register x) { return _ZGVdN4v_exp(x); }
    static Register logarithm(Register x) { return _ZGVdN4v_log(x); }
    static Register squareRoot(Register x) { return _mm256_sqrt_pd(x); }
    static bool any(Mask mask) { return _mm256_movemask_pd(__m256d(mask)) != 0; }
};

}  // namespace

constinit const LaneFunctions kLanesOfAvx2 = laneFunctionsOf<Avx2>();

}  // namespace velor
