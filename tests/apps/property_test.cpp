// velor vlastnost and velor ukazka: values, ranges of temperatures, and what cannot be computed.
#include "small_database.h"

namespace velor::test {
namespace {

struct PropertyTest : ::testing::Test {
    SmallDatabase database;

    Outcome vlastnost(const std::string& property, const std::string& substances, const std::string& T,
                      const Words& more = {}) const {
        return database.run(words("vlastnost --json --latky", {substances, property, "-T", T}), more);
    }
};

TEST_F(PropertyTest, isComputedAndSaysHowItStandsToItsRange) {
    const std::tuple<const char*, const char*, Words, double, const char*> cases[] = {
        {"tens", "200", {}, 209, "v rozsahu"},          {"Etag", "400", {}, 401, "v rozsahu"},
        {"ROLW", "600", {}, 604, "extrapolováno"},      {"TENS", "600", {}, 499, "0.98 Tkr"},  // at 490 K
        {"TENS", "600", {"--meze"}, 409, "na mezi"},    {"SIGMA", "100", {"--meze"}, 210, "na mezi"},
        {"SIGMA", "300", {"--meze"}, 310, "v rozsahu"},
    };
    for (const auto& [property, T, more, value, standing] : cases) {
        const auto row = vlastnost(property, "2", T, more).json()["hodnoty"][0];
        EXPECT_NEAR(row["2"], value, 1e-9) << property << T;
        EXPECT_EQ(row["2_stav"], standing) << property << T;
    }
}

TEST_F(PropertyTest, whatCannotBeComputedIsSaidInWords) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"SIGMA", "nedáno", "není pro látku v bázi dána"},
        {"TENS", "bez hodnoty", "nad vztažnou teplotou"},
        {"DHV", "chyba", "nastala chyba"},  // division by zero
        {"CPL", "chyba", "nastala chyba"},  // unknown equation type
    };
    for (const auto& [property, standing, phrase] : cases) {
        const Outcome alone = vlastnost(property, "10", "300");
        expectFailure(alone, 1, phrase);
        expectMentions(alone.error, "Toluen");
        const Outcome beside = vlastnost(property, "2,10", "300");  // where something came out, it is printed
        EXPECT_EQ(beside.exitCode, 0);
        EXPECT_EQ(beside.error, "");
        const auto row = beside.json()["hodnoty"][0];
        EXPECT_TRUE(row["2"].is_number() && row["10"].is_null());
        EXPECT_EQ(row["10_stav"], standing);
    }
}

TEST_F(PropertyTest, temperaturesAreListsAndRanges) {
    const std::pair<const char*, std::vector<double>> cases[] = {
        {"300,310.5, 320", {300, 310.5, 320}},
        {"298,15;310", {298.15, 310}},  // beside semicolons a comma is the decimal separator
        {"300:325:10", {300, 310, 320}},
        {"320:300:-10", {320, 310, 300}},
        {"300:300:5", {300}},
        {"300,5:301:0,25", {300.5, 300.75, 301}},
        {"300:300.7:0.1", {300, 300.1, 300.2, 300.3, 300.4, 300.5, 300.6, 300.7}},
    };
    for (const auto& [text, temperatures] : cases) {
        std::vector<double> found;
        const auto answer = vlastnost("ETAG", "2", text).json();
        for (const auto& row : answer["hodnoty"]) found.push_back(row["T"]);
        EXPECT_EQ(found, temperatures) << text;
    }
    EXPECT_EQ(vlastnost("ETAG", "2", "1:10000:1").json()["hodnoty"].size(), 10000U);
}

TEST_F(PropertyTest, temperaturesThatAreNoneAreRefused) {
    // clang-format off
    const std::pair<const char*, const char*> cases[] = {
        {"nan", "„nan“ není číslo"}, {"300K", "„300K“ není číslo"}, {"0x10", "není číslo"}, {"0", "musí být kladná"},
        {"1e-999", "musí být kladná"}, {"1e999", "příliš velké"}, {"", "chybí číslo"}, {"300,,310", "chybí číslo"},
        {"300:400", "OD:DO:KROK"}, {"300:400:10:5", "OD:DO:KROK"}, {"300:400:0", "nesmí být nula"},
        {"300:400:-10", "nevede od teploty 300 K k 400 K"}, {"400:300:10", "nevede od teploty 400 K k 300 K"},
        {"-10:300:10", "musí být kladná"}, {"1:10001:1", "nejvýše jich může být 10000"},
        {"1:1e300:1e-300", "nejvýše jich může být 10000"}, {"298,15", "jednu zapište 298.15, dvě 298;15"}};
    // clang-format on
    for (const auto& [text, phrase] : cases) expectFailure(vlastnost("ETAG", "2", text), 2, phrase);
}

}  // namespace
}  // namespace velor::test
