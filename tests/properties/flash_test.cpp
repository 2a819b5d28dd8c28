// Flashes against Raoult's law solved apart from the library, the rules of the iteration, and the report.
#include "rules/flash.h"

#include <algorithm>
#include <numeric>

#include "dialogs/typed_composition.h"
#include "support/real_mixture.h"
#include "support/sample_test.h"

namespace velor::test {
namespace {

// Pentane to decane, cyclohexane, methylcyclohexane, benzene, toluene, ethylbenzene, o- and p-xylene, acetone,
// butanone, methanol, ethanol, both propanols, ethyl acetate.
const std::vector<std::int32_t> kSubstances{109660, 110543, 142825, 111659, 111842, 124185, 110827,
                                            108872, 71432,  108883, 100414, 95476,  106423, 67641,
                                            78933,  67561,  64175,  71238,  67630,  141786};

struct Feed {
    std::vector<std::int32_t> substances;
    std::vector<double> z;
};

// The n substances from the given one on (cyclically), in uneven amounts.
Feed feedOf(std::size_t n, std::size_t first) {
    Feed feed;
    for (std::size_t i = 0; i < n; ++i) {
        feed.substances.push_back(kSubstances[(first + 3 * i) % kSubstances.size()]);
        feed.z.push_back(1.0 + static_cast<double>((7 * i + first) % 5));
    }
    const double sum = std::accumulate(feed.z.begin(), feed.z.end(), 0.0);
    for (double& z : feed.z) z /= sum;
    return feed;
}

// Raoult's law, solved apart from the library on the same vapour pressures.
struct Ideal {
    Smes& smes;
    const std::vector<double>& z;
    double P;

