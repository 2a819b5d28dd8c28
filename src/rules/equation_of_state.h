// The real gas's equation of state, a two-parameter cubic of the Redlich-Kwong form (Redlich and Kwong, 1949; Soave,
// 1972), independent of any mixture object:
//
//     p = R T / (V - b) - theta / (V (V + b)),     theta = S^2,     b = sum(x b_i),     S = sum(x s_i(T))
//
// Units of this file: pressure MPa, molar volume cm3/mol, energy J/mol (MPa cm3 = J), temperature K. Primes are d/dT.
// Number is a double or the Lanes of several points.
#pragma once

#include <cstddef>
#include <span>

#include "rules/number.h"
#include "runtime/physical_constants.h"

namespace velor {

// The temperature function of the attraction.
enum class Attraction {
    RedlichKwong,  // sqrt(alpha) = (Tc/T)^(1/4)
    Soave,         // sqrt(alpha) = 1 + m (1 - sqrt(T/Tc)), m = 0.480 + 1.574 w - 0.176 w^2; may turn negative, kept so
};

// A component's constants, prepared once: s(T) = first T^(-1/4) or first - second sqrt(T).
struct CubicComponent {
    double b = 0;
    double first = 0;
    double second = 0;
};

// From the critical temperature, the critical pressure in MPa and the acentric factor. Errors: 5 and 11 for
// a temperature or a pressure that is negative or 0.
CubicComponent cubicComponent(Attraction attraction, double Tc, double pc, double acentric);

// A mixture's parameters at a temperature.
template <class Number>
struct BasicCubicParameters {
    double b = 0;
    Number S = 0.0, dS = 0.0, d2S = 0.0;

    Number theta() const { return S * S; }
    Number dTheta() const { return 2.0 * S * dS; }
    Number d2Theta() const { return 2.0 * (dS * dS + S * d2S); }
};
using CubicParameters = BasicCubicParameters<double>;

// Errors: 5, 11 for a temperature that is not positive.
template <class Number>
BasicCubicParameters<Number> mixtureParameters(Attraction attraction, const Number& T, std::span<const double> x,
                                               std::span<const CubicComponent> components) {
    using namespace numbers;
    double b = 0.0, first = 0.0, second = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        b += x[i] * components[i].b;
        first += x[i] * components[i].first;
        second += x[i] * components[i].second;
    }
    const Number root = squareRoot(T);
    if (attraction == Attraction::RedlichKwong) {
        const Number S = divide(first, squareRoot(root));
        return {b, S, divide(-S, 4.0 * T), divide(5.0 * S, 16.0 * T * T)};
    }
    return {b, first - second * root, divide(-second, 2.0 * root), divide(second, 4.0 * T * root)};
}

// F(V) = V^3 - (RT/p) V^2 + (theta/p - b RT/p - b^2) V - theta b/p
template <class Number>
class CubicInVolume {
  public:
    CubicInVolume(const Number& RTp, double b, const Number& thetaP)
        : quadratic_(-RTp), linear_(thetaP - b * RTp - b * b), constant_(-thetaP * b) {}
    Number value(const Number& V) const { return ((V + quadratic_) * V + linear_) * V + constant_; }
    Number slope(const Number& V) const { return (3.0 * V + 2.0 * quadratic_) * V + linear_; }

  private:
    Number quadratic_, linear_, constant_;
};

inline constexpr int kVolumeSteps = 30;
inline constexpr double kVolumeTolerance = 0.01;  // cm3/mol

struct CubicVolume {
    double V = 0;
    int steps = 0;
};

// The vapour's volume, the largest root, and where a vapour does not exist the one root above b; never V <= b. Newton's
// method from RT/p + b, at most 30 steps, until the change falls below 0.01 cm3/mol. Errors: 11 p = 0, 5 p < 0.
CubicVolume gasVolume(double T, double p, const CubicParameters& mixture);

