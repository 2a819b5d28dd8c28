// Compiled for processors that have these instructions.
#include <immintrin.h>

#include "table/lanes_run.h"

// Of glibc's vector mathematics, by the names of the vector function ABI.
extern "C" {
__m512d _ZGVeN8v_exp(__m512d);
__m512d _ZGVeN8v_log(__m512d);
}

namespace velor {

namespace {

struct Avx512 {
    using Register [[gnu::vector_size(64)]] = double;
    using Mask [[gnu::vector_size(64)]] = long;

    static Register exponential(Register x) { return _ZGVeN8v_exp(x); }
    static Register logarithm(Register x) { return _ZGVeN8v_log(x); }
    // With all lanes named: the plain one brings the compiler's warnings on its own undefined register.
    static Register squareRoot(Register x) { return _mm512_maskz_sqrt_pd(0xff, x); }
    static bool any(Mask mask) { return _mm512_movepi64_mask(__m512i(mask)) != 0; }
};

}  // namespace

constinit const LaneFunctions kLanesOfAvx512 = laneFunctionsOf<Avx512>();

}  // namespace velor
