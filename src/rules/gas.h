// Mixing rules of the gas at low pressure. x are mole fractions, M molar masses, one element a component. Number is a
// double or the Lanes of several points.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "rules/number.h"
#include "runtime/physical_constants.h"

namespace velor {

// Factors of the molar masses in the interaction of a pair (i, j), which depend on the definition of the mixture only.
struct PairFactor {
    double ratioRoot = 0;  // (Mi/Mj)^(-1/4)
    double weight = 0;     // 0.35355 / sqrt(1 + Mi/Mj)
};

// Error 11: a molar mass of 0; 5: a negative one.
PairFactor pairFactor(float Mi, float Mj);

// Herning and Zipperer (1936): sum(x sqrt(M) eta) / sum(x sqrt(M)). [Pa s] Components with x <= 0 are left out.
// Errors: 11 nothing is left, 5 a negative molar mass.
template <class Number>
Number gasViscosity(std::span<const double> x, std::span<const double> M, std::span<const Number> eta) {
    using namespace numbers;
    Number numerator = 0.0;
    double denominator = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (!(x[i] > 0.0)) continue;
        const double weight = x[i] * squareRoot(M[i]);
        numerator += weight * eta[i];
        denominator += weight;
    }
    return divide(numerator, denominator);
}

// Wassiljewa (1904) with the factor of Mason and Saxena (1958): sum(x_i lambda_i / sum_j(x_j phi_ij)),
// phi_ij = 0.35355 (1 + sqrt(eta_i/eta_j) (Mi/Mj)^(-1/4))^2 / sqrt(1 + Mi/Mj). [W/(m K)] pairs holds n x n factors by
// rows. Errors: 5 a negative viscosity, 9 more than 20 components, 11 a viscosity of 0 or a row without fractions.
template <class Number>
Number gasConductivity(std::span<const double> x, std::span<const PairFactor> pairs, std::span<const Number> eta,
                       std::span<const Number> lambda) {
    using namespace numbers;
    constexpr std::size_t kMostComponents = 20;
    const std::size_t n = x.size();
    if (n > kMostComponents) checked::raise(RunTimeError::kSubscript);
    std::array<Number, kMostComponents> root, reciprocalRoot;
    for (std::size_t i = 0; i < n; ++i) {
        root[i] = squareRoot(eta[i]);
        reciprocalRoot[i] = divide(1.0, root[i]);
    }
    Number sum = 0.0;
    for (std::size_t i = 0; i < n; ++i) {
        Number row = x[i];  // j = i, whose factor is 1
        for (std::size_t j = 0; j < n; ++j) {
            if (j == i) continue;
            const PairFactor& pair = pairs[i * n + j];
            const Number term = 1.0 + root[i] * reciprocalRoot[j] * pair.ratioRoot;
            row += x[j] * (pair.weight * term * term);
        }
        sum += divide(x[i] * lambda[i], row);
    }
    return sum;
}

// Density of the ideal gas, P M / (R T). [kg/m3] Error 11: T = 0.
template <class Number>
Number idealGasDensity(const Number& T, const Number& P, double M) {
    using namespace numbers;
    return divide(P * M, kGasConstant * T);
}

}  // namespace velor
