// The gas at low pressure: the rules by themselves, and the methods around them.
#include "rules/gas.h"

#include "support/sample_test.h"

namespace velor::test {
namespace {

constexpr double R = 8.314;

double conductivity(const std::vector<double>& x, const std::vector<float>& M, const std::vector<double>& eta,
                    const std::vector<double>& lambda) {
    std::vector<PairFactor> pairs;
    for (const float Mi : M)
        for (const float Mj : M) pairs.push_back(pairFactor(Mi, Mj));
    return gasConductivity(x, pairs, eta, lambda);
}

TEST(GasRules, meetPublishedFigures) {
    // Methane and n-butane at 293 K, 1 bar: 93.35 micropoise measured by Kestin and Yata (1968); the rule is good to 1
    // %.
    const double x[] = {0.697, 0.303}, M[] = {0.016043, 0.058124}, eta[] = {109.4e-7, 72.74e-7};
    EXPECT_NEAR(gasViscosity(x, M, eta), 93.35e-7, 1.0e-7);
    // Benzene and argon at 373.8 K, 1 bar: 0.0192 W/(m K) measured by Bennett and Vines (1955); Poling, Prausnitz and
    // O'Connell (2001) compute 0.0184 by the rule.
    EXPECT_NEAR(conductivity({0.25, 0.75}, {0.078114F, 0.039948F}, {92.5e-7, 271e-7}, {0.0166, 0.0214}), 0.0184, 5e-5);
}

TEST(GasRules, conductivityHasItsTextbookShapeAndLimits) {
    // The factor of equal components is 4 x 0.35355 over the root of 2, a little less than 1.
    const double mean = conductivity({0.2, 0.3, 0.5}, {0.03F, 0.03F, 0.03F}, {1e-5, 1e-5, 1e-5}, {0.01, 0.02, 0.04});
    EXPECT_NEAR(mean, 0.2 * 0.01 + 0.3 * 0.02 + 0.5 * 0.04, 1e-5 * mean);
    EXPECT_GT(mean, 0.028);
    EXPECT_DOUBLE_EQ(conductivity({0, 1, 0}, {0.03F, 0.05F, 0.09F}, {1e-5, 2e-5, 9e-6}, {0.01, 0.02, 0.04}), 0.02);
    const auto phi = [](double masses, double viscosities) {
        return 0.35355 * std::pow(1 + std::sqrt(viscosities) / std::pow(masses, 0.25), 2) / std::sqrt(1 + masses);
    };
    const double phi12 = phi(0.03F / 0.05F, 0.5), phi21 = phi(0.05F / 0.03F, 2);
    EXPECT_NEAR(conductivity({0.4, 0.6}, {0.03F, 0.05F}, {1e-5, 2e-5}, {0.01, 0.02}),
                0.4 * 0.01 / (0.4 + 0.6 * phi12) + 0.6 * 0.02 / (0.6 + 0.4 * phi21), 1e-16);
    // The ratio of the masses is held in single precision.
    EXPECT_DOUBLE_EQ(pairFactor(0.03F, 0.07F).ratioRoot, std::pow(static_cast<double>(0.03F / 0.07F), -0.25));
}

struct GasTest : SampleTest {
    static std::vector<TLatka> substances() {
        std::vector<TLatka> records = sampleSubstances(3);
        for (TLatka& record : records) {
            record.Mv = 0.01F + 0.02F * record.Cislo;
            for (const std::size_t k : {0U, 1U, 2U})
                record.Korelace[k].A[0] = static_cast<float>(100 * record.Cislo + 7 * static_cast<int>(k));
        }
        return records;
    }
    const Variant X = Fractions({0.2, 0.3, 0.5});

    GasTest() : SampleTest(substances()) { define({1, 2, 3}); }
    void define(const std::vector<int>& numbers) {
        smes.DefSlozky(List(numbers));
        smes.Inivlr();
    }
};

TEST_F(GasTest, takesEachPureValueOnceAndInOrder) {
    for (const int i : {1, 2, 3})
        for (const int k : {1, 2, 3}) smes.VLRConst(i, k, 8, 0);  // not given, but evaluated
    const Variant sparse = Fractions({0.5, 0, 0.5});
    smes.MaxErrHlas(100);
    smes.ALAG(300, sparse);
    EXPECT_EQ(takeMissing(), "1ETAG 2ETAG 3ETAG 1ALAG 2ALAG 3ALAG ");
    smes.ETAG(300, sparse);
    EXPECT_EQ(takeMissing(), "1ETAG 3ETAG ");
    smes.CPG(300, sparse);
    EXPECT_EQ(takeMissing(), "1CPG 2CPG 3CPG ");
    smes.TEVRP(1, 300, 1e5, sparse);
    EXPECT_EQ(takeMissing(), "1CPG 3CPG ");
    smes.TEVRP(0, 300, 1e5, sparse);
    EXPECT_EQ(takeMissing(), "");
}

TEST_F(GasTest, mixesByItsRules) {
    const double T = 310, M = 0.2 * smes.Bod(1, 1) + 0.3 * smes.Bod(2, 1) + 0.5 * smes.Bod(3, 1);
    const double Cp = 0.2 * (107 + T) + 0.3 * (207 + T) + 0.5 * (307 + T);
    EXPECT_DOUBLE_EQ(smes.CPG(T, X).toDouble(), Cp);
    EXPECT_DOUBLE_EQ(smes.ROGW(273.15, 101325, X).toDouble(), M * 101325 / (R * 273.15));
    EXPECT_NEAR(smes.ETAG(T, X).toDouble(),
                (0.2 * std::sqrt(0.03) * 410 + 0.3 * std::sqrt(0.05) * 510 + 0.5 * std::sqrt(0.07) * 610) /
                    (0.2 * std::sqrt(0.03) + 0.3 * std::sqrt(0.05) + 0.5 * std::sqrt(0.07)),
                1e-4);
    for (const int i : {1, 2, 3}) EXPECT_EQ(smes.Slozeni(i), X.at(i));
    // The real gas joins them at low pressure.
    EXPECT_NEAR(smes.RROGW(T, 10, X).toDouble(), smes.ROGW(T, 10, X).toDouble(), 1e-6 * 10);
}

TEST_F(GasTest, aSplitChangesTheConductivityByTheFactorsFifthDecimalOnly) {
    const double pure = smes.FFce(310, 2, 3).toDouble();
    define({2, 2, 2});
    EXPECT_NEAR(smes.ALAG(310, X).toDouble() / pure, 1, 1e-5);
    smes.DefSmes(1, Fractions({2}));
    smes.ZapisNslozky(1, 2);
    EXPECT_EQ(smes.ALAG(310, 5), Variant(pure));  // alone it needs no fraction
}

TEST_F(GasTest, tellsWhatCannotBeComputed) {
    const Variant none = Fractions({0, 0, 0});
    EXPECT_TRUE(smes.ETAG(300, none).isEmpty() && smes.ALAG(300, none).isEmpty() && smes.ROGW(0, 1e5, X).isEmpty());
    EXPECT_EQ(errorNumber([&] { smes.CPGW(300, none); }), RunTimeError::kDivisionByZero);
    ASSERT_FALSE(smes.ALAG(300, X).isEmpty());
    smes.Bod(2, 1, 0);
    EXPECT_TRUE(smes.ALAG(300, X).isEmpty());  // a kept pair factor would hide the missing molar mass
    EXPECT_TRUE(messages.empty());
}

}  // namespace
}  // namespace velor::test
