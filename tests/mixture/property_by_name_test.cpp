// A property chosen by its name: each reaches its method, and what is said of names and arguments that lead nowhere.
#include <algorithm>
#include <cctype>
#include <set>

#include "support/sample_test.h"

namespace velor::test {
namespace {

struct ByNameTest : SampleTest {
    static std::vector<TLatka> substances() {
        std::vector<TLatka> records = sampleSubstances(3);
        records[2].Mv = 0.03F, records[2].Tkr = 480.0F, records[2].Vkr = 1.5e-4F;
        return records;
    }
    const Variant X = Fractions({0.3, 0.7});

    ByNameTest() : SampleTest(substances()) {
        smes.DefSlozky(List({2, 3}));
        smes.Inivlr();
    }
};

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
    // clang-format off
    const std::pair<std::string, Variant> direct[] = {
        {"ROLW", smes.ROLW(T, X)}, {"ETAL", smes.ETAL(T, X)}, {"ETAG", smes.ETAG(T, X)}, {"ALAL", smes.ALAL(T, X)},
        {"ALAG", smes.ALAG(T, X)}, {"CPL", smes.CPL(T, X)}, {"CPLW", smes.CPLW(T, X)}, {"CPG", smes.CPG(T, X)},
        {"CPGW", smes.CPGW(T, X)}, {"SIGMA", smes.SIGMA(T, X)}, {"DHV", smes.DHV(T, X)}, {"DHVW", smes.DHVW(T, X)},
        {"SL", smes.SL(T, X)}, {"SLW", smes.SLW(T, X)}, {"HL", smes.HL(T, X)}, {"HLW", smes.HLW(T, X)},
        {"TENS", smes.TENS(T, X)}, {"OBJROZL", smes.ObjRozL(T, X)}, {"PRL", smes.PrL(T, X)}, {"VSM", smes.VSM(X)},
        {"ROGW", smes.ROGW(T, P, X)}, {"RROGW", smes.RROGW(T, P, X)}, {"RCPG", smes.RCPG(T, P, X)},
        {"RCPGW", smes.RCPGW(T, P, X)}, {"RCVG", smes.RCVG(T, P, X)}, {"RCVGW", smes.RCVGW(T, P, X)},
        {"RALAG", smes.RALAG(T, P, X)}, {"RETAG", smes.RETAG(T, P, X)}, {"RHG", smes.RHG(T, P, X)},
        {"RHGW", smes.RHGW(T, P, X)}, {"RSG", smes.RSG(T, P, X)}, {"RSGW", smes.RSGW(T, P, X)},
        {"RUG", smes.RUG(T, P, X)}, {"RUGW", smes.RUGW(T, P, X)}, {"LNFUG", smes.LnFug(T, P, X)},
        {"KAPA", smes.Kapa(T, P, X)}, {"JTKOEF", smes.JTkoef(T, P, X)}, {"TBV", smes.TBV(P, X)}, {"TRB", smes.TRB(P, X)},
    };
    // clang-format on
    std::set<double> values;
    for (const auto& [name, value] : direct) {
        EXPECT_GT(value.toDouble(), -9999) << name;
        values.insert(value.toDouble());
        std::string small = name;
        std::transform(name.begin(), name.end(), small.begin(),
                       [](char c) { return static_cast<char>(std::tolower(c)); });
        for (const std::string& spelling : {name, small, name.substr(0, 1) + small.substr(1)})
            EXPECT_EQ(smes.Vlastnost(spelling, X, T, P), value) << spelling;
    }
    EXPECT_EQ(values.size(), 39U);
    EXPECT_TRUE(messages.empty());
}

TEST_F(ByNameTest, answersEachInput) {
    struct Case {
        const char* name;
        Variant T, P, expected;
        std::vector<Message> messages;
    };
    // clang-format off
    const Case cases[] = {
        // The pressure is no concern of the first list, nor either argument of the molar mass's.
        {"rolw", "360", "nic", smes.ROLW(360, X), {}}, {"VSM", "x", Variant::null(), smes.VSM(X), {}},
        // Only a magnitude near 0 is refused.
        {"RHG", 360, 0, kNothing, {kPressure}}, {"RHG", 360, -9.9e-7, kNothing, {kPressure}},
        {"RHG", 360, 1e-6, smes.RHG(360, 1e-6, X), {}}, {"ROGW", 360, -1e5, smes.ROGW(360, -1e5, X), {}},
        {"RHG", 360, -100000, Variant(), {}},  // the solver refuses it under its own trap
        // Unknown names, blanks included; the pressure is looked at first.
        {"xYz", 360, -1, kNothing, {unknown("xYz")}}, {" ROLW", 360, 101325, kNothing, {unknown(" ROLW")}},
        {"PrG", 360, 101325, kNothing, {unknown("PrG")}}, {"XYZ", 360, 0, kNothing, {kPressure}},
        // A failure in the first list goes on to the pressure and to the second list.
        {"CPG", "x", 101325, kNothing, {mismatch("CPG"), unknown("CPG")}},
        {"Hl", "x", 0, kNothing, {mismatch("Hl"), kPressure}},
        {"CPG", "x", "y", kNothing, {mismatch("CPG"), mismatch("CPG"), unknown("CPG")}},
        {"CPG", Variant::null(), 101325, kNothing, {unknown("CPG")}},  // no type mismatch, hence silent
        // A pressure that is no number, then the second list.
        {"XYZ", 360, "tlak", kNothing, {mismatch("XYZ"), unknown("XYZ")}},
        {"RHG", 360, "tlak", Variant(), {mismatch("RHG")}},
        // A trapped method answers Empty, which is above -9999.
        {"ETAG", "x", 101325, Variant(), {}},
    };
    // clang-format on
    for (const Case& c : cases) {
        messages.clear();
        const int before = smes.PocHlasek();
        EXPECT_EQ(smes.Vlastnost(c.name, X, c.T, c.P), c.expected) << c.name << ' ' << c.messages.size();
        EXPECT_EQ(messages, c.messages) << c.name;
        EXPECT_EQ(smes.PocHlasek() - before, std::count(messages.begin(), messages.end(), kPressure)) << c.name;
    }
}

TEST_F(ByNameTest, takesAValueOfTheFirstListAtMinus9999ForNothing) {
    for (const double atTb : {-9998.0, -9999.0, -20000.0}) {
        messages.clear();
        for (const int i : {1, 2}) smes.VLRConst(i, 2, 1, atTb), smes.VLRConst(i, 2, 2, 0);
        const bool found = atTb > -9999;
        EXPECT_EQ(smes.Vlastnost("CPG", X, 360, 101325), found ? smes.CPG(360, X) : kNothing);
        EXPECT_EQ(messages, found ? std::vector<Message>{} : std::vector{unknown("CPG")});
    }
    // In the second list such a value is an answer.
    EXPECT_LT(smes.Vlastnost("RHG", X, 5000, 101325).toDouble(), -9999);
}

TEST_F(ByNameTest, knowsTheBudgetButNotTheModeForItsPressureMessage) {
    smes.ChyboveHlasky(2);
    smes.MaxErrHlas(1);
    EXPECT_EQ(smes.Vlastnost("ROGW", X, 360, 0), kNothing);
    // Spent: a pressure of 0 passes to the second list.
    EXPECT_EQ(smes.Vlastnost("ROGW", X, 360, 0), Variant(0.0));
    EXPECT_EQ(smes.Vlastnost("XYZ", X, 360, 0), kNothing);
    EXPECT_EQ(messages, (std::vector{kPressure, unknown("XYZ")}));
}

TEST_F(ByNameTest, raisesInModeMinusOneButForAMismatch) {
    smes.ChyboveHlasky(-1);
    const std::tuple<const char*, Variant, Variant, const char*> raising[] = {
        {"EtaG", "x", 1e5, "Chyba při výpočtu vlastnosti ETAG"},  // raised by the method's own trap, under our title
        {"rhg", 300, "y", "Chyba při výpočtu vlastnosti RHG"},    // after the mismatch of the pressure
        {"XYZ", 300, Variant::null(), "Chyba při výpočtu vlastnosti XYZ"}};
    for (const auto& [name, T, P, description] : raising) {
        try {
            smes.Vlastnost(name, X, T, P);
            ADD_FAILURE() << "nothing raised for " << name;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), static_cast<std::int32_t>(0x80040258));
            EXPECT_EQ(error.source(), "VELOR - Vlastnost");
            EXPECT_EQ(error.description(), description);
        }
    }
    EXPECT_EQ(smes.Vlastnost("CPG", X, "x", 1e5), kNothing);
    EXPECT_EQ(messages, (std::vector{mismatch("rhg"), mismatch("CPG"), unknown("CPG")}));
    smes.ChyboveHlasky(0);
    for (const int i : {1, 2}) smes.Bod(i, 1, 0);  // no molar mass: an error of the second list leaves nothing
    EXPECT_EQ(smes.Vlastnost("RHGW", X, 360, 1e5), kNothing);
}

}  // namespace
}  // namespace velor::test
