#include "rules/equation_of_state.h"

#include <cmath>
#include <cstddef>

#include "runtime/checked.h"
#include "runtime/physical_constants.h"

namespace velor {

namespace {

using checked::divide;
using checked::naturalLogarithm;
using checked::squareRoot;

// Four decimals, kept, where textbooks have 0.42748 and 0.08664.
constexpr double kOmegaA = 0.4278;
constexpr double kOmegaB = 0.0867;

// F(V) = V^3 - (RT/p) V^2 + (theta/p - b RT/p - b^2) V - theta b/p
class CubicInVolume {
  public:
    CubicInVolume(double RTp, double b, double thetaP)
        : quadratic_(-RTp), linear_(thetaP - b * RTp - b * b), constant_(-thetaP * b) {}
    double value(double V) const { return ((V + quadratic_) * V + linear_) * V + constant_; }
    double slope(double V) const { return (3.0 * V + 2.0 * quadratic_) * V + linear_; }

  private:
    double quadratic_, linear_, constant_;
};

constexpr int kSteps = 30;
constexpr double kVolumeTolerance = 0.01;  // cm3/mol

// Goes on inside (low, high), where F(low) < 0 < F(high), from a point at which Newton's method has failed.
CubicVolume finishInBracket(const CubicInVolume& F, double low, double high, CubicVolume at) {
    while (at.steps < kSteps) {
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

// ln(1 + b/V)/b
double attractionIntegral(double b, double V) { return divide(std::log1p(divide(b, V)), b); }

// ln(p (V - b)/(RT))
double logRepulsion(double T, double p, double V, double b) {
    return naturalLogarithm(divide(p * (V - b), kGasConstant * T));
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

CubicParameters mixtureParameters(Attraction attraction, double T, std::span<const double> x,
                                  std::span<const CubicComponent> components) {
    double b = 0.0, first = 0.0, second = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        b += x[i] * components[i].b;
        first += x[i] * components[i].first;
        second += x[i] * components[i].second;
    }
    const double root = squareRoot(T);
    if (attraction == Attraction::RedlichKwong) {
        const double S = divide(first, squareRoot(root));
        return {b, S, divide(-S, 4.0 * T), divide(5.0 * S, 16.0 * T * T)};
    }
    return {b, first - second * root, divide(-second, 2.0 * root), divide(second, 4.0 * T * root)};
}

CubicVolume gasVolume(double T, double p, const CubicParameters& mixture) {
    if (p < 0.0) checked::raise(RunTimeError::kInvalidCall);
    const double RTp = divide(kGasConstant * T, p);
    const CubicInVolume F(RTp, mixture.b, divide(mixture.theta(), p));
    // The start is an upper bound of every root, and F is convex there: Newton's method descends to the largest root.
    const double highest = RTp + mixture.b;
    CubicVolume at{highest, 0};
    while (at.steps < kSteps) {
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

CubicState residualState(double T, double p, double V, const CubicParameters& mixture) {
    const double RT = kGasConstant * T, b = mixture.b, theta = mixture.theta(), dTheta = mixture.dTheta();
    const double L = attractionIntegral(b, V), logarithm = logRepulsion(T, p, V, b);
    const double covolume = V * (V + b);
    CubicState state;
    state.enthalpy = p * V - RT + (T * dTheta - theta) * L;
    state.entropy = kGasConstant * logarithm + dTheta * L;
    state.lnPhi = divide(p * V, RT) - 1.0 - logarithm - divide(theta * L, RT);
    state.heatCapacityV = T * mixture.d2Theta() * L;
    state.dpdT = divide(kGasConstant, V - b) - divide(dTheta, covolume);
    state.dpdV = divide(-RT, (V - b) * (V - b)) + divide(theta * (2.0 * V + b), covolume * covolume);
    return state;
}

double logFugacityCoefficient(double T, double p, double V, const CubicParameters& mixture) {
    const double RT = kGasConstant * T;
    return divide(p * V, RT) - 1.0 - logRepulsion(T, p, V, mixture.b) -
           divide(mixture.theta() * attractionIntegral(mixture.b, V), RT);
}

}  // namespace velor
