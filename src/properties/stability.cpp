#include "properties/stability.h"

#include <algorithm>
#include <cmath>

#include "velor/verdict.h"

namespace velor {

namespace {

std::optional<Raoult> raoultAt(Smes& smes, double T, double P, const Variant& X, bool leavesGasesOut) {
    const auto slot = [](std::size_t i) { return static_cast<int>(i) + 1; };
    return raoultSums(
        static_cast<std::size_t>(std::max<std::int16_t>(smes.Nsloz().toInt16(), 0)), P, leavesGasesOut,
        [&](std::size_t i) { return X.at(slot(i)).toDouble(); },
        [&](std::size_t i) { return pureValue(smes, T, slot(i), pureProperties()[kTENS - 1]); },
        [&](std::size_t i) { return T >= smes.Tkri(slot(i)).toDouble(); });
}

}  // namespace

bool isSaturationPoint(Smes& smes, const MixtureProperty& property, double T, double P, const Variant& X) {
    const auto sums = raoultAt(smes, T, P, X, false);
    if (!sums) return false;
    const bool isBubble = property.outcome == &Smes::lastBubblePoint;
    return std::abs((isBubble ? sums->boiling : sums->condensing) - 1.0) <= Raoult::kTolerance;
}

bool isMetastableGas(Smes& smes, double T, double P, const Variant& X) {
    const auto sums = raoultAt(smes, T, P, X, true);
    return sums && sums->isMetastableGas();
}

StablePhase stablePhase(Smes& smes, double T, double P, const Variant& X) {
    const auto sums = raoultAt(smes, T, P, X, true);
    if (!sums) return StablePhase::Unknown;
    if (sums->condensing <= 1.0) return StablePhase::Gas;
    return sums->boiling < 1.0 && !sums->hasGases ? StablePhase::Liquid : StablePhase::Both;
}

}  // namespace velor
