// Mixing rules of the liquid. x are mole fractions, one element a component in every array.
#pragma once

#include <span>

#include "rules/equations.h"

namespace velor {

// sum(x y), the mole-fraction mean of pure values y.
double moleMean(std::span<const double> x, std::span<const double> y);

// Pseudocritical temperature by fractions of the critical volume: sum(phi Tc), phi = x Vc / sum(x Vc). [K]
// Error 11: no component has a critical volume.
double volumeMeanTemperature(std::span<const double> x, std::span<const double> Vc, std::span<const double> Tc);

// Reciprocal-square rule on mass fractions (Vredeveld, 1973): (sum(w / lambda^2))^(-1/2), written with
// M = sum(x M): sqrt(M / sum(x M / lambda^2)). [W/(m K)]
double reciprocalSquareConductivity(double M, std::span<const double> x, std::span<const double> molarMasses,
                                    std::span<const double> lambda);

// The heat capacities of types 1..5 are polynomials a1 + a2 T + ... of the type's degree.
constexpr bool isPolynomial(int type) { return type >= 1 && type <= 5; }

// Integral of the polynomial from T0 to T. [J/mol]
double polynomialIntegral(int degree, const Coefficients& a, double T0, double T);

// Integral of the polynomial divided by the temperature from T0 to T. [J/(mol K)] Errors: 11 T0 = 0, 5 T/T0 not
// positive.
double polynomialIntegralOverT(int degree, const Coefficients& a, double T0, double T);

}  // namespace velor
