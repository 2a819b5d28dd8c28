// velor rovnovaha and velor flash: laws that the figures have to keep.
#include "command.h"
#include "runtime/numbers.h"

namespace velor::test {
namespace {

TEST(EquilibriumTest, theDewPointOfTheVapourIsTheBubblePointOfItsLiquid) {
    const auto rows = run(words("rovnovaha --latky benzen,toluen -P 101325 --body 5 --json")).json()["rovnovaha"];
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_NEAR(rows[0]["Tb"], 383.75, 0.1);  // toluene boils
    EXPECT_NEAR(rows[4]["Tb"], 353.25, 0.1);  // benzene
    for (std::size_t i = 1; i < 4; ++i) {
        const double y = rows[i]["y"];
        EXPECT_EQ(rows[i]["x"], 0.25 * static_cast<double>(i));
        EXPECT_GT(y, rows[i]["x"]);  // the lighter one gathers in the vapour
        const auto dew = run(words("vlastnost TRB --latky benzen,toluen -P 101325 --json --normalizovat --slozeni",
                                   {shortestText(y) + "," + shortestText(1 - y)}));
        EXPECT_NEAR(dew.json()["hodnoty"][0]["hodnota"], rows[i]["Tb"], 0.05);
    }
}

TEST(EquilibriumTest, csvHasALinePerPoint) {
    const std::string csv = run(words("rovnovaha --latky methanol,voda --csv")).out;
    EXPECT_EQ(csv.substr(0, csv.find('\n')),
              "x (Methanol),bod varu [K],bod varu – stav,y (Methanol),rosný bod páry složení x [K],rosný bod – stav");
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 22);
}

Outcome flash(const std::string& more) {
    return run(words("flash --latky pentan,hexan,heptan --slozeni 0.3,0.3,0.4 " + more));
}

TEST(FlashTest, productsMakeUpTheFeed) {
    const auto answer = flash("-T 400 --adiabaticky --json").json();
    const double V = answer["flash"]["V"]["hodnota"];
    EXPECT_LT(answer["flash"]["T"]["hodnota"], 399);
    for (const auto& row : answer["slozky"]) {
        const double x = row["x"], y = row["y"];
        EXPECT_NEAR(V * y + (1 - V) * x, row["z"], 2e-3);
        EXPECT_NEAR(row["K"], y / x, 2e-2);
    }
    EXPECT_TRUE(flash("-T 300 --json").json()["slozky"][0]["K"].is_null());  // all liquid
}

TEST(FlashTest, theTextIsTheLibrarysReport) {
    const std::string report = flash("-T 340").out;
    for (const char* line : {"FLASH výpočet izotermní\n", "Poměr parní fáze k nástřiku: \t0.", "\nPentan "})
        expectMentions(report, line);
    EXPECT_EQ(report.find('\r'), std::string::npos);
    expectMentions(flash("-T 340 --csv").out, "\nvysledek,výsledek,dvě fáze,\n");
    expectMentions(flash("-T 500").out, "Zadáno T > rosný bod : Vše odpařeno");
}

TEST(FlashTest, askingGivesTheSameAsArgumentsAndThinkingIsNotLimited) {
    const std::string asking = kVelor + " flash --interaktivne --latky pentan,hexan,heptan --limit 1";
    const Outcome asked = runInShell(R"((sleep 1.5; printf '0\n101325\n0,3 0,3 0,4\n66.85\n') | )" + asking);
    EXPECT_EQ(asked.exitCode, 0) << asked.error;
    EXPECT_EQ(asked.out, flash("-T 340").out);
    for (const char* question : {"Zadat tlak(Pa):", "oddělené mezerou nebo středníkem", "Bod varu  60.9"})
        expectMentions(asked.error, question);
    const Outcome silent = runInShell("true | " + asking);
    EXPECT_EQ(silent.exitCode, 1);
    expectMentions(silent.error, "čtení za koncem vstupu");
}

}  // namespace
}  // namespace velor::test
