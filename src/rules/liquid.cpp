#include "rules/liquid.h"

#include <cstddef>

#include "runtime/checked.h"

namespace velor {

double moleMean(std::span<const double> x, std::span<const double> y) {
    double sum = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) sum += x[i] * y[i];
    return sum;
}

double volumeMeanTemperature(std::span<const double> x, std::span<const double> Vc, std::span<const double> Tc) {
    double volume = 0.0, weighted = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        volume += x[i] * Vc[i];
        weighted += x[i] * Vc[i] * Tc[i];
    }
    return checked::divide(weighted, volume);
}

double reciprocalSquareConductivity(double M, std::span<const double> x, std::span<const double> molarMasses,
                                    std::span<const double> lambda) {
    double sum = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i)
        if (x[i] > 0.0) sum += checked::divide(x[i] * molarMasses[i], lambda[i] * lambda[i]);
    return checked::squareRoot(checked::divide(M, sum));
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
