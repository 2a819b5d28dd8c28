// velor vlastnost with a composition, velor smes and velor prehled on the usual database.
#include "command.h"
#include "velor/smes.h"

namespace velor::test {
namespace {

const std::string kMixture = " --latky voda,ethanol --slozeni 0.4,0.6";  // substances 1 and 235

Outcome vlastnost(const std::string& line) { return run(words("vlastnost " + line + " --json")); }

double value(const Outcome& outcome) {
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
    return outcome.exitCode == 0 ? outcome.json()["hodnoty"][0]["hodnota"].get<double>() : 0;
}

TEST(MixtureTest, everyNameGivesTheLibrarysValue) {
    RecordingUserInterface boxes;
    Smes smes(boxes);
    smes.AdrVELOR(VELOR_DATABASE);
    smes.DefSlozky(List({1, 235}));
    const auto rows = vlastnost("--seznam").json()["vlastnosti"];
    EXPECT_EQ(rows.size(), 39U);
    for (const auto& row : rows) {
        const std::string name = row["zkratka"];
        const double expected = smes.Vlastnost(name, Fractions({0.4, 0.6}), 380, 2e4).toDouble();
        const bool isSolved = name == "TBV" || name == "TRB";  // in full, where the library stops within 0.02 K
        EXPECT_NEAR(value(vlastnost(name + kMixture + " -T 380 -P 20000")), expected,
                    isSolved ? 0.02 : 1e-12 * std::abs(expected));
    }
    EXPECT_TRUE(boxes.messages.empty());
}

TEST(MixtureTest, fractionsMayBeByMassAndNormalised) {
    const double byMole = value(vlastnost("ROLW -T 300" + kMixture));
    const double water = 0.4 * 0.01801528, ethanol = 0.6 * 0.04606844;
    for (const char* composition : {"20.6792;79.3208 --hmotove --normalizovat", "2,3 --normalizovat", "0,4;0,6"}) {
        const Outcome outcome = vlastnost(std::string("ROLW -T 300 --latky voda,ethanol --slozeni ") + composition);
        EXPECT_NEAR(value(outcome), byMole, 1e-3) << composition;
        EXPECT_NEAR(outcome.json()["slozeni"][0]["x"], 0.4, 1e-5) << composition;
        EXPECT_NEAR(outcome.json()["slozeni"][0]["w"], water / (water + ethanol), 1e-5) << composition;
    }
}

TEST(MixtureTest, aTableHasARowForEachTemperature) {
    const std::string csv = run(words("vlastnost RHG -T 350:370:10 -P 1e5 --csv" + kMixture)).out;
    EXPECT_EQ(csv.substr(0, csv.find('\n')), "T [K],P [Pa],RHG [J/mol],stav");
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 4);
    expectMentions(csv, "\n360,1e+05,");
    EXPECT_EQ(vlastnost("ETAG -T 1200" + kMixture).json()["hodnoty"][0]["stav"], "extrapolováno");
}

}  // namespace
}  // namespace velor::test
