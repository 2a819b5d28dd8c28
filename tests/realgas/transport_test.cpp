// Viscosity and conductivity of the gas under pressure: the excess rules by themselves, and the methods around them.
#include <limits>

#include "rules/dense_gas.h"
#include "support/sample_test.h"

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

struct TransportTest : SampleTest {
    const Variant X = Fractions({0.4, 0.6});

    static std::vector<TLatka> substances() {
        std::vector<TLatka> records{sampleSubstance(1, "A"), sampleSubstance(2, "B")};
        records[0].Mv = 0.03F, records[1].Tkr = 420.0F, records[1].Vkr = 1.5e-4F;
        for (TLatka& record : records) {
            record.Korelace[0] = {{1e-6F, 3e-8F}, 1, 1, 200, 400};
            record.Korelace[2] = {{1e-3F, 8e-5F}, 1, 1, 200, 400};
        }
        return records;
    }
    TransportTest() : SampleTest(substances()) {
        smes.DefSlozky(List({1, 2}));
        smes.Inivlr();
    }
    static double value(const Variant& result) { return result.toDouble(); }
};

TEST_F(TransportTest, isTheLowPressureValueAndTheExcess) {
    for (const double T : {300.0, 480.0})
        for (const double P : {1e-6, 1e5, 3e6, 2e7, 1e8}) {
            const double eta = value(smes.RETAG(T, P, X)), lambda = value(smes.RALAG(T, P, X));
            const Pseudocritical m{value(smes.TKRITsm()), value(smes.PKRITsm()), value(smes.VKRITsm()),
                                   value(smes.ZKRITsm()), value(smes.MSm())};
            const double density = value(smes.RROGW(T, P, X)), r = density * m.volume / m.molarMass;
            EXPECT_DOUBLE_EQ(eta, value(smes.ETAG(T, X)) + excessViscosity(m, r)) << T << ' ' << P;
            EXPECT_DOUBLE_EQ(lambda, value(smes.ALAG(T, X)) + excessConductivity(m, r)) << T << ' ' << P;
            EXPECT_DOUBLE_EQ(value(smes.PrG(T, P, X)), value(smes.RCPGW(T, P, X)) * eta / lambda);
            EXPECT_DOUBLE_EQ(value(smes.ReG(T, P, X, 2.5, "0,1")), density * 2.5 * 0.1 / eta);
        }
    EXPECT_TRUE(messages.empty());
}

TEST_F(TransportTest, normalisesForThePseudocriticalValuesOnly) {
    const Variant half = Fractions({0.2, 0.3});
    EXPECT_FALSE(smes.RETAG(300, 1e5, half).isEmpty());
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].text, "Směs složení není definováno nebo normalizováno!");
    EXPECT_DOUBLE_EQ(value(smes.TKRITsm()), 0.4 * 500 + 0.6 * 420);
    EXPECT_EQ(smes.Slozeni(1), Variant(0.2));  // the low-pressure value is mixed last, of the fractions as passed
}

TEST_F(TransportTest, isEmptyWhereNoStateIsSolved) {
    EXPECT_TRUE(smes.RETAG(300, 0, X).isEmpty() && smes.RALAG(300, 0, X).isEmpty());
    EXPECT_TRUE(smes.PrG(300, -1e5, X).isEmpty() && smes.ReG(300, -1e5, X, 1, 1).isEmpty());
    EXPECT_EQ(errorNumber([&] { smes.ReG(300, 1e5, X, "a", 1); }), RunTimeError::kTypeMismatch);
    for (const int i : {1, 2}) smes.Bod(i, 4, 0);  // no critical volume
    EXPECT_TRUE(smes.RETAG(300, 1e5, X).isEmpty() && smes.RALAG(300, 1e5, X).isEmpty());
    EXPECT_TRUE(messages.empty());
}

}  // namespace
}  // namespace velor::test
