// Mixing rules of the liquid. x are mole fractions, one element a component in every array.
#pragma once

#include <span>

#include "rules/equations.h"
#include "runtime/checked.h"

namespace velor {

// Pseudocritical temperature by fractions of the critical volume: sum(phi Tc), phi = x Vc / sum(x Vc). [K]
// Error 11: no component has a critical volume.
double volumeMeanTemperature(std::span<const double> x, std::span<const double> Vc, std::span<const double> Tc);

// Molar volume of a pure liquid of molar mass M and density rho: M / rho. [m3/mol] Error 11: no density.
inline double molarVolume(double M, double rho) { return checked::divide(M, rho); }

// Density by ideal mixing of molar volumes (Amagat, 1880): M / sum(x V), M the mixture's molar mass. [kg/m3] Error 11:
// no component has a volume.
double liquidDensity(std::span<const double> x, std::span<const double> volumes, double M);

// Viscosity by the logarithmic rule on the molar kinematic viscosity q = eta M / rho (Arrhenius, 1887, has it on eta
// alone): ln q = sum(x ln q), in three steps, because the mixture's density is gathered between the last two. First
// ln q of a pure liquid, q in Pa s m3/mol. Errors: 11 no density, 5 q not positive.
double logarithmOfMolarViscosity(double eta, double M, double rho);
// Then q of the mixture. [Pa s m3/mol] Error 6: it is too great.
double meanMolarViscosity(std::span<const double> x, std::span<const double> logarithms);
// Last eta = q rho / M. [Pa s] Error 11: no molar mass.
double dynamicViscosity(double q, double rho, double M);

// Reciprocal-square rule on mass fractions (Vredeveld, 1973): (sum(w / lambda^2))^(-1/2), written with
// M = sum(x M): sqrt(M / sum(x M / lambda^2)). [W/(m K)]
double reciprocalSquareConductivity(double M, std::span<const double> x, std::span<const double> molarMasses,
                                    std::span<const double> lambda);

// Surface tension by the fourth-root rule (Macleod, 1923; Sugden, 1924) with parachors per mass and the vapour's
// density left out: (rho sum(x p))^4. [N/m]
double liquidSurfaceTension(std::span<const double> x, std::span<const double> parachors, double rho);
// p = sigma^(1/4) / rho of a pure liquid. [(N/m)^(1/4) m3/kg] Errors: 5 a negative tension, 11 no density.
double parachor(double sigma, double rho);

// Integral of a heat capacity a1 + a2 T + ... of that degree from T0 to T. [J/mol]
double polynomialIntegral(int degree, const Coefficients& a, double T0, double T);

// Integral of the polynomial divided by the temperature from T0 to T. [J/(mol K)] Errors: 11 T0 = 0, 5 T/T0 not
// positive.
double polynomialIntegralOverT(int degree, const Coefficients& a, double T0, double T);

}  // namespace velor
