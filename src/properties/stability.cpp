// Which phase of an ideal mixture is stable, by Raoult's law at one temperature and pressure.
#include <cmath>
#include <limits>
#include <optional>

#include "velor/verdict.h"

namespace velor {

namespace {

// An iteration ends within 0.02 K of its solution: of the steepest vapour pressures that is some per cent.
constexpr double kTolerance = 0.03;

const PureProperty& vapourPressure() { return pureProperties()[kTENS - 1]; }

// The pressures at which the mixture boils and condenses, relative to P.
struct Raoult {
    double boiling = 0;     // sum(x Ps) / P: at 1 the liquid begins to boil
    double condensing = 0;  // sum(y P / Ps): at 1 the vapour begins to condense
    bool hasGases = false;  // components above their critical temperatures: no liquid is made of them
};

// Nothing where a vapour pressure is missing. A component above its critical temperature takes part with the value of
// its correlation just below that or, where gases are left out, not at all in what condenses.
std::optional<Raoult> raoultAt(Smes& smes, double T, double P, const Variant& X, bool leavesGasesOut) {
    Raoult sums;
    for (int slot = 1; slot <= smes.Nsloz().toInt16(); ++slot) {
        const double fraction = X.at(slot).toDouble();
        if (!(fraction > 0)) continue;
        const PropertyValue Ps = pureValue(smes, T, slot, vapourPressure());
        if (!Ps.isComputed()) return std::nullopt;
        const bool isGas = T >= smes.Tkri(slot).toDouble();
        sums.hasGases = sums.hasGases || isGas;
        sums.boiling += fraction * Ps.value / P;
        if (isGas && leavesGasesOut) continue;
        sums.condensing += Ps.value > 0 ? fraction * P / Ps.value : std::numeric_limits<double>::infinity();
    }
    return sums;
}

}  // namespace

bool isSaturationPoint(Smes& smes, const MixtureProperty& property, double T, double P, const Variant& X) {
    const auto sums = raoultAt(smes, T, P, X, false);
    if (!sums) return false;
    const bool isBubble = property.outcome == &Smes::lastBubblePoint;
    return std::abs((isBubble ? sums->boiling : sums->condensing) - 1.0) <= kTolerance;
}

bool isMetastableGas(Smes& smes, double T, double P, const Variant& X) {
    const auto sums = raoultAt(smes, T, P, X, true);
    return sums && sums->condensing > 1.0 + kTolerance;
}

StablePhase stablePhase(Smes& smes, double T, double P, const Variant& X) {
    const auto sums = raoultAt(smes, T, P, X, true);
    if (!sums) return StablePhase::Unknown;
    if (sums->condensing <= 1.0) return StablePhase::Gas;
    return sums->boiling < 1.0 && !sums->hasGases ? StablePhase::Liquid : StablePhase::Both;
}

}  // namespace velor
