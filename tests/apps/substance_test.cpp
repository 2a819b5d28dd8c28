// velor latka: finding a substance and showing it.
#include "small_database.h"

namespace velor::test {
namespace {

struct SubstanceTest : ::testing::Test {
    SmallDatabase database;

    Outcome latka(const Words& name, const std::string& form = "--json") const {
        Words words{"latka"};
        words.insert(words.end(), name.begin(), name.end());
        words.push_back(form);
        return database.run(words);
    }
};

TEST_F(SubstanceTest, isFoundByWhatItIsCalled) {
    const struct {
        Words name;
        int number;
    } cases[] = {
        {{"2"}, 2},
        {{" 002 "}, 2},
        {{"Ethanol"}, 2},
        {{"ethan"}, 8},  // the whole name, although Ethanol begins with it
        {{"ETHYLALKOHOL"}, 2},
        {{"kyselina", "octova"}, 4},  // words without quotes, no diacritics
        {{"KYSELINA  OCTOVÁ"}, 4},
        {{"kyselina octova\u0301"}, 4},  // decomposed, as some systems type it
        {{"octová"}, 4},                 // a part of one name only
        {{"water"}, 1},                  // without what its synonym has in brackets
        {{"dme"}, 3},
        {{"toluol"}, 10},  // the second of two synonyms
        {{"2,2-dimethylpropan"}, 5},
        {{"CO"}, 6},  // letter case decides in a formula ...
        {{"Co"}, 7},
        {{"h2o"}, 1},  // ... where it has to
        {{"64-17-5"}, 2},
    };
    for (const auto& [name, number] : cases) {
        const Outcome outcome = latka(name);
        ASSERT_EQ(outcome.exitCode, 0) << name[0] << outcome.error;
        EXPECT_EQ(outcome.json()["latka"]["cislo"], number) << name[0];
    }
}

TEST_F(SubstanceTest, whatIsAmbiguousListsTheCandidates) {
    const struct {
        std::string name;
        Words lines;
    } cases[] = {
        {"C2H6O", {"2  Ethanol – Ethylalkohol  C2H6O", "3  Dimethylether – Dimethyl ether (DME)  C2H6O"}},
        {"co", {"6  Oxid uhelnatý – Carbon monoxide  CO", "7  Kobalt – Cobalt  Co"}},
        {"methyl", {"3  Dimethylether", "5  2,2-Dimethylpropan", "10  Toluen"}},
    };
    for (const auto& [name, lines] : cases) {
        const Outcome outcome = latka({name});
        expectFailure(outcome, 1, "může být více látek (" + std::to_string(lines.size()) + ")");
        for (const std::string& line : lines) expectMentions(outcome.error, line);
    }
}

TEST_F(SubstanceTest, whatIsUnknownIsSaidSo) {
    const struct {
        std::string name, phrase;
        int exitCode;
    } cases[] = {
        {"etanol", "Podobné názvy:\n  2  Ethanol", 1},
        {"xyzzyq", "Látka „xyzzyq“ není v bázi.\n", 1},
        {"9", "„9“ není v bázi. Čísla látek jsou 1 až 11.", 1},  // an unused record
        {"12", "není v bázi", 1},
        {"0", "není v bázi", 1},
        {"65537", "není v bázi", 1},  // 1 in 16 bits
        {"99999999999999999999", "není v bázi", 1},
        {"64-17-6", "není v bázi", 1},
        {"", "Chybí číslo, název, vzorec nebo CAS", 2},
        {"\u0301", "Chybí číslo, název, vzorec nebo CAS", 2},  // nothing but an accent: part of every name
    };
    for (const auto& [name, phrase, exitCode] : cases) expectFailure(latka({name}), exitCode, phrase);
}

TEST_F(SubstanceTest, constantsThatAreNotKnownHaveNoValue) {
    const auto constants = latka({"10"}).json()["konstanty"];
    EXPECT_TRUE(constants["Gyr"]["hodnota"].is_null());
    EXPECT_EQ(constants["Mv"]["hodnota"], 0.046);  // the decimal number, not its nearest single
    EXPECT_EQ(constants["Mv"]["jednotka"], "kg/mol");
    expectMentions(latka({"10"}, "--csv").out, "\nGyr,gyrační poloměr,,m\n");
    expectMentions(database.run({"latka", "10"}).out, "gyrační poloměr             neznámá\n");
    EXPECT_EQ(latka({"10"}).json()["latka"]["CAS"], "");
}

TEST_F(SubstanceTest, correlationsAreShownAsTheRecordHoldsThem) {
    const auto correlations = latka({"10"}).json()["korelace"];
    ASSERT_EQ(correlations.size(), 10U);
    const auto& tens = correlations[8];
    EXPECT_EQ(tens["vlastnost"], "TENS");
    EXPECT_EQ(tens["jednotka"], "Pa");
    EXPECT_EQ(tens["Tmin"], 100);
    EXPECT_EQ(tens["Tmax"], 240);
    EXPECT_EQ(tens["typ"], 7);
    EXPECT_EQ(tens["vztah"], "log(y) = 3 + log(A1) - (1 - T/A3)^(2/7) .log(A2)    A3=Tkr");
    EXPECT_EQ(tens["A1"], 0.3);
    EXPECT_EQ(correlations[6]["vztah"], "Neznámý vztah!");
    EXPECT_TRUE(correlations[9]["A1"].is_null());
    EXPECT_TRUE(correlations[9]["Tmax"].is_null());
    expectMentions(latka({"10"}, "--csv").out, "\nTENS.Tmax,Tmax,240,K\n");
}

TEST_F(SubstanceTest, aDamagedRecordIsAnErrorInWords) {
    expectFailure(latka({"11"}), 1, "přetečení nebo poškozené číslo (chyba 6)");
}

TEST_F(SubstanceTest, waterSaysThatItsDensityHasAnEquationOfItsOwn) {
    expectMentions(database.run({"latka", "1"}).out, "IAPWS");
    EXPECT_EQ(database.run({"latka", "2"}).out.find("IAPWS"), std::string::npos);
}

}  // namespace
}  // namespace velor::test
