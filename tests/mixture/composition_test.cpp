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

TEST_F(CompositionTest, ksumXAcceptsOneAndExactlyNothing) {
    const std::tuple<double, double, bool> cases[] = {
        {0.5, 0.500009, true}, {0.5, 0.500011, false}, {0.5, 0.499989, false}, {0, 0, true}, {0, 1e-9, false}};
    for (const int mode : {-1, 1, 2})
        for (const auto& [x, y, accepted] : cases) {
            smes.ChyboveHlasky(mode);
            smes.SNazev(mode == 1 ? "Benzín" : "");
            messages.clear();
            EXPECT_EQ(smes.KsumX(Fractions({x, y})), Variant(accepted ? "" : "ERR sl.")) << x << ' ' << y;
            const Message message{"Součet zlom.složení směsi není 1!", Icon::Exclamation,
                                  mode == 1 ? "Benzín" : "nepojmenovaná"};
            EXPECT_EQ(messages, accepted || mode == 2 ? std::vector<Message>{} : std::vector{message});
        }
    smes.ChyboveHlasky(0);
    smes.MaxErrHlas(smes.PocHlasek() + 1);
    messages.clear();
    for (int call = 0; call < 3; ++call) EXPECT_EQ(smes.KsumX(Fractions({0.3, 0.3})), Variant("ERR sl."));
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(smes.VSM(Fractions({2, -1})), Variant(-0.125));  // takes the fractions as passed
    EXPECT_TRUE(smes.Slozeni(1).isEmpty());                    // nothing is stored
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

TEST_F(CompositionTest, conversionsTellTheirFailures) {
    Variant shortArray = Fractions({-1}), number = 5, to = Fractions({0, 0});
    EXPECT_EQ(errorNumber([&] { smes.Cohmo(Fractions({0.75, 0.25}), shortArray); }), 9);
    EXPECT_EQ(shortArray, Fractions({0.5}));  // element 1 was there before element 2 was missed
    EXPECT_EQ(errorNumber([&] { smes.Comol(Fractions({0.75, 0.25}), number); }), 13);
    smes.DefSlozky(List({1, 3}));  // without a molar mass
    EXPECT_EQ(errorNumber([&] { smes.Comol(Fractions({1, 0}), to); }), 11);
    smes.Nsloz(0);
    EXPECT_EQ(smes.Cohmo(1, to), Variant("Chyba"));  // nothing is read
    EXPECT_EQ(smes.Comol(1, to), Variant("Chyba"));
    EXPECT_EQ(smes.VSM(1), Variant(0.0));
}

TEST_F(CompositionTest, moreThanTwentyComponentsFailAtTheSlots) {
    smes.Inivlr();
    smes.DefSlozky(List(std::vector<int>(25, 1)));  // while records are loaded the count stands until the next load
    Variant X = Numbers(std::vector<double>(25, 1.0)), to = X;
    smes.Normal(X);
    EXPECT_EQ(X.at(25), Variant(0.04));
    EXPECT_EQ(smes.KsumX(X), Variant(""));
    EXPECT_EQ(errorNumber([&] { smes.Cohmo(X, to); }), 9);
    EXPECT_EQ(errorNumber([&] { smes.Slozeni(21); }), 9);
    EXPECT_EQ(errorNumber([&] { smes.Zlomky(0); }), 9);
    EXPECT_TRUE(smes.PocetSmesi(1).isEmpty());
}

}  // namespace
}  // namespace velor::test
