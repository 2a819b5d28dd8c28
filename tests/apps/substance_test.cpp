// velor latka: finding a substance and showing it.
#include "small_database.h"

namespace velor::test {
namespace {

struct SubstanceTest : ::testing::Test {
    SmallDatabase database;

    Outcome latka(const Words& name, const std::string& form = "--json") const {
        return database.run(words("latka " + form, name));
    }
};

TEST_F(SubstanceTest, isFoundByWhatItIsCalled) {
    // clang-format off
    const std::pair<Words, int> cases[] = {
        {{" 002 "}, 2}, {{"ethan"}, 8},   // the whole name, although Ethanol begins with it
        {{"ETHYLALKOHOL"}, 2}, {{"kyselina", "octova"}, 4},  // words without quotes, no diacritics
        {{"KYSELINA  OCTOVA\u0301"}, 4}, {{"octová"}, 4},    // decomposed; a part of one name only
        {{"water"}, 1}, {{"dme"}, 3},     // without what its synonym has in brackets, or only that
        {{"toluol"}, 10}, {{"2,2-dimethylpropan"}, 5}, {{"64-17-5"}, 2},
        {{"CO"}, 6}, {{"Co"}, 7}, {{"h2o"}, 1}};  // letter case decides in a formula where it has to
    // clang-format on
    for (const auto& [name, number] : cases) EXPECT_EQ(latka(name).json()["latka"]["cislo"], number) << name[0];
}

TEST_F(SubstanceTest, whatIsAmbiguousListsTheCandidates) {
    const std::pair<std::string, Words> cases[] = {
        {"C2H6O", {"2  Ethanol – Ethylalkohol  C2H6O", "3  Dimethylether – Dimethyl ether (DME)  C2H6O"}},
        {"co", {"6  Oxid uhelnatý – Carbon monoxide  CO", "7  Kobalt – Cobalt  Co"}},
    };
    for (const auto& [name, lines] : cases) {
        const Outcome outcome = latka({name});
        expectFailure(outcome, 1, "může být více látek (" + std::to_string(lines.size()) + ")");
        for (const std::string& line : lines) expectMentions(outcome.error, line);
    }
}

TEST_F(SubstanceTest, whatIsUnknownIsSaidSo) {
    const std::tuple<const char*, const char*, int> cases[] = {
        {"etanol", "Mohlo by jít o:\n  2  Ethanol", 1},
        {"thanol", "Mohlo by jít o:\n  2  Ethanol", 1},  // inside a word nothing begins
        {"methyl", "Mohlo by jít o:\n  10  Toluen", 1},
        {"xyzzyq", "Látka „xyzzyq“ není v bázi.\n", 1},
        {"9", "„9“ není v bázi. Čísla látek jsou 1 až 11.", 1},  // an unused record
        {"65537", "není v bázi", 1},                             // 1 in 16 bits
        {"99999999999999999999", "není v bázi", 1},
        {"", "Chybí číslo, název, vzorec nebo CAS", 2},
        {"\u0301", "Chybí číslo, název, vzorec nebo CAS", 2},  // nothing but an accent: part of every name
    };
    for (const auto& [name, phrase, exitCode] : cases) expectFailure(latka({name}), exitCode, phrase);
    expectFailure(latka({"11"}), 1, "přetečení nebo poškozené číslo (chyba 6)");
}

TEST_F(SubstanceTest, correlationsAreShownAsTheRecordHoldsThem) {
    const auto correlations = latka({"10"}).json()["korelace"];
    ASSERT_EQ(correlations.size(), 10U);
    EXPECT_EQ(correlations[8], nlohmann::json::parse(R"({"vlastnost": "TENS", "popis": "tenze par", "jednotka": "Pa",
        "Tmin": 100, "Tmax": 240, "typ": 7, "A1": 0.3, "A2": 0.25, "A3": 250.0, "A4": 0.0, "A5": 0.0, "A6": 0.0,
        "zdroj": null, "odchylka": null, "odhad": null, "vztah": "log(y) = 3 + log(A1) - (1 - T/A3)^(2/7) .log(A2)    A3=Tkr"})"));
    EXPECT_EQ(correlations[6]["vztah"], "Neznámý vztah!");
    EXPECT_TRUE(correlations[9]["A1"].is_null() && correlations[9]["Tmax"].is_null());
    expectMentions(latka({"10"}, "--csv").out, "\nTENS.Tmax,Tmax,240,K\n");
    expectMentions(latka({"1"}, "").out, "Doplněk báze VELOR.DOP chybí.");
    expectMentions(run(words("latka 226")).out, "odhad");
    expectMentions(latka({"1"}, "").out, "\nKonstanty\n");
    expectMentions(latka({"1"}, "").out, "IAPWS");  // water's density has an equation of its own
    EXPECT_EQ(latka({"2"}, "").out.find("IAPWS"), std::string::npos);
}

}  // namespace
}  // namespace velor::test
