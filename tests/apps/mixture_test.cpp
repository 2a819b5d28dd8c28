// velor vlastnost with a composition, velor smes and velor prehled on the usual database.
#include <set>

#include "command.h"
#include "runtime/numbers.h"
#include "velor/smes.h"

namespace velor::test {
namespace {

const std::string kMixture = " --latky voda,ethanol --slozeni 0.4,0.6";  // substances 1 and 235

Outcome vlastnost(const std::string& line) { return run(words("vlastnost " + line + " --json")); }

double value(const Outcome& outcome) {
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
    return outcome.exitCode == 0 ? outcome.json()["hodnoty"][0]["hodnota"].get<double>() : 0;
}

std::set<std::string> namesIn(const nlohmann::json& rows) {
    std::set<std::string> names;
    for (const auto& row : rows) names.insert(row["zkratka"]);
    return names;
}

TEST(MixtureTest, everyNameGivesTheLibrarysValue) {
    RecordingUserInterface boxes;
    Smes smes(boxes);
    smes.AdrVELOR(VELOR_DATABASE);
    smes.DefSlozky(List({1, 235}));
    const auto names = namesIn(vlastnost("--seznam").json()["vlastnosti"]);
    EXPECT_EQ(names.size(), 39U);
    for (const std::string& name : names) {
        const double expected = smes.Vlastnost(name, Fractions({0.4, 0.6}), 380, 2e4).toDouble();
        EXPECT_NEAR(value(vlastnost(name + kMixture + " -T 380 -P 20000")), expected, 1e-12 * std::abs(expected));
    }
    EXPECT_TRUE(boxes.messages.empty());
}

TEST(MixtureTest, valuesAgreeWithKnownOnes) {
    const double M = 0.4 * 0.01801528 + 0.6 * 0.04606844;
    const std::tuple<std::string, double, double> cases[] = {
        {"VSM" + kMixture, M, 1e-8},
        {"rogw -T 350 -P 1e5" + kMixture, 1e5 * M / (8.314 * 350), 1e-6},
        {"TBV -P 101325 --latky benzen,toluen --slozeni 0.5,0.5", 365.3, 0.3},  // 92.1 degrees Celsius, Raoult
        {"HLW -T 298.15 --latky voda", 104.8e3 - 419.1e3, 1.5e3},               // steam tables; below -9999
        {"RROGW -T 400 -P 1e5 --latky voda", 0.5476, 0.003},                    // steam tables
        {"KAPA -T 300 -P 1e5 --latky argon", 5.0 / 3.0, 0.01},
    };
    for (const auto& [line, known, tolerance] : cases) EXPECT_NEAR(value(vlastnost(line)), known, tolerance) << line;
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
}

TEST(MixtureTest, whatTheRuleIsMixedOfShowsInTheValue) {
    const std::pair<const char*, const char*> cases[] = {
        {"TENS --latky methan,toluen --slozeni 0.4,0.6 -T 300", "0.98 Tkr"},
        {"TENS --latky methan,toluen --slozeni 0,1 -T 300", "v rozsahu"},  // none of it
        {"ETAG --latky voda,ethanol --slozeni 0.4,0.6 -T 2900", "extrapolováno"},
        {"ETAG --latky voda,ethanol --slozeni 0.4,0.6 -T 2900 --meze", "na mezi"},
    };
    for (const auto& [line, standing] : cases)
        EXPECT_EQ(vlastnost(line).json()["hodnoty"][0]["stav"], standing) << line;
}

TEST(MixtureTest, theOverviewKnowsThePhases) {
    const auto overview = [](const std::string& T) {
        return namesIn(run(words("prehled --latky benzen,toluen --slozeni 0.5,0.5 -P 101325 --json -T " + T))
                           .json()["vlastnosti"]);
    };
    const auto liquid = overview("350"), both = overview("368"), gas = overview("400");
    EXPECT_EQ(both.size(), 39U);
    EXPECT_EQ(liquid.size() + gas.size(), both.size() + 3);  // VSM, TBV and TRB are shown in both
    EXPECT_TRUE(liquid.contains("ROLW") && !gas.contains("ROLW") && gas.contains("KAPA"));
    const Outcome text = run(words("prehled -T 300" + kMixture));
    for (const char* line : {"Hustota (l)", "Mol.výparné teplo (l)", "kapalina\n", "kg/m³"})
        expectMentions(text.out, line);
}

}  // namespace
}  // namespace velor::test
