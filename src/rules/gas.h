// Mixing rules of the gas at low pressure. x are mole fractions, M molar masses, one element a component.
#pragma once

#include <span>

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
double gasViscosity(std::span<const double> x, std::span<const double> M, std::span<const double> eta);

// Wassiljewa (1904) with the factor of Mason and Saxena (1958): sum(x_i lambda_i / sum_j(x_j phi_ij)),
// phi_ij = 0.35355 (1 + sqrt(eta_i/eta_j) (Mi/Mj)^(-1/4))^2 / sqrt(1 + Mi/Mj). [W/(m K)] pairs holds n x n factors by
// rows. Errors: 5 a negative viscosity, 9 more than 20 components, 11 a viscosity of 0 or a row without fractions.
double gasConductivity(std::span<const double> x, std::span<const PairFactor> pairs, std::span<const double> eta,
                       std::span<const double> lambda);

// Density of the ideal gas, P M / (R T). [kg/m3] Error 11: T = 0.
double idealGasDensity(double T, double P, double M);

}  // namespace velor
