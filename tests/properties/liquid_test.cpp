// The liquid's mixing rules: published figures, mixtures computed by hand, laws that hold for every mixture, what was
// built on purpose, and every way to fail.
#include <sstream>

#include "support/methods.h"
#include "support/real_mixture.h"
#include "support/sample_test.h"

namespace velor::test {
namespace {

constexpr int kROLW = 4, kETAL = 5, kALAL = 6, kCPL = 7, kDHV = 8, kTENS = 9, kSIGMA = 10;
constexpr std::int32_t kWater = 7732185, kBenzene = 71432, kHexane = 110543, kHeptane = 142825, kOctane = 111659;

// ---- The real database ---------------------------------------------------------------------------------------------

TEST(Liquid, waterExpandsAsPublished) {
    RealMixture water({kWater});
    // 2.57e-4 1/K at 298.15 K (CRC Handbook, 97th ed.; NIST WebBook); the backward difference belongs to 1.5 K below.
    EXPECT_NEAR(water.smes.ObjRozL(298.15 + 1.5, Fractions({1.0})).toDouble(), 2.57e-4, 0.02e-4);
}

TEST(Liquid, enthalpyAndEntropyAreIntegralsOfTheHeatCapacity) {
    RealMixture mixture({kHexane, kBenzene, kOctane, kWater, kHeptane});
    Smes& smes = mixture.smes;
    const Variant X = Fractions({0.1, 0.15, 0.2, 0.25, 0.3});
    const double h = 0.05;
    for (const double T : {250.0, 300.0, 350.0, 480.0}) {
        const double heatCapacity = smes.CPL(T, X).toDouble();
        const double dH = smes.HL(T + h, X).toDouble() - smes.HL(T - h, X).toDouble();
        const double dS = smes.SL(T + h, X).toDouble() - smes.SL(T - h, X).toDouble();
        EXPECT_NEAR(dH / (2 * h), heatCapacity, 1e-6 * heatCapacity) << T;
        EXPECT_NEAR(dS / (2 * h), heatCapacity / T, 1e-6 * heatCapacity / T) << T;
    }
}

// ---- Two substances whose mixtures can be computed by hand ---------------------------------------------------------

TLatka constants(int number, double M, double Tnbv, std::initializer_list<double> fromROLW) {
    TLatka record = sampleSubstance(number, "Látka " + std::to_string(number));
    record.Mv = static_cast<float>(M);
    record.Tnbv = static_cast<float>(Tnbv);
    std::size_t k = kROLW;
    for (const double value : fromROLW) record.Korelace[k++ - 1].A = {static_cast<float>(value)};
    return record;
}

struct LiquidTest : SampleTest {
    const Variant half = Fractions({0.5, 0.5});

