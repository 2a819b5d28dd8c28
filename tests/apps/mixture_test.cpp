// velor vlastnost with a composition, velor smes and velor prehled on the usual database.
#include <map>
#include <set>

#include "command.h"
#include "runtime/numbers.h"
#include "velor/smes.h"

namespace velor::test {
namespace {

const Words kMixture{"--latky", "voda,ethanol", "--slozeni", "0.4,0.6"};  // substances 1 and 235

Outcome vlastnost(const std::string& name, const Words& more, const Words& mixture = kMixture) {
    Words words{"vlastnost", name};
    words.insert(words.end(), mixture.begin(), mixture.end());
    words.insert(words.end(), more.begin(), more.end());
    words.push_back("--json");
    return run(words);
}

double value(const Outcome& outcome, std::size_t row = 0) {
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
    return outcome.exitCode == 0 ? outcome.json()["hodnoty"][row]["hodnota"].get<double>() : 0;
}

using Method = Variant (*)(Smes&, const Variant& T, const Variant& P, const Variant& X);

template <Variant (Smes::*method)(const Variant&, const Variant&)>
Variant at(Smes& smes, const Variant& T, const Variant&, const Variant& X) {
    return (smes.*method)(T, X);
}

template <Variant (Smes::*method)(const Variant&, const Variant&, const Variant&)>
Variant at(Smes& smes, const Variant& T, const Variant& P, const Variant& X) {
    return (smes.*method)(T, P, X);
}

template <Variant (Smes::*method)(const Variant&, const Variant&)>
Variant saturated(Smes& smes, const Variant&, const Variant& P, const Variant& X) {
    return (smes.*method)(P, X);
}

const std::map<std::string, Method> kMethods{
    {"ROLW", at<&Smes::ROLW>},
    {"ETAL", at<&Smes::ETAL>},
    {"ETAG", at<&Smes::ETAG>},
    {"ALAL", at<&Smes::ALAL>},
    {"ALAG", at<&Smes::ALAG>},
    {"CPL", at<&Smes::CPL>},
    {"CPLW", at<&Smes::CPLW>},
    {"CPG", at<&Smes::CPG>},
    {"CPGW", at<&Smes::CPGW>},
    {"SIGMA", at<&Smes::SIGMA>},
    {"DHV", at<&Smes::DHV>},
    {"DHVW", at<&Smes::DHVW>},
    {"SL", at<&Smes::SL>},
    {"SLW", at<&Smes::SLW>},
    {"HL", at<&Smes::HL>},
    {"HLW", at<&Smes::HLW>},
    {"TENS", at<&Smes::TENS>},
    {"OBJROZL", at<&Smes::ObjRozL>},
    {"PRL", at<&Smes::PrL>},
    {"ROGW", at<&Smes::ROGW>},
    {"RROGW", at<&Smes::RROGW>},
    {"RCPG", at<&Smes::RCPG>},
    {"RCPGW", at<&Smes::RCPGW>},
    {"RCVG", at<&Smes::RCVG>},
    {"RCVGW", at<&Smes::RCVGW>},
    {"RALAG", at<&Smes::RALAG>},
    {"RETAG", at<&Smes::RETAG>},
    {"RHG", at<&Smes::RHG>},
    {"RHGW", at<&Smes::RHGW>},
    {"RSG", at<&Smes::RSG>},
    {"RSGW", at<&Smes::RSGW>},
    {"RUG", at<&Smes::RUG>},
    {"RUGW", at<&Smes::RUGW>},
    {"LNFUG", at<&Smes::LnFug>},
    {"KAPA", at<&Smes::Kapa>},
    {"JTKOEF", at<&Smes::JTkoef>},
    {"TBV", saturated<&Smes::TBV>},
    {"TRB", saturated<&Smes::TRB>},
    {"VSM", [](Smes& smes, const Variant&, const Variant&, const Variant& X) { return smes.VSM(X); }},
};

TEST(MixtureTest, everyNameIsTheMethodOfThatName) {
    RecordingUserInterface boxes;
    Smes smes(boxes);
    smes.AdrVELOR(VELOR_DATABASE);
    smes.DefSlozky(List({1, 235}));
    for (const auto& [name, method] : kMethods) {
        for (const double T : {290.0, 350.0}) {
            const double expected = method(smes, T, 2e4, Fractions({0.4, 0.6})).toDouble();
            const Outcome outcome = vlastnost(name, {"-T", shortestText(T), "-P", "20000"});
            EXPECT_NEAR(value(outcome), expected, 1e-12 * std::abs(expected)) << name << " at " << T;
        }
    }
    const auto list = run({"vlastnost", "--seznam", "--json"}).json()["vlastnosti"];
    EXPECT_EQ(list.size(), kMethods.size());
    for (const auto& row : list) EXPECT_EQ(kMethods.count(row["zkratka"]), 1U) << row["zkratka"];
    EXPECT_TRUE(boxes.messages.empty());
}

TEST(MixtureTest, valuesAgreeWithKnownOnes) {
    const Words benzeneToluene{"--latky", "benzen,toluen", "--slozeni", "0.5,0.5"};
    const Words water{"--latky", "voda"};
    const double M = 0.4 * 0.01801528 + 0.6 * 0.04606844;
    const struct {
        const char* name;
        Words more, mixture;
        double value, tolerance;
    } cases[] = {
        {"VSM", {}, kMixture, M, 1e-8},
        {"rogw", {"-T", "350", "-P", "1e5"}, kMixture, 1e5 * M / (8.314 * 350), 1e-6},
        {"TBV", {"-P", "101325"}, benzeneToluene, 365.3, 0.3},  // 92.1 degrees Celsius, Raoult
        {"TRB", {"-P", "101325"}, benzeneToluene, 371.9, 0.3},  // 98.7
        {"TBV", {"-P", "101325"}, water, 373.15, 0.1},
        {"HL", {"-T", "373.15"}, water, 0, 1e-3},                     // zero at the boiling point
        {"HLW", {"-T", "298.15"}, water, 104.8e3 - 419.1e3, 1.5e3},   // steam tables; below -9999
        {"RROGW", {"-T", "400", "-P", "1e5"}, water, 0.5476, 0.003},  // steam tables
        {"KAPA", {"-T", "300", "-P", "1e5"}, {"--latky", "argon"}, 5.0 / 3.0, 0.01},
    };
    for (const auto& c : cases)
        EXPECT_NEAR(value(vlastnost(c.name, c.more, c.mixture)), c.value, c.tolerance) << c.name;
}

TEST(MixtureTest, fractionsMayBeByMassAndNormalised) {
    const double byMole = value(vlastnost("ROLW", {"-T", "300"}));
    const double water = 0.4 * 0.01801528, ethanol = 0.6 * 0.04606844;
    const std::string w = shortestText(water / (water + ethanol)), rest = shortestText(ethanol / (water + ethanol));
    const struct {
        const char* what;
        Words composition;
    } cases[] = {
        {"mass fractions", {"--slozeni", w + "," + rest, "--hmotove"}},
        {"parts by mass", {"--slozeni", "20.6792;79.3208", "--hmotove", "--normalizovat"}},
        {"parts by mole", {"--slozeni", "2,3", "--normalizovat"}},
        {"decimal commas", {"--slozeni", "0,4;0,6"}},
        {"a sum that is 1 already", {"--slozeni", "0.4,0.6", "--normalizovat"}},
    };
    for (const auto& [what, composition] : cases) {
        const Outcome outcome = vlastnost("ROLW", composition, {"--latky", "voda,ethanol", "-T", "300"});
        EXPECT_NEAR(value(outcome), byMole, 1e-3) << what;
        EXPECT_NEAR(outcome.json()["slozeni"][0]["x"], 0.4, 1e-5) << what;
        EXPECT_NEAR(outcome.json()["slozeni"][0]["w"], water / (water + ethanol), 1e-5) << what;
    }
}

TEST(MixtureTest, aTableHasARowForEachTemperature) {
    Words words{"vlastnost", "RHG", "-T", "350:370:10", "-P", "1e5", "--csv"};
    words.insert(words.end(), kMixture.begin(), kMixture.end());
    const Outcome outcome = run(words);
    const std::string csv = outcome.out;
    EXPECT_EQ(csv.substr(0, csv.find('\n')), "T [K],P [Pa],RHG [J/mol],stav");
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 4);
    expectMentions(csv, "\n360,1e+05,");
}

TEST(MixtureTest, whatTheRuleIsMixedOfShowsInTheValue) {
    const struct {
        const char* name;
        Words arguments;
        const char* standing;
    } cases[] = {
        {"TENS", {"--latky", "voda,ethanol", "--slozeni", "0.4,0.6", "-T", "300"}, "v rozsahu"},
        {"TENS", {"--latky", "methan,toluen", "--slozeni", "0.4,0.6", "-T", "300"}, "0.98 Tkr"},
        {"TENS", {"--latky", "methan,toluen", "--slozeni", "0,1", "-T", "300"}, "v rozsahu"},  // none of it
        {"ETAG", {"--latky", "voda,ethanol", "--slozeni", "0.4,0.6", "-T", "2900"}, "extrapolováno"},
        {"ETAG", {"--latky", "voda,ethanol", "--slozeni", "0.4,0.6", "-T", "2900", "--meze"}, "na mezi"},
    };
    for (const auto& c : cases) {
        const Outcome outcome = vlastnost(c.name, {}, c.arguments);
        ASSERT_EQ(outcome.exitCode, 0) << outcome.error;
        EXPECT_EQ(outcome.json()["hodnoty"][0]["stav"], c.standing) << c.name;
    }
}

TEST(MixtureTest, pseudocriticalValuesAreKays) {
    const auto answer = run({"smes", "--latky", "benzen,toluen", "--slozeni", "0.25,0.75", "--json"}).json();
    const auto entry = [&](const char* key) { return answer["pseudokriticke"][key]["hodnota"].get<double>(); };
    EXPECT_NEAR(entry("TKRITsm"), 0.25 * 562.05 + 0.75 * 591.75, 0.1);
    EXPECT_NEAR(entry("PKRITsm"), entry("ZKRITsm") * 8.314 * entry("TKRITsm") / entry("VKRITsm"), 1);
    EXPECT_NEAR(entry("MSm"), 0.25 * 0.07811184 + 0.75 * 0.09213843, 1e-8);
    EXPECT_LT(answer["rovnovaha"][0]["T"], answer["rovnovaha"][1]["T"]);
}

std::set<std::string> overviewNames(const char* T) {
    const Outcome outcome =
        run({"prehled", "--latky", "benzen,toluen", "--slozeni", "0.5,0.5", "-T", T, "-P", "101325", "--json"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
    std::set<std::string> names;
    const auto answer = outcome.json();
    for (const auto& row : answer["vlastnosti"]) {
        EXPECT_TRUE(row["hodnota"].is_number()) << row["zkratka"] << T;
        names.insert(row["zkratka"]);
    }
    return names;
}

TEST(MixtureTest, theOverviewKnowsThePhases) {
    const auto liquid = overviewNames("350"), both = overviewNames("368"), gas = overviewNames("400");
    EXPECT_EQ(both.size(), kMethods.size());
    EXPECT_EQ(liquid.size() + gas.size(), both.size() + 3);  // VSM, TBV and TRB are shown in both
    for (const char* name : {"ROLW", "TENS", "HL", "SIGMA", "PRL"}) EXPECT_TRUE(liquid.count(name) && !gas.count(name));
    for (const char* name : {"ETAG", "RROGW", "KAPA"}) EXPECT_TRUE(gas.count(name) && !liquid.count(name));
}

TEST(MixtureTest, theOverviewHasTheLibrarysCaptions) {
    Words words{"prehled", "-T", "300"};
    words.insert(words.end(), kMixture.begin(), kMixture.end());
    const Outcome outcome = run(words);
    for (const char* line : {"Hustota (l)", "Mol.výparné teplo (l)", "kapalina\n", "kg/m³"})
        expectMentions(outcome.out, line);
}

}  // namespace
}  // namespace velor::test
