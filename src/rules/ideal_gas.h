// Enthalpy and entropy of the ideal gas between two temperatures, by integrating its heat-capacity correlation.
#pragma once

#include <array>

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

  private:
    double polynomialEnthalpy(double T) const;
    double polynomialEntropy(double T, double lnT) const;

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