    LiquidTest()
        : SampleTest({sampleSubstance(1, "Voda"), constants(2, 0.1, 300, {1000, 1e-3, 0.1, 100, 3e4, 1e5, 0.0016}),
                      constants(3, 0.2, 400, {500, 4e-3, 0.2, 300, 5e4, 3e4, 0.0256})}) {
        define({2, 3});
    }
    void define(const std::vector<int>& substances) {
        smes.ResetujSmes();
        smes.DefSlozky(List(substances));
        smes.Inivlr();  // so that changes of the records survive
    }
    Variant call(const std::string& name, const Variant& X) { return methodOf(name).call(smes, 350, 1e5, X); }
    double at350(const std::string& name) { return call(name, half).toDouble(); }
};

TEST_F(LiquidTest, everyRuleGivesWhatItsFormulaSays) {
    const double lambda = 1 / std::sqrt((1 / 3.0) / 0.01 + (2 / 3.0) / 0.04);
    const std::pair<const char*, double> values[] = {
        {"ROLW", 0.15 / (0.5 * 1e-4 + 0.5 * 4e-4)},
        {"ETAL", std::sqrt(1e-7 * 1.6e-6) * 600 / 0.15},
        {"ALAL", lambda},
        {"CPL", 200},
        {"DHV", 4e4},
        {"HL", 0.5 * 100 * (350 - 300) + 0.5 * 300 * (350 - 400)},
        {"SL", 0.5 * 100 * std::log(350 / 300.0) + 0.5 * 300 * std::log(350 / 400.0)},
        {"SIGMA", std::pow((0.5 * 0.2 / 1000 + 0.5 * 0.4 / 500) * 600, 4)},
        {"TENS", 65000},
        {"PrL", 200 / 0.15 * 1.6e-3 / lambda},
        {"ReL", 600 / 1.6e-3},
        {"ObjRozL", 0}};
    for (const auto& [name, value] : values) EXPECT_NEAR(at350(name), value, 1e-6 * std::abs(value)) << name;
    EXPECT_EQ(smes.ReL(350, half, 3, "0,5"), smes.ReL(350, half, 0.5, 3));
    EXPECT_DOUBLE_EQ(smes.CPL("350", Fractions({2, 3})).toDouble(), 1100);  // nothing is normalised
    EXPECT_TRUE(messages.empty());
}

TEST_F(LiquidTest, densitiesAreTakenAtTheMixturesReducedTemperature) {
    smes.VLRConst(1, kROLW, 2, -1);  // 1000 - T
    smes.VLRConst(2, kROLW, 1, 1400), smes.VLRConst(2, kROLW, 2, -1);
    EXPECT_NEAR(smes.ROLW(300, half).toDouble(), 0.15 / (0.05 / 700 + 0.1 / 1100), 1e-3);  // equal Tkr: at T itself
    smes.Bod(1, 2, 400), smes.Bod(1, 4, 1e-4);                                             // Tkr, Vkr
    smes.Bod(2, 2, 600), smes.Bod(2, 4, 3e-4);
    // Volume fractions 1/4 and 3/4: 550 K, so 275 K is one half of it, 200 K and 300 K of the components.
    EXPECT_NEAR(smes.ROLW(275, half).toDouble(), 0.15 / (0.05 / 800 + 0.1 / 1100), 1e-3);
    // Above the critical point densities alone are extrapolated, the heat of vaporisation loses its component.
    EXPECT_NEAR(smes.ROLW(605, half).toDouble(), 0.15 / (0.05 / 560 + 0.1 / 740), 1e-3);
    const std::pair<double, double> heats[] = {{399, 4e4}, {400, 2.5e4}, {599, 2.5e4}, {600, 0}, {700, 0}};
    for (const auto& [T, heat] : heats) EXPECT_DOUBLE_EQ(smes.DHV(T, half).toDouble(), heat) << T;
}

TEST_F(LiquidTest, anInvalidEquationIsMixedOnAndRaisedOnlyInModeMinusOne) {
    smes.VLRConst(2, kETAL, 7, 20);
    EXPECT_NEAR(smes.ETAL(350, half).toDouble(), std::sqrt(1e-7 * (1e-8 * 0.2 / 500)) * 600 / 0.15, 1e-12);
    smes.ChyboveHlasky(-1);
    EXPECT_EQ(trapSource([&] { smes.ReL(350, half, 1, 1); }), "VELOR - ETAL; T(K)= 350.0");
    EXPECT_EQ(messages.size(), 2U);
}

TEST_F(LiquidTest, whatCannotBeComputedIsTrappedOrRaisedOrCountsAsZero) {
    using Damage = void (*)(Smes&);
    const Damage density = [](Smes& s) { s.VLRConst(2, kROLW, 1, 0); };      // divided by
    const Damage viscosity = [](Smes& s) { s.VLRConst(2, kETAL, 1, 0); };    // its logarithm
    const Damage tension = [](Smes& s) { s.VLRConst(2, kSIGMA, 1, -1); };    // its root
    const Damage volumes = [](Smes& s) { s.Bod(1, 4, 0), s.Bod(2, 4, 0); };  // Vkr: no mixture density
    const Damage masses = [](Smes& s) { s.Bod(1, 1, 0), s.Bod(2, 1, 0); };
    const Damage boiling = [](Smes& s) { s.Bod(2, 15, 0); };
    const Damage components = [](Smes& s) { s.ResetujSmes(); };
    // The methods that answer so; what is raised is always 11.
    const std::tuple<Damage, std::string, std::string, std::string> cases[] = {
        {density, "ROLW ETAL SIGMA", "PrL", "ReL ObjRozL"},
        {viscosity, "ETAL", "PrL", "ReL"},
        {tension, "SIGMA", "", ""},
        {volumes, "ROLW", "ETAL SIGMA", "ObjRozL ReL"},
        {masses, "ROLW ETAL ALAL", "", "CPLW DHVW HLW SLW PrL"},
        {boiling, "SL", "SLW", ""},
        {components, "ROLW ETAL ALAL", "SL SIGMA TENS CPL DHV HL", "CPLW DHVW HLW SLW PrL ReL ObjRozL"}};
    const auto check = [&](Damage damage, const std::string& names, const Variant& expected, int number) {
        std::istringstream list(names);
        for (std::string name; list >> name;) {
            define({2, 3});
            damage(smes);
            Variant result;
            EXPECT_EQ(errorNumber([&] { result = call(name, half); }), number) << name;
            EXPECT_EQ(result, expected) << name;
        }
    };
    for (const auto& [damage, empty, zero, raising] : cases)
        check(damage, empty, {}, 0), check(damage, zero, 0.0, 0), check(damage, raising, {}, 11);
    define({2, 3});
    EXPECT_TRUE(smes.SL(-10, half).isEmpty());
    EXPECT_EQ(errorNumber([&] { smes.ReL(350, half, "fast", 1); }), 13);
    EXPECT_TRUE(messages.empty());
}

}  // namespace
}  // namespace velor::test
