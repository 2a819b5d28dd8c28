// Compiled for processors that have these instructions.
#include <immintrin.h>

#include "table/lanes_run.h"

// Of glibc's vector mathematics, by the names of the vector function ABI.
extern "C" {
__m128d _ZGVbN2v_exp(__m128d);
__m128d _ZGVbN2v_log(__m128d);
}

namespace velor {

namespace {

struct Sse2 {
    using Register [[gnu::vector_size(16)]] = double;
    using Mask [[gnu::vector_size(16)]] = long;

    static Register exponential(Register x) { return _ZGVbN2v_exp(x); }
    static Register logarithm(Register x) { return _ZGVbN2v_log(x); }
    static Register squareRoot(Register x) { return _mm_sqrt_pd(x); }
    static bool any(Mask mask) { return _mm_movemask_pd(__m128d(mask)) != 0; }
};

}  // namespace

constinit const LaneFunctions kLanesOfSse2 = laneFunctionsOf<Sse2>();

}  // namespace velor
