// Mixing rules of the liquid. x are mole fractions, one element a component in every array. Number is a double or the
// Lanes of several points.
#pragma once

#include <cstddef>
#include <span>

#include "rules/composition.h"
#include "rules/equations.h"
#include "rules/number.h"

namespace velor {

// Pseudocritical temperature by fractions of the critical volume: sum(phi Tc), phi = x Vc / sum(x Vc). [K]
// Error 11: no component has a critical volume.
double volumeMeanTemperature(std::span<const double> x, std::span<const double> Vc, std::span<const double> Tc);

// Molar volume of a pure liquid of molar mass M and density rho: M / rho. [m3/mol] Error 11: no density.
template <class Number>
Number molarVolume(double M, const Number& rho) {
    using namespace numbers;
    return divide(M, rho);
}

// Density by ideal mixing of molar volumes (Amagat, 1880): M / sum(x V), M the mixture's molar mass. [kg/m3] Error 11:
// no component has a volume.
template <class Number>
Number liquidDensity(std::span<const double> x, std::span<const Number> volumes, double M) {
    using namespace numbers;
    return divide(M, moleMean<Number>(x, volumes));
}

// Viscosity by the logarithmic rule on the molar kinematic viscosity q = eta M / rho (Arrhenius, 1887, has it on eta
// alone): ln q = sum(x ln q), in three steps, because the mixture's density is gathered between the last two. First
// ln q of a pure liquid, q in Pa s m3/mol. Errors: 11 no density, 5 q not positive.
template <class Number>
Number logarithmOfMolarViscosity(const Number& eta, double M, const Number& rho) {
    using namespace numbers;
    return naturalLogarithm(divide(eta * M, rho));
}

// Then q of the mixture. [Pa s m3/mol] Error 6: it is too great.
template <class Number>
Number meanMolarViscosity(std::span<const double> x, std::span<const Number> logarithms) {
    using namespace numbers;
    return exponential(moleMean<Number>(x, logarithms));
}

// Last eta = q rho / M. [Pa s] Error 11: no molar mass.
template <class Number>
Number dynamicViscosity(const Number& q, const Number& rho, double M) {
    using namespace numbers;
    return divide(q * rho, M);
}

// Reciprocal-square rule on mass fractions (Vredeveld, 1973): (sum(w / lambda^2))^(-1/2), written with
// M = sum(x M): sqrt(M / sum(x M / lambda^2)). [W/(m K)]
template <class Number>
Number reciprocalSquareConductivity(double M, std::span<const double> x, std::span<const double> molarMasses,
                                    std::span<const Number> lambda) {
    using namespace numbers;
    Number sum = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i)
        if (x[i] > 0.0) sum += divide(x[i] * molarMasses[i], lambda[i] * lambda[i]);
    return squareRoot(divide(M, sum));
}

// Surface tension by the fourth-root rule (Macleod, 1923; Sugden, 1924) with parachors per mass and the vapour's
// density left out: (rho sum(x p))^4. [N/m]
template <class Number>
Number liquidSurfaceTension(std::span<const double> x, std::span<const Number> parachors, const Number& rho) {
    const Number root = moleMean<Number>(x, parachors) * rho;
    return root * root * root * root;
}

// p = sigma^(1/4) / rho of a pure liquid. [(N/m)^(1/4) m3/kg] Errors: 5 a negative tension, 11 no density.
template <class Number>
Number parachor(const Number& sigma, const Number& rho) {
    using namespace numbers;
    using checked::power;
    return divide(power(sigma, 0.25), rho);
}

// Integral of a heat capacity a1 + a2 T + ... of that degree from T0 to T. [J/mol]
template <class Number>
Number polynomialIntegral(int degree, const Coefficients& a, double T0, const Number& T) {
    Number sum = 0.0, power = 1.0;
    double power0 = 1.0;
    for (int j = 1; j <= degree + 1; ++j) {
        power *= T;
        power0 *= T0;
        sum += a[static_cast<std::size_t>(j - 1)] / static_cast<double>(j) * (power - power0);
    }
    return sum;
}

// Integral of the polynomial divided by the temperature from T0 to T. [J/(mol K)] Errors: 11 T0 = 0, 5 T/T0 not
// positive.
template <class Number>
Number polynomialIntegralOverT(int degree, const Coefficients& a, double T0, const Number& T) {
    using namespace numbers;
    Number sum = a[0] * naturalLogarithm(divide(T, T0)), power = 1.0;
    double power0 = 1.0;
    for (int j = 2; j <= degree + 1; ++j) {
        power *= T;
        power0 *= T0;
        sum += a[static_cast<std::size_t>(j - 1)] / static_cast<double>(j - 1) * (power - power0);
    }
    return sum;
}

}  // namespace velor
