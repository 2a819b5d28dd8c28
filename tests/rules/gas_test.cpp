// The rules of the gas at low pressure.
#include "rules/gas.h"

#include <gtest/gtest.h>

namespace velor::test {
namespace {

TEST(GasRules, meetPublishedFigures) {
    // Methane and n-butane at 293 K, 1 bar: 93.35 micropoise measured by Kestin and Yata (1968); the rule is good to 1
    // %.
    const double x[] = {0.697, 0.303}, M[] = {0.016043, 0.058124}, eta[] = {109.4e-7, 72.74e-7};
    EXPECT_NEAR(gasViscosity<double>(x, M, eta), 93.35e-7, 1.0e-7);
    // Benzene and argon at 373.8 K, 1 bar: 0.0192 W/(m K) measured by Bennett and Vines (1955); Poling, Prausnitz and
    // O'Connell (2001) compute 0.0184 by the rule.
    const float benzene = 0.078114F, argon = 0.039948F;
    const PairFactor pairs[] = {pairFactor(benzene, benzene), pairFactor(benzene, argon), pairFactor(argon, benzene),
                                pairFactor(argon, argon)};
    const double y[] = {0.25, 0.75}, viscosities[] = {92.5e-7, 271e-7}, conductivities[] = {0.0166, 0.0214};
    EXPECT_NEAR(gasConductivity<double>(y, pairs, viscosities, conductivities), 0.0184, 5e-5);
}

}  // namespace
}  // namespace velor::test
