// velor rovnovaha and velor flash: laws that the figures have to keep, and the library called directly.
#include "command.h"
#include "runtime/numbers.h"
#include "velor/smes.h"

namespace velor::test {
namespace {

TEST(EquilibriumTest, theDewPointOfTheVapourIsTheBubblePointOfItsLiquid) {
    const Outcome outcome = run({"rovnovaha", "--latky", "benzen,toluen", "-P", "101325", "--body", "5", "--json"});
    ASSERT_EQ(outcome.exitCode, 0) << outcome.error;
    const auto rows = outcome.json()["rovnovaha"];
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_NEAR(rows[0]["Tb"], 383.75, 0.1);  // toluene boils
    EXPECT_NEAR(rows[4]["Tb"], 353.25, 0.1);  // benzene
    for (std::size_t i = 1; i < 4; ++i) {
        const double y = rows[i]["y"];
        EXPECT_EQ(rows[i]["x"], 0.25 * static_cast<double>(i));
        EXPECT_GT(y, rows[i]["x"]);  // the lighter one gathers in the vapour
        const auto dew = run({"vlastnost", "TRB", "--latky", "benzen,toluen", "-P", "101325", "--json",
                              "--normalizovat", "--slozeni", shortestText(y) + "," + shortestText(1 - y)})
                             .json();
        EXPECT_NEAR(dew["hodnoty"][0]["hodnota"], rows[i]["Tb"], 0.05);
    }
}

TEST(EquilibriumTest, csvHasALinePerPoint) {
    const std::string csv = run({"rovnovaha", "--latky", "methanol,voda", "--csv"}).out;
    EXPECT_EQ(csv.substr(0, csv.find('\n')),
              "x (Methanol),bod varu [K],bod varu – stav,y (Methanol),rosný bod páry složení x [K],rosný bod – stav");
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 22);
}

const Words kFeed{"flash", "--latky", "pentan,hexan,heptan", "--slozeni", "0.3,0.3,0.4"};

Outcome flash(const Words& more) {
    Words words = kFeed;
    words.insert(words.end(), more.begin(), more.end());
    return run(words);
}

TEST(FlashTest, productsMakeUpTheFeed) {
    for (const Words& more : {Words{"-T", "345"}, Words{"-T", "400", "--adiabaticky"}, Words{"-T", "300"}}) {
        Words words = more;
        words.push_back("--json");
        const Outcome outcome = flash(words);
        ASSERT_EQ(outcome.exitCode, 0) << outcome.error;
        const auto answer = outcome.json();
        const double V = answer["flash"]["V"]["hodnota"];
        for (const auto& row : answer["slozky"]) {
            EXPECT_NEAR(V * row["y"].get<double>() + (1 - V) * row["x"].get<double>(), row["z"], 2e-3);
            if (row["K"].is_number()) {
                EXPECT_NEAR(row["K"], row["y"].get<double>() / row["x"].get<double>(), 2e-2);
            }
        }
        EXPECT_EQ(answer["slozky"][0]["K"].is_null(), answer["flash"]["vysledek"] == "vše kapalné");
    }
}

TEST(FlashTest, theAdiabaticOneKeepsTheEnthalpy) {
    const auto answer = flash({"-T", "400", "--adiabaticky", "--json"}).json();
    const double V = answer["flash"]["V"]["hodnota"], T = answer["flash"]["T"]["hodnota"];
    EXPECT_LT(T, 400);
    RecordingUserInterface boxes;
    Smes smes(boxes);
    smes.AdrVELOR(VELOR_DATABASE);
    smes.DefSlozky(List({41, 42, 43}));
    std::vector<double> x, y;
    for (const auto& row : answer["slozky"]) {
        x.push_back(row["x"]);
        y.push_back(row["y"]);
    }
    const double products =
        (1 - V) * smes.HL(T, Fractions(x)).toDouble() + V * smes.RHG(T, 101325, Fractions(y)).toDouble();
    EXPECT_NEAR(products, smes.HL(400, Fractions({0.3, 0.3, 0.4})).toDouble(), 60);  // of some 30 000 J/mol
}

TEST(FlashTest, theTextIsTheLibrarysReport) {
    const std::string report = flash({"-T", "340"}).out;
    for (const char* line : {"FLASH výpočet izotermní\n", "Poměr parní fáze k nástřiku: \t0.", "\nPentan "})
        expectMentions(report, line);
    EXPECT_EQ(report.find('\r'), std::string::npos);
    expectMentions(flash({"-T", "340", "--csv"}).out, "\nvysledek,výsledek,dvě fáze,\n");
    expectMentions(flash({"-T", "500"}).out, "Zadáno T > rosný bod : Vše odpařeno");
}

// In a shell, because the answers come from somebody else.
Outcome askedFlash(const std::string& typist, const std::string& more = "") {
    return run({"-c", "(" + typist + ") | " + kVelor + " flash --interaktivne --latky pentan,hexan,heptan " + more},
               "/bin/sh");
}

TEST(FlashTest, askingGivesTheSameAsArguments) {
    const Outcome asked = askedFlash(R"(printf '0\n101325\n0,3 0,3 0,4\n66.85\n')");
    EXPECT_EQ(asked.exitCode, 0) << asked.error;
    EXPECT_EQ(asked.out, flash({"-T", "340"}).out);
    for (const char* question : {"Zadat tlak(Pa):", "oddělené mezerou nebo středníkem", "Bod varu  60.9"})
        expectMentions(asked.error, question);
}

TEST(FlashTest, thinkingIsNotLimitedAndSilenceIsNoAnswer) {
    const Outcome slow = askedFlash(R"(sleep 1.5; printf '0\n101325\n0,3 0,3 0,4\n66.85\n')", "--limit 1");
    EXPECT_EQ(slow.exitCode, 0) << slow.error;
    const Outcome silent = askedFlash("true");
    EXPECT_EQ(silent.exitCode, 1);
    expectMentions(silent.error, "čtení za koncem vstupu");
}

}  // namespace
}  // namespace velor::test
