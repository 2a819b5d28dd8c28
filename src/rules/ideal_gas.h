// Enthalpy and entropy of the ideal gas between two temperatures, by integrating its heat-capacity correlation.
#pragma once

#include <array>
#include <cstddef>

#include "rules/equations.h"

namespace velor {

// The heat capacity as FFce gives it: an equation, held constant outside [Tmin, Tmax] where the range clamps, and
// kNoValue for a type that is none.
struct HeatCapacity {
    Coefficients A{};
    int type = 0;
    bool clamped = false;
    double Tmin = 0, Tmax = 0;

    double workingTemperature(double T) const;
    double operator()(double T) const;  // at T kelvin, J/(mol K); kNoValue after an error in the equation
};

// Integrals from a fixed temperature T0. Exact for polynomials (types 1..5), clamped or not; within 1e-9 for the
// other types, unless their reference temperature cuts the interval (then 1e-6). Errors: 5, 11 for temperatures that
// are not positive.
class HeatCapacityIntegral {
  public:
    HeatCapacityIntegral() = default;
    HeatCapacityIntegral(const HeatCapacity& heatCapacity, double T0);

    double enthalpy(double T) const;             // of Cp dT, J/mol
    double entropy(double T, double lnT) const;  // of Cp/T dT, J/(mol K); lnT is the logarithm of T
    // The same of several points; NaN where a polynomial alone does not tell it.
    template <class Number>
    Number enthalpies(const Number& T) const {
        return exact(T, polynomialEnthalpy(T) - enthalpyAt0_);
    }
    template <class Number>
    Number entropies(const Number& T, const Number& lnT) const {
        return exact(T, polynomialEntropy(T, lnT) - entropyAt0_);
    }

  private:
    template <class Number>
    Number polynomialEnthalpy(const Number& T) const {
        Number sum = byEnthalpy_[5];
        for (std::size_t j = 5; j-- > 0;) sum = sum * T + byEnthalpy_[j];
        return sum * T;
    }
    template <class Number>
    Number polynomialEntropy(const Number& T, const Number& lnT) const {
        Number sum = byEntropy_[5];
        for (std::size_t j = 5; j-- > 1;) sum = sum * T + byEntropy_[j];
        return sum * T + byEntropy_[0] * lnT;
    }
    // Where the polynomial is the whole of it, else NaN.
    template <class Number>
    Number exact(const Number& T, const Number& integral) const {
        using namespace numbers;
        if (!polynomial_) return kNan;
        const auto isHeld = (T < heatCapacity_.Tmin) | (T > heatCapacity_.Tmax);
        return heatCapacity_.clamped ? select(isHeld, kNan, integral) : integral;
    }

    HeatCapacity heatCapacity_;
    bool polynomial_ = false;
    std::array<double, 6> byEnthalpy_{};  // a_j / j
    std::array<double, 6> byEntropy_{};   // a_j / (j - 1), the first one a_1
    double start_ = 0;                    // the working temperature at T0
    double atStart_ = 0;                  // Cp there
    double T0_ = 0, lnT0_ = 0;
    double enthalpyAt0_ = 0, entropyAt0_ = 0;  // of the antiderivatives
};

}  // namespace velor