    double K(std::size_t i, double T) const { return smes.FFce(T, static_cast<int>(i) + 1, 9).toDouble() / P; }
    double dewPoint(double highest) const {
        return bisect(150, highest, [&](double T) {
            double sum = 0;
            for (std::size_t i = 0; i < z.size(); ++i) sum += z[i] / K(i, T);
            return 1 - sum;
        });
    }
    double vapourFraction(double T) const {
        return bisect(0, 1, [&](double V) {
            double sum = 0;
            for (std::size_t i = 0; i < z.size(); ++i) sum += z[i] * (1 - K(i, T)) / (1 - V * (1 - K(i, T)));
            return sum;
        });
    }
};

// A K-value that leaps between passes has no solution; the last pass tells so.
TEST(FlashRule, endsAfterThirtyPasses) {
    const std::vector<double> z{0.5, 0.5}, K{2.0, 0.5}, other{3.0, 0.6};
    int passes = 0;
    FlashSolution solution;
    isothermalFlash(solution, 350.0, z, [&](double) { return Equilibrium{++passes % 2 ? K : other, {}}; });
    EXPECT_FALSE(solution.converged);
    EXPECT_EQ(solution.passes, 30);
    EXPECT_EQ(passes, 30);
}

// The products make up the feed and are in equilibrium.
void expectSplit(const FlashRecord& found, const std::vector<double>& z, double tolerance) {
    double sumX = 0, sumY = 0;
    for (std::size_t i = 0; i < z.size(); ++i) {
        const double V = found.vapourFraction, x = found.liquid[i], y = found.vapour[i];
        EXPECT_NEAR(V * y + (1 - V) * x, z[i], tolerance);
        if (!found.equilibrium.empty()) {
            EXPECT_NEAR(y, found.equilibrium[i] * x, tolerance);
        }
        sumX += x;
        sumY += y;
    }
    EXPECT_NEAR(sumX, found.outcome == FlashOutcome::AllVapour ? 0 : 1, 5e-3);
    EXPECT_NEAR(sumY, found.outcome == FlashOutcome::AllLiquid ? 0 : 1, 5e-3);
}

void expectIsothermalFlash(const Feed& feed, double P, double share, int& iterated) {
    RealMixture mixture(feed.substances);
    const Ideal ideal{mixture.smes, feed.z, P};
    double highest = 1e9;  // the method holds its dew point below the critical temperatures
    for (int i = 1; i <= static_cast<int>(feed.z.size()); ++i)
        highest = std::min(highest, 0.95 * mixture.smes.Tkri(i).toDouble());
    const double Td = ideal.dewPoint(highest), Tb = mixture.smes.TBV(P, Fractions(feed.z)).toDouble();
    EXPECT_NEAR(mixture.smes.TENS(Tb, Fractions(feed.z)).toDouble(), P, 1e-3 * P);
    const double T = Tb + share * (Td - Tb);
    Variant hostT = T, hostP = P;
    mixture.smes.FLASH(0, hostT, hostP, Fractions(feed.z));
    const FlashRecord& found = mixture.smes.lastFlash();
    if (Td > highest - 0.1) {
        EXPECT_EQ(found.outcome == FlashOutcome::AllVapour, T > found.dewPoint);
    } else {
        EXPECT_NEAR(found.dewPoint, Td, 0.03);
        EXPECT_NEAR(found.vapourFraction, share < 0 ? 0 : share > 1 ? 1 : ideal.vapourFraction(T), 1e-3);
        iterated += found.outcome == FlashOutcome::Converged ? 1 : 0;
    }
    if (found.outcome != FlashOutcome::NotConverged) expectSplit(found, feed.z, 1e-3);
    EXPECT_EQ(hostT, Variant(T));
}

TEST(IsothermalFlash, agreesWithAnIndependentSolution) {
    int iterated = 0;
    for (const std::size_t n : {2U, 3U, 5U, 10U, 20U})
        for (std::size_t first = 0; first < 6; ++first)
            for (const double P : {10e3, 101325.0, 600e3})
                for (const double share : {-0.2, 0.05, 0.3, 0.6, 0.9, 1.2}) {
                    SCOPED_TRACE(std::to_string(n) + " from " + std::to_string(first) + " at " + std::to_string(P));
                    expectIsothermalFlash(feedOf(n, first), P, share, iterated);
                }
    EXPECT_GE(iterated, 250);
}

TEST(AdiabaticFlash, closesTheEnthalpyBalance) {
    int converged = 0;
    for (const std::size_t n : {2U, 3U, 5U, 10U})
        for (std::size_t first = 0; first < 5; ++first)
            for (const double superheat : {10.0, 25.0, 45.0}) {
                const Feed feed = feedOf(n, first);
                RealMixture mixture(feed.substances);
                Smes& smes = mixture.smes;
                const Variant z = Fractions(feed.z), P = 101325;
                const double T0 = smes.TBV(P, z).toDouble() + superheat, H0 = smes.HL(T0, z).toDouble();
                Variant T = T0, hostP = P;
                smes.FLASH(1, T, hostP, z);
                const FlashRecord found = smes.lastFlash();
                if (found.outcome != FlashOutcome::Converged) {
                    EXPECT_EQ(T, Variant(T0));
                    continue;
                }
                ++converged;
                EXPECT_EQ(T, Variant(found.temperature));
                expectSplit(found, feed.z, 5e-3);
                const Ideal ideal{smes, feed.z, 101325};
                const double V = found.vapourFraction, liquid = smes.HL(T, Fractions(found.liquid)).toDouble();
                EXPECT_NEAR(V, ideal.vapourFraction(found.temperature), 5e-3);
                // The two tolerances, 0.1 K and 0.0005 of the heat of vaporisation, leave about 50 J/mol.
                const double vapour = smes.RHG(T, P, Fractions(found.vapour)).toDouble();
                EXPECT_NEAR((1 - V) * liquid + V * vapour, H0, 60) << n << " from " << first << ' ' << superheat;
            }
    EXPECT_GT(converged, 30);  // of 60
}

TEST(TypedComposition, endsAValueAtTheLaterSeparator) {
    const std::pair<const char*, std::vector<double>> cases[] = {{" 0,5;0.3 0.2 ", {0.5, 0.2}},
                                                                 {"0.5; 0.5", {0.5, 0.5}},
                                                                 {"0.5  0.5", {0.5, 0, 0.5}},
                                                                 {"a b", {0, 0}},
                                                                 {"1;", {1}},
                                                                 {"   ", {}},
                                                                 {"1 2;3", {1, 3}}};
    for (const auto& [text, fractions] : cases) EXPECT_EQ(parseComposition(text), fractions) << text;
    std::string twenty;
    for (int i = 0; i < 20; ++i) twenty += "1 ";
    EXPECT_EQ(parseComposition(twenty).size(), 20U);
    EXPECT_EQ(errorNumber([&] { parseComposition(twenty + "1"); }), 9);
}

// Two substances whose vapour pressures are 1000 (T - 250.02) and 250 (T - 250.02), so that everything can be followed
// by hand: for the equimolar feed at 50 kPa the bubble point is 330.02 K and the dew point 375.02 K.
struct FlashReportTest : SampleTest {
    static std::vector<TLatka> substances() {
        TLatka light = sampleSubstance(2, "Lehká látka"), heavy = sampleSubstance(3, "Těžká látka");
        light.Korelace[8] = {{-250020, 1000}, 1, 1, 200, 500};
        heavy.Korelace[8] = {{-62505, 250}, 1, 1, 200, 500};
        return {sampleSubstance(1, "Voda"), light, heavy};
    }
    FlashReportTest() : SampleTest(substances()) { smes.DefSlozky(List({2, 3})); }

