// Checking, normalising and converting fractions.
#include "support/sample_test.h"

namespace velor::test {
namespace {

struct CompositionTest : SampleTest {
    static std::vector<TLatka> substances() {
        std::vector<TLatka> records = sampleSubstances(3);
        records[0].Mv = 0.125F, records[1].Mv = 0.375F, records[2].Mv = 0.0F;  // exact in single precision
        return records;
    }
    CompositionTest() : SampleTest(substances()) { smes.DefSlozky(List({1, 2})); }
};

TEST_F(CompositionTest, normalDividesByTheSum) {
    const std::tuple<Variant, Variant, int> cases[] = {
        {Fractions({0.5, 0.500009}), Fractions({0.5, 0.500009}), 0},
        {Fractions({-1, 3}), Fractions({-0.5, 1.5}), 0},
        {Variant::array(1, {"1,5", 0.5}), Fractions({0.75, 0.25}), 0},
        {Variant::array(0, {9, 3, 1, 7}), Variant::array(0, {9, 0.75, 0.25, 7}), 0},  // no components
        {Fractions({1, -1}), Fractions({1, -1}), 11},
        {Fractions({1e308, 1e308}), Fractions({1e308, 1e308}), 6}};
    for (const auto& [given, normalised, error] : cases) {
        Variant X = given;
        EXPECT_EQ(errorNumber([&] { smes.Normal(X); }), error);
        EXPECT_EQ(X, normalised);
    }
}

TEST_F(CompositionTest, fractionsConvertByTheMolarMasses) {
    const std::pair<Variant, Variant> cases[] = {{Fractions({0.75, 0.25}), Fractions({0.5, 0.5})},
                                                 {Fractions({0, 0}), Fractions({0, 0})}};
    for (const auto& [moles, masses] : cases) {
        Variant W = Fractions({-1, -1, 7}), X = Fractions({-1, -1});
        EXPECT_EQ(smes.Cohmo(moles, W).toInt16(), 2);
        EXPECT_EQ(smes.Zlomky(2), W.at(2));
        EXPECT_EQ(W, Variant::array(1, {masses.at(1), masses.at(2), 7.0}));
        EXPECT_EQ(smes.Comol(masses, X).toInt16(), 2);
        EXPECT_EQ(X, moles);
    }
    // Only the proportions matter, and an array may be converted in place.
    Variant X = Fractions({1.5, 0.5});
    smes.Cohmo(X, X);
    EXPECT_EQ(X, Fractions({0.5, 0.5}));
    // Below the tolerance, 1e-05, the denominator is 1.
    smes.Cohmo(Fractions({4e-5, 0}), X);
    EXPECT_DOUBLE_EQ(X.at(1).toDouble(), 5e-6);
    smes.Cohmo(Fractions({1.6e-4, 0}), X);
    EXPECT_DOUBLE_EQ(X.at(1).toDouble(), 1);
    EXPECT_TRUE(messages.empty());
}

}  // namespace
}  // namespace velor::test
