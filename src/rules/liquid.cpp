#include "rules/liquid.h"

#include <cstddef>

#include "rules/composition.h"
#include "runtime/checked.h"

namespace velor {

double volumeMeanTemperature(std::span<const double> x, std::span<const double> Vc, std::span<const double> Tc) {
    double volume = 0.0, weighted = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        volume += x[i] * Vc[i];
        weighted += x[i] * Vc[i] * Tc[i];
    }
    return checked::divide(weighted, volume);
}

double liquidDensity(std::span<const double> x, std::span<const double> volumes, double M) {
    return checked::divide(M, moleMean(x, volumes));
}

double logarithmOfMolarViscosity(double eta, double M, double rho) {
    return checked::naturalLogarithm(checked::divide(eta * M, rho));
}

double meanMolarViscosity(std::span<const double> x, std::span<const double> logarithms) {
    return checked::exponential(moleMean(x, logarithms));
}

double dynamicViscosity(double q, double rho, double M) { return checked::divide(q * rho, M); }

double reciprocalSquareConductivity(double M, std::span<const double> x, std::span<const double> molarMasses,
                                    std::span<const double> lambda) {
    double sum = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i)
        if (x[i] > 0.0) sum += checked::divide(x[i] * molarMasses[i], lambda[i] * lambda[i]);
    return checked::squareRoot(checked::divide(M, sum));
}

double parachor(double sigma, double rho) { return checked::divide(checked::power(sigma, 0.25), rho); }

double liquidSurfaceTension(std::span<const double> x, std::span<const double> parachors, double rho) {
    const double root = moleMean(x, parachors) * rho;
    return root * root * root * root;
}

double polynomialIntegral(int degree, const Coefficients& a, double T0, double T) {
    double sum = 0.0, power = 1.0, power0 = 1.0;
    for (int j = 1; j <= degree + 1; ++j) {
        power *= T;
        power0 *= T0;
        sum += a[static_cast<std::size_t>(j - 1)] / static_cast<double>(j) * (power - power0);
    }
    return sum;
}

double polynomialIntegralOverT(int degree, const Coefficients& a, double T0, double T) {
    double sum = a[0] * checked::naturalLogarithm(checked::divide(T, T0));
    double power = 1.0, power0 = 1.0;
    for (int j = 2; j <= degree + 1; ++j) {
        power *= T;
        power0 *= T0;
        sum += a[static_cast<std::size_t>(j - 1)] / static_cast<double>(j - 1) * (power - power0);
    }
    return sum;
}

}  // namespace velor
