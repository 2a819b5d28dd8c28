// The law of Raoult (1887) at one temperature and pressure: what of an ideal mixture boils or condenses there.
#pragma once

#include <limits>
#include <optional>

#include "velor/verdict.h"

namespace velor {

// Vapour pressures relative to P, summed over the components that are there.
struct Raoult {
    double boiling = 0;     // sum(x Ps) / P: at 1 the liquid begins to boil
    double condensing = 0;  // sum(y P / Ps): at 1 the vapour begins to condense
    bool hasGases = false;  // components above their critical temperatures: no liquid is made of them

    // An iteration ends within 0.02 K of its solution: of the steepest vapour pressures that is some per cent.
    static constexpr double kTolerance = 0.03;
    static constexpr double kMostOfGas = 1.003;  // T and P are given: only rounding is allowed for
    bool isMetastableGas() const { return condensing > kMostOfGas; }
};

// Of n components (from 0). fractionAt(i) may be 0; vapourPressure(i) gives a PropertyValue in pascals; isGas(i)
// whether i is above its critical temperature. Such a one takes part with the value of its correlation just below that
// or, where gases are left out, not at all. Nothing where a vapour pressure that counts is missing.
template <class FractionAt, class VapourPressure, class IsGas>
std::optional<Raoult> raoultSums(std::size_t n, double P, bool leavesGasesOut, const FractionAt& fractionAt,
                                 const VapourPressure& vapourPressure, const IsGas& isGas) {
    Raoult sums;
    for (std::size_t i = 0; i < n; ++i) {
        const double fraction = fractionAt(i);
        if (!(fraction > 0)) continue;
        sums.hasGases = sums.hasGases || isGas(i);
        if (isGas(i) && leavesGasesOut) continue;
        const PropertyValue Ps = vapourPressure(i);
        if (!Ps.isComputed()) return std::nullopt;
        sums.boiling += fraction * Ps.value / P;
        sums.condensing += Ps.value > 0 ? fraction * P / Ps.value : std::numeric_limits<double>::infinity();
    }
    return sums;
}

}  // namespace velor
