#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

#include "support/sample_mixture.h"

namespace velor {
namespace {

using test::errorNumber;
using test::SampleMixture;
using test::sampleSubstance;

struct ByNameTest : ::testing::Test {
    static std::vector<TLatka> substances() {
        std::vector<TLatka> records{sampleSubstance(2, "A"), sampleSubstance(2, "A"), sampleSubstance(3, "B")};
        records[2].Mv = 0.03F, records[2].Tkr = 480.0F, records[2].Vkr = 1.5e-4F;
        return records;
    }
    SampleMixture mixture{substances()};
    Smes& smes = mixture.smes;
    std::vector<Message>& messages = mixture.boxes.messages;
    const Variant X = Fractions({0.3, 0.7});

    ByNameTest() {
        smes.DefSlozky(List({2, 3}));
        smes.Inivlr();
    }
};

std::string changedCase(const std::string& name, int (*change)(int)) {
    std::string changed = name;
    std::transform(name.begin(), name.end(), changed.begin(), [&](char c) { return static_cast<char>(change(c)); });
    return changed;
}

const Variant kNothing = -9999.0;
const Message kPressure{"Zadaný tlak je nulový nebo záporný!", Icon::Critical, "VELOR - fce Vlastnost"};
Message unknown(const std::string& name) {
    return {"Neznámá nebo chybná vlastnost!: " + name, Icon::Critical, "VELOR fce Vlastnost"};
}
Message mismatch(const std::string& name) {
    return {"Špatně zadané parametry fce Vlastnost, (tlak)\r\nnebo neznámá vlastnost: " + name, Icon::Critical,
            "VELOR fce Vlastnost"};
}

TEST_F(ByNameTest, everyNameReachesItsMethod) {
    // The sample's vapour pressure is 9 + T, so that 380 Pa belongs to 371 K, and no two properties are equal there.
    const Variant T = 360, P = 380;
    const std::pair<const char*, Variant> direct[] = {
        {"ROLW", smes.ROLW(T, X)},
        {"ETAL", smes.ETAL(T, X)},
        {"ETAG", smes.ETAG(T, X)},
        {"ALAL", smes.ALAL(T, X)},
        {"ALAG", smes.ALAG(T, X)},
        {"CPL", smes.CPL(T, X)},
        {"CPLW", smes.CPLW(T, X)},
        {"CPG", smes.CPG(T, X)},
        {"CPGW", smes.CPGW(T, X)},
        {"SIGMA", smes.SIGMA(T, X)},
        {"DHV", smes.DHV(T, X)},
        {"DHVW", smes.DHVW(T, X)},
        {"SL", smes.SL(T, X)},
        {"SLW", smes.SLW(T, X)},
        {"HL", smes.HL(T, X)},
        {"HLW", smes.HLW(T, X)},
        {"TENS", smes.TENS(T, X)},
        {"OBJROZL", smes.ObjRozL(T, X)},
        {"PRL", smes.PrL(T, X)},
        {"VSM", smes.VSM(X)},
        {"ROGW", smes.ROGW(T, P, X)},
        {"RROGW", smes.RROGW(T, P, X)},
        {"RCPG", smes.RCPG(T, P, X)},
        {"RCPGW", smes.RCPGW(T, P, X)},
        {"RCVG", smes.RCVG(T, P, X)},
        {"RCVGW", smes.RCVGW(T, P, X)},
        {"RALAG", smes.RALAG(T, P, X)},
        {"RETAG", smes.RETAG(T, P, X)},
        {"RHG", smes.RHG(T, P, X)},
        {"RHGW", smes.RHGW(T, P, X)},
        {"RSG", smes.RSG(T, P, X)},
        {"RSGW", smes.RSGW(T, P, X)},
        {"RUG", smes.RUG(T, P, X)},
        {"RUGW", smes.RUGW(T, P, X)},
        {"LNFUG", smes.LnFug(T, P, X)},
        {"KAPA", smes.Kapa(T, P, X)},
        {"JTKOEF", smes.JTkoef(T, P, X)},
        {"TBV", smes.TBV(P, X)},
        {"TRB", smes.TRB(P, X)},
    };
    std::set<double> values;
    for (const auto& [name, value] : direct) {
        ASSERT_EQ(value.kind(), Variant::Kind::Double) << name;
        EXPECT_GT(value.toDouble(), -9999) << name;
        values.insert(value.toDouble());
        std::string mixed = changedCase(name, std::tolower);
        mixed[0] = *name;
        for (const std::string& spelling : {std::string(name), changedCase(name, std::tolower), mixed})
            EXPECT_EQ(smes.Vlastnost(spelling, X, T, P), value) << spelling;
    }
    EXPECT_EQ(std::size(direct), 39U);
    EXPECT_EQ(values.size(), 39U);
    EXPECT_TRUE(messages.empty());
}

TEST_F(ByNameTest, answersEachInput) {
    struct Case {
        const char* name;
        Variant T, P, expected;
        std::vector<Message> messages;
        int counted;
    };
    const Variant density = smes.ROLW(360, X), M = smes.VSM(X), Tbv = smes.TBV(380, X);
    const Case cases[] = {
        // The pressure is no concern of the first list, nor either argument of the molar mass's.
        {"rolw", 360, 0, density, {}, 0},
        {"ROLW", "360", "nic", density, {}, 0},
        {"VSM", "x", Variant::null(), M, {}, 0},
        // Only a magnitude near 0 is refused.
        {"RHG", 360, 0, kNothing, {kPressure}, 1},
        {"RHG", 360, 9.9e-7, kNothing, {kPressure}, 1},
        {"RHG", 360, -9.9e-7, kNothing, {kPressure}, 1},
        {"RHG", 360, Variant(), kNothing, {kPressure}, 1},
        {"RHG", 360, 1e-6, smes.RHG(360, 1e-6, X), {}, 0},
        {"ROGW", 360, -100000, smes.ROGW(360, -100000, X), {}, 0},
        {"RHG", 360, -100000, Variant(), {}, 0},  // the solver refuses it under its own trap
        {"TBV", "x", 380, Tbv, {}, 0},
        {"RHG", "360", "101325,0", smes.RHG(360, 101325, X), {}, 0},
        // Unknown names, blanks included; the pressure is looked at first.
        {"XYZ", 360, 101325, kNothing, {unknown("XYZ")}, 0},
        {"xYz", 360, -1, kNothing, {unknown("xYz")}, 0},
        {" ROLW", 360, 101325, kNothing, {unknown(" ROLW")}, 0},
        {"ROLW ", 360, 101325, kNothing, {unknown("ROLW ")}, 0},
        {"PrG", 360, 101325, kNothing, {unknown("PrG")}, 0},
        {"", 360, 101325, kNothing, {unknown("")}, 0},
        {"XYZ", 360, 0, kNothing, {kPressure}, 1},
        // A failure in the first list goes on to the pressure and to the second list.
        {"CPG", "x", 101325, kNothing, {mismatch("CPG"), unknown("CPG")}, 0},
        {"Hl", "x", 0, kNothing, {mismatch("Hl"), kPressure}, 1},
        {"CPG", "x", "y", kNothing, {mismatch("CPG"), mismatch("CPG"), unknown("CPG")}, 0},
        {"CPG", Variant::null(), 101325, kNothing, {unknown("CPG")}, 0},  // no type mismatch, hence silent
        // A pressure that is no number, then the second list.
        {"XYZ", 360, "tlak", kNothing, {mismatch("XYZ"), unknown("XYZ")}, 0},
        {"RHG", 360, "tlak", Variant(), {mismatch("RHG")}, 0},
        {"RHG", 360, Fractions({1.0}), Variant(), {mismatch("RHG")}, 0},
        // A trapped method answers Empty, which is above -9999.
        {"ETAG", "x", 101325, Variant(), {}, 0},
        {"RROGW", "x", 101325, Variant(), {}, 0},
    };
    smes.MaxErrHlas(100);
    for (const Case& c : cases) {
        messages.clear();
        const int before = smes.PocHlasek();
        EXPECT_EQ(smes.Vlastnost(c.name, X, c.T, c.P), c.expected) << c.name << ' ' << c.messages.size();
        EXPECT_EQ(messages, c.messages) << c.name;
        EXPECT_EQ(smes.PocHlasek() - before, c.counted) << c.name;
    }
}

TEST_F(ByNameTest, takesAValueOfTheFirstListAtMinus9999ForNothing) {
    for (const double atTb : {-9998.0, -9999.0, -20000.0}) {
        messages.clear();
        for (const int i : {1, 2}) smes.VLRConst(i, 2, 1, atTb), smes.VLRConst(i, 2, 2, 0);
        ASSERT_DOUBLE_EQ(smes.CPG(360, X).toDouble(), atTb);
        const bool found = atTb > -9999;
        EXPECT_EQ(smes.Vlastnost("CPG", X, 360, 101325), found ? smes.CPG(360, X) : kNothing);
        EXPECT_EQ(messages, found ? std::vector<Message>{} : std::vector{unknown("CPG")});
    }
    EXPECT_EQ(smes.Vlastnost("CPG", X, 360, 0), kNothing);
    EXPECT_EQ(messages.back(), kPressure);
    // In the second list such a value is an answer.
    EXPECT_LT(smes.Vlastnost("RHG", X, 5000, 101325).toDouble(), -9999);
}

TEST_F(ByNameTest, knowsTheBudgetButNotTheModeForItsPressureMessage) {
    for (const int mode : {1, 2}) {
        smes.ChyboveHlasky(mode);
        messages.clear();
        EXPECT_EQ(smes.Vlastnost("RHG", X, 360, 0), kNothing);
        EXPECT_EQ(smes.Vlastnost("XYZ", X, 360, 1), kNothing);
        EXPECT_EQ(smes.Vlastnost("CPG", X, "x", 1), kNothing);
        EXPECT_EQ(messages, (std::vector{kPressure, unknown("XYZ"), mismatch("CPG"), unknown("CPG")})) << mode;
    }
    smes.ChyboveHlasky(0);
    smes.MaxErrHlas(3);
    messages.clear();
    EXPECT_EQ(smes.Vlastnost("ROGW", X, 360, 0), kNothing);
    EXPECT_EQ(smes.PocHlasek(), 3);
    // Spent: a pressure of 0 passes to the second list.
    EXPECT_EQ(smes.Vlastnost("ROGW", X, 360, 0), Variant(0.0));
    EXPECT_TRUE(smes.Vlastnost("RHG", X, 360, 0).isEmpty());
    EXPECT_EQ(smes.Vlastnost("XYZ", X, 360, 0), kNothing);
    EXPECT_EQ(messages, (std::vector{kPressure, unknown("XYZ")}));
    EXPECT_EQ(smes.PocHlasek(), 3);
}

TEST_F(ByNameTest, raisesInModeMinusOneButForAMismatch) {
    smes.ChyboveHlasky(-1);
    struct Case {
        const char* name;
        Variant T, P;
        const char* description;
    };
    const Case raising[] = {
        {"EtaG", "x", 1e5, "Chyba při výpočtu vlastnosti ETAG"},  // raised by the method's own trap, under our title
        {"rhg", -1, 1e5, "Chyba při výpočtu vlastnosti RHG"},
        {"rhg", 300, "y", "Chyba při výpočtu vlastnosti RHG"},  // after the mismatch of the pressure
        {"CPG", Variant::null(), 1e5, "Chyba při výpočtu vlastnosti CPG"},
        {"XYZ", 300, Variant::null(), "Chyba při výpočtu vlastnosti XYZ"},
    };
    for (const Case& c : raising) {
        try {
            smes.Vlastnost(c.name, X, c.T, c.P);
            ADD_FAILURE() << "nothing raised for " << c.name;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), static_cast<std::int32_t>(0x80040258));
            EXPECT_EQ(error.source(), "VELOR - Vlastnost");
            EXPECT_EQ(error.description(), c.description);
        }
    }
    EXPECT_EQ(messages, std::vector{mismatch("rhg")});
    messages.clear();
    EXPECT_EQ(smes.Vlastnost("CPG", X, "x", 1e5), kNothing);
    EXPECT_EQ(smes.Vlastnost("XYZ", X, 300, 0), kNothing);
    EXPECT_EQ(messages, (std::vector{mismatch("CPG"), unknown("CPG"), kPressure}));
}

TEST_F(ByNameTest, leavesThePropertysFailureInTheSecondListAtNothing) {
    smes.Bod(1, 1, 0), smes.Bod(2, 1, 0);
    EXPECT_EQ(errorNumber([&] { smes.RHGW(360, 1e5, X); }), RunTimeError::kDivisionByZero);
    EXPECT_EQ(smes.Vlastnost("RHGW", X, 360, 1e5), kNothing);
    EXPECT_TRUE(messages.empty());
}

}  // namespace
}  // namespace velor
