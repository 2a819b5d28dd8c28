// What the pressure adds to viscosity and conductivity of the gas: the published rules.
#include "rules/dense_gas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace velor::test {
namespace {

constexpr Pseudocritical kCarbonDioxide{304.2, 7.38e6, 9.4e-5, 0.274, 0.044};

// The pressure to the power 2/3, with the atmosphere that the rules have.
double atmospheres(const Pseudocritical& m) { return std::pow(m.pressure / 101324, 2.0 / 3.0); }

TEST(ExcessConductivity, hasThreeBranchesAndThenAConstant) {
    const Pseudocritical& m = kCarbonDioxide;
    // Gamma Zc^5, which turns the excess conductivity into a function of the reduced density alone.
    const double group = std::pow(m.temperature, 1.0 / 6.0) * std::sqrt(1000 * m.molarMass) / atmospheres(m) *
                         std::pow(m.compressibility, 5);
    const double next = std::numeric_limits<double>::epsilon();
    const std::pair<double, double> cases[] = {{0.0, 0.0},
                                               {0.5, 0.0002697 * (std::exp(0.2675) - 1)},
                                               {0.5 * (1 + next), 0.0002524 * (std::exp(0.335) - 1)},
                                               {2.0, 0.0002524 * (std::exp(1.34) - 1)},
                                               {2.0 * (1 + next), 5.733e-05 * (std::exp(2.31) + 2.016)},
                                               {2.8, 5.733e-05 * (std::exp(3.234) + 2.016)},
                                               {1000.0, 5.733e-05 * (std::exp(3.234) + 2.016)}};
    for (const auto& [r, expected] : cases) EXPECT_NEAR(excessConductivity(m, r) * group, expected, 1e-17) << r;
}

// Dean and Stiel (1965) in the units of their paper: centipoise, atmospheres, grams.
TEST(ExcessViscosity, isThePublishedFunctionOfTheReducedDensity) {
    const Pseudocritical& m = kCarbonDioxide;
    const double xi = std::pow(m.temperature, 1.0 / 6.0) / (std::sqrt(1000 * m.molarMass) * atmospheres(m));
    for (const double r : {0.0, 0.1, 0.5, 1.0, 2.0, 3.0}) {
        const double centipoise = 10.8e-5 * (std::exp(1.439 * r) - std::exp(-1.111 * std::pow(r, 1.858))) / xi;
        EXPECT_NEAR(excessViscosity(m, r), centipoise / 1000, 1e-13 * centipoise) << r;
    }
}

}  // namespace
}  // namespace velor::test
