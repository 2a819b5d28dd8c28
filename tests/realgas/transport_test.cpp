// Viscosity and conductivity of the gas under pressure: the excess rules by themselves, and the methods around them.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "realgas/dense_gas_rules.h"
#include "support/sample_mixture.h"

namespace velor {
namespace {

using test::errorNumber;
using test::SampleMixture;
using test::sampleSubstance;

constexpr Pseudocritical kCarbonDioxide{304.2, 7.38e6, 9.4e-5, 0.274, 0.044};

// The pressure to the power 2/3, with the atmosphere that the rules have.
double atmospheres(const Pseudocritical& m) { return std::pow(m.pressure / 101324, 2.0 / 3.0); }

// Gamma Zc^5, which turns the excess conductivity into a function of the reduced density alone.
double conductivityGroup(const Pseudocritical& m) {
    return std::pow(m.temperature, 1.0 / 6.0) * std::sqrt(1000 * m.molarMass) / atmospheres(m) *
           std::pow(m.compressibility, 5);
}

TEST(ExcessConductivity, hasThreeBranchesAndThenAConstant) {
    struct Case {
        double r, expected;
    };
    const double next = std::numeric_limits<double>::epsilon();
    const Case cases[] = {
        {0.0, 0.0},
        {0.25, 0.0002697 * (std::exp(0.13375) - 1)},
        {0.5, 0.0002697 * (std::exp(0.2675) - 1)},
        {0.5 * (1 + next), 0.0002524 * (std::exp(0.335) - 1)},
        {1.0, 0.0002524 * (std::exp(0.67) - 1)},
        {2.0, 0.0002524 * (std::exp(1.34) - 1)},
        {2.0 * (1 + next), 5.733e-05 * (std::exp(2.31) + 2.016)},
        {2.4, 5.733e-05 * (std::exp(2.772) + 2.016)},
        {2.8, 5.733e-05 * (std::exp(3.234) + 2.016)},
        {3.5, 5.733e-05 * (std::exp(3.234) + 2.016)},
        {1000.0, 5.733e-05 * (std::exp(3.234) + 2.016)},
    };
    for (const Case& c : cases)
        EXPECT_NEAR(excessConductivity(kCarbonDioxide, c.r) * conductivityGroup(kCarbonDioxide), c.expected, 1e-17)
            << c.r;
    // Continuous at 2.8 and only there: 1.155 times 2.8 is the constant's exponent.
    const double below = excessConductivity(kCarbonDioxide, 2.8 * (1 - next));
    EXPECT_NEAR(below, excessConductivity(kCarbonDioxide, 2.8), 1e-12 * below);
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

TEST(ExcessRules, raiseTheClassicErrors) {
    struct Case {
        double Pseudocritical::*value;
        double is;
        int viscosity, conductivity;
    };
    const Case cases[] = {
        {&Pseudocritical::temperature, 0, 11, 11},    {&Pseudocritical::temperature, -1, 5, 5},
        {&Pseudocritical::pressure, 0, 11, 11},       {&Pseudocritical::pressure, -1, 5, 5},
        {&Pseudocritical::molarMass, 0, 11, 11},      {&Pseudocritical::molarMass, -1, 5, 5},
        {&Pseudocritical::compressibility, 0, 0, 11},
    };
    for (const Case& c : cases) {
        Pseudocritical mixture = kCarbonDioxide;
        mixture.*c.value = c.is;
        EXPECT_EQ(errorNumber([&] { excessViscosity(mixture, 1.0); }), c.viscosity) << c.is;
        EXPECT_EQ(errorNumber([&] { excessConductivity(mixture, 1.0); }), c.conductivity) << c.is;
    }
    EXPECT_EQ(errorNumber([&] { excessConductivity(kCarbonDioxide, 1e5); }), 0);
    EXPECT_EQ(errorNumber([&] { excessViscosity(kCarbonDioxide, 1e5); }), RunTimeError::kOverflow);
}

// ---- The methods ---------------------------------------------------------------------------------------------------

struct TransportTest : ::testing::Test {
    static std::vector<TLatka> substances() {
        std::vector<TLatka> records{sampleSubstance(1, "A"), sampleSubstance(2, "B")};
        records[0].Mv = 0.03F, records[1].Tkr = 420.0F, records[1].Vkr = 1.5e-4F;
        for (TLatka& record : records) {
            record.Korelace[0] = {{1e-6F, 3e-8F}, 1, 1, 200, 400};
            record.Korelace[2] = {{1e-3F, 8e-5F}, 1, 1, 200, 400};
        }
        return records;
    }
    SampleMixture mixture{substances()};
    Smes& smes = mixture.smes;
    std::vector<Message>& messages = mixture.boxes.messages;
    const Variant X = Fractions({0.4, 0.6});

    TransportTest() {
        smes.DefSlozky(List({1, 2}));
        smes.Inivlr();
    }
    double value(const Variant& result) { return result.toDouble(); }
};

TEST_F(TransportTest, isTheLowPressureValueAndTheExcess) {
    for (const double T : {300.0, 480.0})
        for (const double P : {1e-6, 1e5, 3e6, 2e7, 1e8}) {
            const double eta = value(smes.RETAG(T, P, X)), lambda = value(smes.RALAG(T, P, X));
            const Pseudocritical m{value(smes.TKRITsm()), value(smes.PKRITsm()), value(smes.VKRITsm()),
                                   value(smes.ZKRITsm()), value(smes.MSm())};
            EXPECT_DOUBLE_EQ(m.temperature, 0.4 * 500 + 0.6 * 420);
            const double r = value(smes.RROGW(T, P, X)) * m.volume / m.molarMass;
            EXPECT_DOUBLE_EQ(eta, value(smes.ETAG(T, X)) + excessViscosity(m, r)) << T << ' ' << P;
            EXPECT_DOUBLE_EQ(lambda, value(smes.ALAG(T, X)) + excessConductivity(m, r)) << T << ' ' << P;
            if (P < 1) {
                EXPECT_NEAR(eta, value(smes.ETAG(T, X)), 1e-15);
                EXPECT_NEAR(lambda, value(smes.ALAG(T, X)), 1e-12);
            }
            const double Pr = value(smes.RCPGW(T, P, X)) * eta / lambda;
            EXPECT_DOUBLE_EQ(value(smes.PrG(T, P, X)), Pr);
            const double Re = value(smes.RROGW(T, P, X)) * 2.5 * 0.1 / eta;
            EXPECT_DOUBLE_EQ(value(smes.ReG(T, P, X, 2.5, 0.1)), Re);
            EXPECT_DOUBLE_EQ(value(smes.ReG(T, P, X, "0,1", 2.5)), Re);
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
    smes.ChyboveHlasky(2);
    smes.RETAG(300, 1e5, half);
    EXPECT_DOUBLE_EQ(value(smes.TKRITsm()), 0.2 * 500 + 0.3 * 420);
    EXPECT_EQ(messages.size(), 1U);
}

TEST_F(TransportTest, reportsWhatCannotBeComputed) {
    struct Case {
        Variant T, P, X;
        std::string temperature, pressure;
    };
    const Case cases[] = {
        {300, 0, X, "300.0", "0"},        {-1, 101325.4, X, "-1.0", "101325"},
        {"x", 1e5, X, "x", "100000"},     {300, "y", X, "300.0", "y"},
        {300, 1e5, 5, "300.0", "100000"}, {300, 1e5, Fractions({1.0}), "300.0", "100000"},
    };
    const auto check = [&](const Case& c) {
        smes.ChyboveHlasky(0);
        EXPECT_TRUE(smes.RETAG(c.T, c.P, c.X).isEmpty()) << c.temperature << c.pressure;
        EXPECT_TRUE(smes.RALAG(c.T, c.P, c.X).isEmpty()) << c.temperature << c.pressure;
        smes.ChyboveHlasky(-1);
        const std::pair<std::function<void()>, std::string> raising[] = {
            {[&] { smes.RETAG(c.T, c.P, c.X); }, "VELOR - RETAG; T(K)= " + c.temperature},
            {[&] { smes.RALAG(c.T, c.P, c.X); }, "VELOR - RALAG; T(K)= " + c.temperature + " ,P(Pa)= " + c.pressure},
        };
        for (const auto& [body, source] : raising) {
            try {
                body();
                ADD_FAILURE() << "nothing raised: " << source;
            } catch (const RunTimeError& error) {
                EXPECT_EQ(error.number(), RunTimeError::kRaisedToHost);
                EXPECT_EQ(error.source(), source);
            }
        }
    };
    for (const Case& c : cases) check(c);
    for (const int i : {1, 2}) smes.Bod(i, 4, 0);  // no critical volume
    check({300, 1e5, X, "300.0", "100000"});
    EXPECT_TRUE(messages.empty());
}

TEST_F(TransportTest, groupsAreEmptyWhereNoStateIsSolved) {
    for (const double P : {0.0, -1e5}) {
        EXPECT_TRUE(smes.PrG(300, P, X).isEmpty());
        EXPECT_TRUE(smes.ReG(300, P, X, 1, 1).isEmpty());
    }
    EXPECT_EQ(errorNumber([&] { smes.ReG(300, 1e5, X, "a", 1); }), RunTimeError::kTypeMismatch);
    for (const int i : {1, 2}) smes.VLRConst(i, 3, 7, 2), smes.VLRConst(i, 3, 1, 0), smes.VLRConst(i, 3, 2, 0);
    EXPECT_FALSE(smes.PrG(300, 1e5, X).isEmpty());  // a conductivity of the excess alone
}

}  // namespace
}  // namespace velor
