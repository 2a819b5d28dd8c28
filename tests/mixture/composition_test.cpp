// Checking, normalising and converting fractions.
#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "support/sample_mixture.h"

namespace velor {
namespace {

using test::errorNumber;
using test::SampleMixture;
using test::sampleSubstance;

std::vector<TLatka> substances() {
    std::vector<TLatka> records;
    for (int number = 1; number <= 3; ++number) records.push_back(sampleSubstance(number, "Látka"));
    records[0].Mv = 0.125F;  // exact in single precision
    records[1].Mv = 0.375F;
    records[2].Mv = 0.0F;
    return records;
}

struct CompositionTest : ::testing::Test {
    SampleMixture mixture{substances()};
    Smes& smes = mixture.smes;
    std::vector<Message>& messages = mixture.boxes.messages;

    CompositionTest() { smes.DefSlozky(List({1, 2})); }
};

// What no method of two components can read, and the error that it is.
struct Unreadable {
    const char* what;
    Variant X;
    int error;
};
const Unreadable kUnreadable[] = {
    {"one too short", Fractions({1.0}), 9},
    {"counted from 0", List({0.5, 0.5}), 9},
    {"no array", 0.5, 13},
    {"a word inside", Variant::array(1, {0.5, "half"}), 13},
    {"Null inside", Variant::array(1, {0.5, Variant::null()}), 94},
    {"no number inside", Fractions({0.5, std::numeric_limits<double>::quiet_NaN()}), 6},
};

TEST_F(CompositionTest, normalDividesByTheSum) {
    struct Case {
        Variant X, normalised;
        int error = 0;
    };
    const Case cases[] = {
        {Fractions({1, 1}), Fractions({0.5, 0.5})},
        {Fractions({0.5, 0.5000001}), Fractions({0.5, 0.5000001})},
        {Fractions({0.5, 0.500009}), Fractions({0.5, 0.500009})},
        {Fractions({-1, 3}), Fractions({-0.5, 1.5})},
        {Fractions({-3, 1}), Fractions({1.5, -0.5})},
        {Variant::array(1, {"1,5", 0.5}), Fractions({0.75, 0.25})},
        {Variant::array(1, {Variant(), 4}), Fractions({0, 1})},
        {Variant::array(0, {9, 3, 1}), Variant::array(0, {9, 0.75, 0.25})},  // index 0 is no component
        {Fractions({2, 2, 7}), Fractions({0.5, 0.5, 7})},
        {Fractions({0, 0}), Fractions({0, 0}), 11},
        {Fractions({1, -1}), Fractions({1, -1}), 11},
        {Fractions({1e308, 1e308}), Fractions({1e308, 1e308}), 6}};
    for (const Case& c : cases) {
        Variant X = c.X;
        EXPECT_EQ(errorNumber([&] { smes.Normal(X); }), c.error);
        EXPECT_EQ(X, c.normalised);
    }
    Variant X = Fractions({0.7, 0.31});
    smes.Normal(X);
    EXPECT_DOUBLE_EQ(X.at(1).toDouble() + X.at(2).toDouble(), 1.0);
    for (const Unreadable& u : kUnreadable) {
        X = u.X;
        EXPECT_EQ(errorNumber([&] { smes.Normal(X); }), u.error) << u.what;
    }
}

TEST_F(CompositionTest, ksumXAcceptsOneAndExactlyNothing) {
    const std::tuple<double, double, bool> cases[] = {
        {0.5, 0.500009, true}, {0.5, 0.50002, false}, {0.5, 0.49998, false}, {0, 0, true},
        {1, -1, true},         {0, 1e-9, false},      {0.3, 0.3, false},     {-1, 2, true}};
    smes.MaxErrHlas(1000);
    for (const int mode : {-1, 0, 1, 2})
        for (const auto& [x, y, accepted] : cases) {
            smes.ChyboveHlasky(mode);
            smes.SNazev(x == 0.3 ? "Benzín" : "");
            messages.clear();
            const int before = smes.PocHlasek();
            EXPECT_EQ(smes.KsumX(Fractions({x, y})), Variant(accepted ? "" : "ERR sl.")) << x << ' ' << y;
            const Message message{"Součet zlom.složení směsi není 1!", Icon::Exclamation,
                                  x == 0.3 ? "Benzín" : "nepojmenovaná"};
            EXPECT_EQ(messages, accepted || mode == 2 ? std::vector<Message>{} : std::vector{message});
            EXPECT_EQ(smes.PocHlasek() - before, static_cast<int>(messages.size()));
        }
    smes.ChyboveHlasky(0);
    smes.MaxErrHlas(smes.PocHlasek() + 1);
    messages.clear();
    for (int call = 0; call < 3; ++call) EXPECT_EQ(smes.KsumX(Fractions({0.3, 0.3})), Variant("ERR sl."));
    EXPECT_EQ(messages.size(), 1U);
    for (const Unreadable& u : kUnreadable) EXPECT_EQ(errorNumber([&] { smes.KsumX(u.X); }), u.error) << u.what;
    EXPECT_TRUE(smes.Slozeni(1).isEmpty());  // nothing is stored
}

TEST_F(CompositionTest, fractionsConvertByTheMolarMasses) {
    struct Case {
        Variant moles, masses;
    };
    const Case cases[] = {{Fractions({0.75, 0.25}), Fractions({0.5, 0.5})},
                          {Fractions({1, 0}), Fractions({1, 0})},
                          {Fractions({0, 0}), Fractions({0, 0})}};
    for (const Case& c : cases) {
        Variant W = Fractions({-1, -1, 7}), X = Fractions({-1, -1});
        EXPECT_EQ(smes.Cohmo(c.moles, W).toInt16(), 2);
        EXPECT_EQ(smes.Zlomky(2), W.at(2));
        EXPECT_EQ(W, Variant::array(1, {c.masses.at(1), c.masses.at(2), 7.0}));
        EXPECT_EQ(smes.Comol(c.masses, X).toInt16(), 2);
        EXPECT_EQ(smes.Zlomky(1), X.at(1));
        EXPECT_EQ(X, c.moles);
    }
    // Only the proportions matter, and an array may be converted in place.
    Variant X = Fractions({1.5, 0.5});
    smes.Cohmo(X, X);
    EXPECT_EQ(X, Fractions({0.5, 0.5}));
    smes.Comol(X, X);
    EXPECT_EQ(X, Fractions({0.75, 0.25}));
    // Below the tolerance the denominator is 1: of x M it is 1e-05 kg/mol, of w / M 1e-05 mol/kg.
    smes.Cohmo(Fractions({4e-5, 0}), X);
    EXPECT_DOUBLE_EQ(X.at(1).toDouble(), 5e-6);
    smes.Cohmo(Fractions({1.6e-4, 0}), X);
    EXPECT_DOUBLE_EQ(X.at(1).toDouble(), 1);
    smes.Comol(Fractions({-1, 0}), X);
    EXPECT_DOUBLE_EQ(X.at(1).toDouble(), -8);
    EXPECT_TRUE(messages.empty());
}

TEST_F(CompositionTest, conversionsTellTheirFailures) {
    using Conversion = Variant (Smes::*)(const Variant&, Variant&);
    for (const Conversion convert : {&Smes::Cohmo, &Smes::Comol}) {
        Variant to = Fractions({-1, -1});
        for (const Unreadable& u : kUnreadable)
            EXPECT_EQ(errorNumber([&] { (smes.*convert)(u.X, to); }), u.error) << u.what;
        EXPECT_EQ(to, Fractions({-1, -1}));
        Variant shortArray = Fractions({-1}), number = 5;
        EXPECT_EQ(errorNumber([&] { (smes.*convert)(Fractions({0.75, 0.25}), shortArray); }), 9);
        EXPECT_NE(shortArray.at(1), Variant(-1.0));  // element 1 was there before element 2 was missed
        EXPECT_EQ(errorNumber([&] { (smes.*convert)(Fractions({0.75, 0.25}), number); }), 13);
    }
    Variant to = Fractions({0, 0});
    smes.DefSlozky(List({1, 3}));  // without a molar mass
    EXPECT_EQ(errorNumber([&] { smes.Comol(Fractions({1, 0}), to); }), 11);
    EXPECT_EQ(smes.Cohmo(Fractions({0.5, 0.5}), to).toInt16(), 2);
    EXPECT_EQ(to, Fractions({1, 0}));
    smes.Nsloz(0);
    EXPECT_EQ(smes.Cohmo(1, to), Variant("Chyba"));  // nothing is read
    EXPECT_EQ(smes.Comol(1, to), Variant("Chyba"));
}

TEST_F(CompositionTest, molarMassTakesTheFractionsAsPassed) {
    EXPECT_EQ(smes.VSM(Fractions({0.5, 0.5})), Variant(0.25));
    EXPECT_EQ(smes.VSM(Fractions({2, -1})), Variant(-0.125));
    EXPECT_EQ(smes.VSM(Variant::array(0, {9, 1, 1, 1})), Variant(0.5));
    EXPECT_TRUE(smes.Slozeni(1).isEmpty());
    for (const Unreadable& u : kUnreadable) {
        smes.ChyboveHlasky(0);
        EXPECT_TRUE(smes.VSM(u.X).isEmpty()) << u.what;
        smes.ChyboveHlasky(-1);
        try {
            smes.VSM(u.X);
            ADD_FAILURE() << "nothing raised: " << u.what;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), RunTimeError::kRaisedToHost);
            EXPECT_EQ(error.source(), "VELOR - VSM");
            EXPECT_EQ(error.description(), "Chyba při výpočtu vlastnosti!");
        }
    }
    EXPECT_TRUE(messages.empty());  // the reporter shows no box for classic errors
    smes.ResetujSmes();
    EXPECT_EQ(smes.VSM(5), Variant(0.0));
}

