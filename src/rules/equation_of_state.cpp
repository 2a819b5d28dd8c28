#include "rules/equation_of_state.h"

#include <cmath>
#include <cstddef>

#include "runtime/checked.h"
#include "runtime/physical_constants.h"

namespace velor {

namespace {

using checked::divide;
using checked::squareRoot;

// Four decimals, kept, where textbooks have 0.42748 and 0.08664.
constexpr double kOmegaA = 0.4278;
constexpr double kOmegaB = 0.0867;

// Goes on inside (low, high), where F(low) < 0 < F(high), from a point at which Newton's method has failed.
CubicVolume finishInBracket(const CubicInVolume<double>& F, double low, double high, CubicVolume at) {
    while (at.steps < kVolumeSteps) {
        const double value = F.value(at.V), slope = F.slope(at.V);
        (value < 0.0 ? low : high) = at.V;
        double next = at.V - value / slope;
        if (!(slope > 0.0) || !(next > low && next < high)) next = std::sqrt(low * high);
        const double change = std::abs(next - at.V);
        at = {next, at.steps + 1};
        if (change < kVolumeTolerance) break;
    }
    return at;
}

}  // namespace

CubicComponent cubicComponent(Attraction attraction, double Tc, double pc, double acentric) {
    if (Tc == 0.0) checked::raise(RunTimeError::kDivisionByZero);
    const double RTc = kGasConstant * Tc;
    const double c = divide(std::sqrt(kOmegaA) * RTc, squareRoot(pc));
    CubicComponent component{divide(kOmegaB * RTc, pc), 0.0, 0.0};
    if (attraction == Attraction::RedlichKwong) {
        component.first = c * squareRoot(squareRoot(Tc));
    } else {
        const double m = 0.480 + (1.574 - 0.176 * acentric) * acentric;
        component.first = c * (1.0 + m);
        component.second = divide(c * m, squareRoot(Tc));
    }
    return component;
}

CubicVolume gasVolume(double T, double p, const CubicParameters& mixture) {
    if (p < 0.0) checked::raise(RunTimeError::kInvalidCall);
    const double RTp = divide(kGasConstant * T, p);
    const CubicInVolume<double> F(RTp, mixture.b, divide(mixture.theta(), p));
    // The start is an upper bound of every root, and F is convex there: Newton's method descends to the largest root.
    const double highest = RTp + mixture.b;
    CubicVolume at{highest, 0};
    while (at.steps < kVolumeSteps) {
        const double slope = F.slope(at.V);
        const double next = at.V - F.value(at.V) / slope;
        // Where no vapour exists the descent overshoots; only then is the bracket used, which otherwise could end on
        // the liquid's root by rounding.
        if (!(slope > 0.0) || !(next > mixture.b) || next > highest) return finishInBracket(F, mixture.b, highest, at);
        const double change = std::abs(next - at.V);
        at = {next, at.steps + 1};
        if (change < kVolumeTolerance) break;
    }
    return at;
}

}  // namespace velor