// The same of several points. NaN are those whose descent leaves the bracket, and volumes so small or great that other
// quantities of the state may not exist.
template <class Number>
Number gasVolumes(const Number& T, const Number& p, const BasicCubicParameters<Number>& mixture) {
    using namespace numbers;
    const Number RTp = divide(kGasConstant * T, select(p > 0.0, p, kNan));
    const CubicInVolume<Number> F(RTp, mixture.b, divide(mixture.theta(), p));
    const Number highest = RTp + mixture.b;
    Number V = highest;
    auto isMoving = V <= highest;
    for (int step = 0; step < kVolumeSteps && isAny(isMoving); ++step) {
        const Number slope = F.slope(V);
        const Number next = V - F.value(V) / slope;
        const auto isInside = (slope > 0.0) & (next > mixture.b) & (next <= highest);
        const auto goesOn = isMoving & (absolute(V - next) >= kVolumeTolerance);
        V = select(isMoving, select(isInside, next, kNan), V);
        isMoving = goesOn;
    }
    constexpr double kLeastFree = 1e-6, kMost = 1e60;
    return select((V - mixture.b > kLeastFree * mixture.b) & (V < kMost), V, kNan);
}

// Residual quantities at T, p and the volume that belongs to them.
template <class Number>
struct BasicCubicState {
    Number enthalpy = 0.0;       // H^R(T, p), J/mol
    Number entropy = 0.0;        // S^R(T, p), J/(mol K)
    Number lnPhi = 0.0;          // logarithm of the fugacity coefficient
    Number heatCapacityV = 0.0;  // Cv^R, J/(mol K)
    Number dpdT = 0.0;           // MPa/K
    Number dpdV = 0.0;           // MPa mol/cm3
};
using CubicState = BasicCubicState<double>;

// ln(1 + b/V)/b
template <class Number>
Number attractionIntegral(double b, const Number& V) {
    using namespace numbers;
    return divide(logarithmOfOnePlus(divide(b, V)), b);
}

// ln(p (V - b)/(RT))
template <class Number>
Number logRepulsion(const Number& T, const Number& p, const Number& V, double b) {
    using namespace numbers;
    return naturalLogarithm(divide(p * (V - b), kGasConstant * T));
}

template <class Number>
Number residualEnthalpy(const Number& T, const Number& p, const Number& V,
                        const BasicCubicParameters<Number>& mixture) {
    return p * V - kGasConstant * T + (T * mixture.dTheta() - mixture.theta()) * attractionIntegral(mixture.b, V);
}

template <class Number>
Number residualEntropy(const Number& T, const Number& p, const Number& V, const BasicCubicParameters<Number>& mixture) {
    return kGasConstant * logRepulsion(T, p, V, mixture.b) + mixture.dTheta() * attractionIntegral(mixture.b, V);
}

template <class Number>
BasicCubicState<Number> residualState(const Number& T, const Number& p, const Number& V,
                                      const BasicCubicParameters<Number>& mixture) {
    using namespace numbers;
    const double b = mixture.b;
    const Number RT = kGasConstant * T, theta = mixture.theta(), dTheta = mixture.dTheta();
    const Number L = attractionIntegral(b, V), logarithm = logRepulsion(T, p, V, b);
    const Number covolume = V * (V + b);
    BasicCubicState<Number> state;
    state.enthalpy = p * V - RT + (T * dTheta - theta) * L;
    state.entropy = kGasConstant * logarithm + dTheta * L;
    state.lnPhi = divide(p * V, RT) - 1.0 - logarithm - divide(theta * L, RT);
    state.heatCapacityV = T * mixture.d2Theta() * L;
    state.dpdT = divide(kGasConstant, V - b) - divide(dTheta, covolume);
    state.dpdV = divide(-RT, (V - b) * (V - b)) + divide(theta * (2.0 * V + b), covolume * covolume);
    return state;
}

// ln(phi) alone.
template <class Number>
Number logFugacityCoefficient(const Number& T, const Number& p, const Number& V,
                              const BasicCubicParameters<Number>& mixture) {
    using namespace numbers;
    const Number RT = kGasConstant * T;
    return divide(p * V, RT) - 1.0 - logRepulsion(T, p, V, mixture.b) -
           divide(mixture.theta() * attractionIntegral(mixture.b, V), RT);
}

}  // namespace velor