    std::string flash(int mode, double T, const Variant& Z) {
        Variant hostT = T, P = 50000;
        return smes.FLASH(mode, hostT, P, Z);
    }
};

TEST_F(FlashReportTest, isWrittenToTheByte) {
    const std::string blanks(19, ' '), head = "Složka\t\t\t\t\t\t\tPára\tKapalina\tNástřik\r\n";
    const std::string range = "Bod varu(°C), rosný bod(°C)  : \t56.9\t101.9\r\n" + head + "Lehká látka" + blanks;
    const Message allVapour{"Zadáno T > rosný bod : Vše odpařeno", Icon::Exclamation, "VELOR"};
    EXPECT_TRUE(flash(0, 400, Fractions({0.5, 0.5}))
                    .starts_with("FLASH výpočet izotermní\r\n" + allVapour.text +
                                 "\r\n"
                                 "Poměr parní fáze k nástřiku: \t1.0000\r\n"));
    EXPECT_EQ(messages, std::vector{allVapour});

    // At 350.02 K, K = 2 and 0.5: V = 0.5, x = 1/3 and 2/3, y = 2/3 and 1/3; TENS = 62.5 kPa.
    messages.clear();
    EXPECT_EQ(flash(0, 350.02, Fractions({0.5, 0.5})),
              "FLASH výpočet izotermní\r\n"
              "Poměr parní fáze k nástřiku: \t0.5000\r\n"
              "Teplota poč., koncová (°C)   : \t76.9\t76.9\r\n"
              "Tlak poč., koncový (kPa)     : \t62.500\t50.000\r\n" +
                  range + "\t0.6667\t0.3333\t0.5000\r\nTěžká látka" + blanks + "\t0.3333\t0.6667\t0.5000\r\n\r\n");
    EXPECT_TRUE(messages.empty());

    // The pressure kept from the flash before is printed by a trivial one; the feed need not sum to 1.
    EXPECT_EQ(flash(1, 300, Fractions({2, 2})),
              "FLASH výpočet adiabatický\r\nZadáno T < bod varu: Vše kapalné\r\n"
              "Poměr parní fáze k nástřiku: \t0.0000\r\n"
              "Teplota poč., koncová (°C)   : \t26.9\t26.9\r\n"
              "Tlak poč., koncový (kPa)     : \t62.500\t50.000\r\n" +
                  range + "\t0.0000\t0.5000\t0.5000\r\nTěžká látka" + blanks + "\t0.0000\t0.5000\t0.5000\r\n\r\n");
    EXPECT_EQ(messages,
              (std::vector<Message>{{"FLASH chybně zadané složení, součet 4.00000", Icon::Information, "FLASH"},
                                    {"Zadáno T < bod varu: Vše kapalné", Icon::Exclamation, "VELOR"}}));
    EXPECT_EQ(smes.PocHlasek(), 1);  // the trivial boxes are not counted

    smes.ChyboveHlasky(2);
    messages.clear();
    flash(7, 400, Fractions({1, 1}));             // any other mode is isothermal
    EXPECT_EQ(messages, std::vector{allVapour});  // the trivial box comes whatever the mode
}

TEST_F(FlashReportTest, asksForEverything) {
    RecordingUserInterface& boxes = mixture.boxes;
    boxes.nextTexts = {"0", "abc", "-5", "50000", "", "0,5", "0,5 0,5", "76,87"};
    Variant T = 1, P = 2;
    const std::string report = smes.FLASH(-1, T, P, Variant());
    const std::string feedPrompt = "Zadat složení nástřiku (mol.zl.) oddělené mezerou nebo středníkem: ";
    const InputRequest pressure{"Zadat tlak(Pa):", "FLASH", "101300"},
        feed{feedPrompt, "FLASH", "", Question::FlashFeed};
    const InputRequest mode{"FLASH  0-izotermní; 1-adiabatický:", "VELOR", "0"};
    const InputRequest temperature{"Zadat teplotu(°C):\r\nBod varu  56.9\r\nRosný bod 101.9", "VELOR", "88.4"};
    EXPECT_EQ(boxes.requests, (std::vector{mode, pressure, pressure, pressure, feed, feed, feed, temperature}));
    EXPECT_EQ(messages,
              (std::vector<Message>{{"Nezadáno tolik mol.zlomků, kolik je složek! 2", Icon::Exclamation, "FLASH"}}));
    EXPECT_NE(report.find("\t0.6667\t0.3333\t0.5000"), std::string::npos);
    EXPECT_NEAR(T.toDouble(), 350.02, 1e-9);
    EXPECT_EQ(P, Variant(50000.0));
}

}  // namespace
}  // namespace velor::test
