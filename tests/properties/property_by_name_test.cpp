// A property chosen by its name: each reaches its method, and what is said of names and arguments that lead nowhere.
#include <algorithm>
#include <cctype>
#include <set>

#include "support/methods.h"
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
    const std::set<std::string> unnamed{"KsumX", "Cohmo", "Comol", "Normal", "PSEUD", "TEVRP", "ReL", "PrG", "ReG"};
    std::set<double> values;
    for (const Method& method : kMethods) {
        if (unnamed.contains(method.name)) continue;
        const Variant value = method.call(smes, 360, 380, X);
        EXPECT_GT(value.toDouble(), -9999) << method.name;
        values.insert(value.toDouble());
        std::string small = method.name, capital = method.name;
        for (char& c : small) c = static_cast<char>(std::tolower(c));
        for (char& c : capital) c = static_cast<char>(std::toupper(c));
        for (const std::string& spelling : {method.name, small, capital})
            EXPECT_EQ(smes.Vlastnost(spelling, X, 360, 380), value) << spelling;
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

}  // namespace
}  // namespace velor::test
