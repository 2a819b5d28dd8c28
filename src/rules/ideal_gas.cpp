#include "rules/ideal_gas.h"

#include <cmath>
#include <cstddef>

#include "runtime/checked.h"

namespace velor {

namespace {

// Gauss-Legendre quadrature with 8 points a panel.
constexpr std::array<double, 4> kNodes{0.1834346424956498, 0.5255324099163290, 0.7966664774136267, 0.9602898564975363};
constexpr std::array<double, 4> kWeights{0.3626837833783620, 0.3137066458778873, 0.2223810344533745,
                                         0.1012285362903763};

template <class Function>
double integrateInPanels(const Function& f, double from, double to, int panels) {
    const double half = (to - from) / (2.0 * panels);
    double sum = 0.0;
    for (int panel = 0; panel < panels; ++panel) {
        const double middle = from + half * (2.0 * panel + 1.0);
        for (std::size_t k = 0; k < kNodes.size(); ++k)
            sum += kWeights[k] * (f(middle - half * kNodes[k]) + f(middle + half * kNodes[k]));
    }
    return sum * half;
}

// Doubles the panels until the result stands still.
template <class Function>
double integrate(const Function& f, double from, double to) {
    constexpr int kMostPanels = 1024;
    constexpr double kTolerance = 1e-11;
    double previous = integrateInPanels(f, from, to, 1);
    for (int panels = 2; panels <= kMostPanels; panels *= 2) {
        const double current = integrateInPanels(f, from, to, panels);
        if (std::abs(current - previous) <= kTolerance * std::abs(current)) return current;
        previous = current;
    }
    return previous;
}

}  // namespace

double HeatCapacity::workingTemperature(double T) const {
    if (!clamped) return T;
    if (T > Tmax) return Tmax;
    return T < Tmin ? Tmin : T;
}

double HeatCapacity::operator()(double T) const {
    if (!isEquationType(type)) return kNoValue;
    try {
        return evaluateEquation(type, A, workingTemperature(T));
    } catch (const RunTimeError&) {
        return kNoValue;
    }
}

// With T' the working temperature of T, the antiderivative is that of the equation at T' plus the part outside the
// range, where Cp(T') is constant: Cp(T') (T - T') and Cp(T') ln(T/T').
HeatCapacityIntegral::HeatCapacityIntegral(const HeatCapacity& heatCapacity, double T0)
    : heatCapacity_(heatCapacity),
      polynomial_(polynomialDegree(heatCapacity.type) > 0),
      start_(heatCapacity.workingTemperature(T0)),
      atStart_(heatCapacity(T0)),
      T0_(T0),
      lnT0_(checked::naturalLogarithm(T0)) {
    if (!polynomial_) return;
    const auto terms = static_cast<std::size_t>(polynomialDegree(heatCapacity.type)) + 1;
    for (std::size_t j = 0; j < terms; ++j) {
        byEnthalpy_[j] = heatCapacity.A[j] / static_cast<double>(j + 1);
        byEntropy_[j] = j == 0 ? heatCapacity.A[j] : heatCapacity.A[j] / static_cast<double>(j);
    }
    enthalpyAt0_ = polynomialEnthalpy(start_) + atStart_ * (T0 - start_);
    const double lnStart = checked::naturalLogarithm(start_);
    entropyAt0_ = polynomialEntropy(start_, lnStart) + atStart_ * (lnT0_ - lnStart);
}

double HeatCapacityIntegral::enthalpy(double T) const {
    const double end = heatCapacity_.workingTemperature(T);
    if (polynomial_ && end == T) return polynomialEnthalpy(T) - enthalpyAt0_;
    const double outside = heatCapacity_(T) * (T - end);
    if (polynomial_) return polynomialEnthalpy(end) + outside - enthalpyAt0_;
    const auto Cp = [&](double t) { return heatCapacity_(t); };
    return integrate(Cp, start_, end) + outside - atStart_ * (T0_ - start_);
}

double HeatCapacityIntegral::entropy(double T, double lnT) const {
    const double end = heatCapacity_.workingTemperature(T);
    if (polynomial_ && end == T) return polynomialEntropy(T, lnT) - entropyAt0_;
    const double lnEnd = checked::naturalLogarithm(end);
    const double outside = heatCapacity_(T) * (lnT - lnEnd);
    if (polynomial_) return polynomialEntropy(end, lnEnd) + outside - entropyAt0_;
    const auto CpOverT = [&](double t) { return heatCapacity_(t) / t; };
    const double lnStart = checked::naturalLogarithm(start_);
    return integrate(CpOverT, start_, end) + outside - atStart_ * (lnT0_ - lnStart);
}

}  // namespace velor