TEST_F(CompositionTest, moreThanTwentyComponentsFailAtTheSlots) {
    smes.Inivlr();
    smes.DefSlozky(List(std::vector<int>(25, 1)));  // while records are loaded the count stands until the next load
    EXPECT_EQ(smes.Nsloz().toInt16(), 25);
    Variant X = Numbers(std::vector<double>(25, 1.0)), to = X;
    smes.Normal(X);
    EXPECT_EQ(X.at(25), Variant(0.04));
    EXPECT_EQ(smes.KsumX(X), Variant(""));
    EXPECT_EQ(errorNumber([&] { smes.Cohmo(X, to); }), 9);
    EXPECT_NEAR(smes.VSM(X).toDouble(), 0.04 * 20 * 0.125, 1e-12);
}

TEST_F(CompositionTest, keptFractionsAreReadByTheirIndex) {
    for (const int slot : {0, 21, -1}) {
        EXPECT_EQ(errorNumber([&] { smes.Slozeni(slot); }), 9);
        EXPECT_EQ(errorNumber([&] { smes.Zlomky(slot); }), 9);
    }
    EXPECT_TRUE(smes.Zlomky(20).isEmpty());
    EXPECT_TRUE(smes.PocetSmesi(1).isEmpty());
}

}  // namespace
}  // namespace velor
