// velor vlastnost and velor ukazka: values, ranges of temperatures, and what cannot be computed.
#include "small_database.h"

namespace velor::test {
namespace {

struct PropertyTest : ::testing::Test {
    SmallDatabase database;

    Outcome vlastnost(const std::string& property, const std::string& substances, const std::string& T,
                      const Words& more = {}) const {
        Words words{"vlastnost", property, "--latky", substances, "-T", T, "--json"};
        words.insert(words.end(), more.begin(), more.end());
        return database.run(words);
    }
};

TEST_F(PropertyTest, isComputedAndSaysHowItStandsToItsRange) {
    const struct {
        const char *property, *substance, *T;
        Words more;
        double value;
        const char* standing;
    } cases[] = {
        {"TENS", "2", "300", {}, 309, "v rozsahu"},          {"tens", "2", "200", {}, 209, "v rozsahu"},
        {"Etag", "2", "400", {}, 401, "v rozsahu"},          {"TENS", "2", "450", {}, 459, "extrapolováno"},
        {"ROLW", "2", "600", {}, 604, "extrapolováno"},      {"TENS", "2", "600", {}, 499, "0.98 Tkr"},  // at 490 K
        {"TENS", "2", "600", {"--meze"}, 409, "na mezi"},    {"SIGMA", "2", "100", {"--meze"}, 210, "na mezi"},
        {"SIGMA", "2", "300", {"--meze"}, 310, "v rozsahu"},
    };
    for (const auto& c : cases) {
        const auto row = vlastnost(c.property, c.substance, c.T, c.more).json()["hodnoty"][0];
        EXPECT_NEAR(row["2"], c.value, 1e-9) << c.property << c.T;
        EXPECT_EQ(row["2_stav"], c.standing) << c.property << c.T;
    }
}

TEST_F(PropertyTest, whatCannotBeComputedIsSaidInWords) {
    const struct {
        const char *property, *T, *standing, *words;
    } cases[] = {
        {"SIGMA", "300", "nedáno", "není pro látku v bázi dána"},
        {"TENS", "300", "bez hodnoty", "nad vztažnou teplotou"},
        {"DHV", "300", "chyba", "nastala chyba"},  // division by zero
        {"CPL", "300", "chyba", "nastala chyba"},  // unknown equation type
    };
    for (const auto& c : cases) {
        const Outcome alone = vlastnost(c.property, "10", c.T);
        expectFailure(alone, 1, c.words);
        expectMentions(alone.error, "Toluen");
        const Outcome beside = vlastnost(c.property, "2,10", c.T);  // where something came out, it is printed
        EXPECT_EQ(beside.exitCode, 0);
        EXPECT_EQ(beside.error, "");
        const auto row = beside.json()["hodnoty"][0];
        EXPECT_TRUE(row["2"].is_number());
        EXPECT_TRUE(row["10"].is_null());
        EXPECT_EQ(row["10_stav"], c.standing);
    }
}

TEST_F(PropertyTest, substancesAreSeparatedButForCommasInNames) {
    const struct {
        const char* list;
        std::vector<int> numbers;
    } cases[] = {
        {"1,5", {1, 5}},
        {" voda , kyselina octova ", {1, 4}},
        {"2,2-Dimethylpropan", {5}},
        {"ethan,2,2-Dimethylpropan,2", {8, 5, 2}},
        {"2,2-Dimethylpropan;2", {5, 2}},
        {"64-17-5,h2o", {2, 1}},
    };
    for (const auto& [list, numbers] : cases) {
        const Outcome outcome = vlastnost("ETAG", list, "300");
        ASSERT_EQ(outcome.exitCode, 0) << outcome.error;
        const auto answer = outcome.json();
        std::vector<int> found;
        for (const auto& substance : answer["latky"]) found.push_back(substance["cislo"]);
        EXPECT_EQ(found, numbers) << list;
    }
    expectFailure(vlastnost("ETAG", "1,voda", "300"), 2, "Voda je zadána dvakrát");
    expectFailure(vlastnost("ETAG", "1,", "300"), 2, "Chybí číslo, název");
    expectFailure(vlastnost("ETAG", "1,xyzzyq", "300"), 1, "xyzzyq");
}

TEST_F(PropertyTest, temperaturesAreListsAndRanges) {
    const struct {
        const char* text;
        std::vector<double> temperatures;
    } cases[] = {
        {"298.15", {298.15}},
        {"300,310.5, 320", {300, 310.5, 320}},
        {"298,15;310", {298.15, 310}},  // beside semicolons a comma is the decimal separator
        {"300:320:10", {300, 310, 320}},
        {"300:325:10", {300, 310, 320}},
        {"320:300:-10", {320, 310, 300}},
        {"300:300:5", {300}},
        {"300,5:301:0,25", {300.5, 300.75, 301}},
        {"300:300.7:0.1", {300, 300.1, 300.2, 300.3, 300.4, 300.5, 300.6, 300.7}},
    };
    for (const auto& [text, temperatures] : cases) {
        const auto answer = vlastnost("ETAG", "2", text).json();
        std::vector<double> found;
        for (const auto& row : answer["hodnoty"]) found.push_back(row["T"]);
        EXPECT_EQ(found, temperatures) << text;
    }
    EXPECT_EQ(vlastnost("ETAG", "2", "1:10000:1").json()["hodnoty"].size(), 10000U);
}

TEST_F(PropertyTest, temperaturesThatAreNoneAreRefused) {
    const struct {
        const char *text, *phrase;
    } cases[] = {
        {"nan", "„nan“ není číslo"},
        {"inf", "„inf“ není číslo"},
        {"300K", "„300K“ není číslo"},
        {"0x10", "není číslo"},
        {"-5", "musí být kladná"},
        {"0", "musí být kladná"},
        {"1e-999", "musí být kladná"},
        {"1e999", "příliš velké"},
        {"", "chybí číslo"},
        {"300,,310", "chybí číslo"},
        {"300:400", "OD:DO:KROK"},
        {"300:400:10:5", "OD:DO:KROK"},
        {"300:400:0", "nesmí být nula"},
        {"300:400:-10", "nevede od teploty 300 K k 400 K"},
        {"400:300:10", "nevede od teploty 400 K k 300 K"},
        {"-10:300:10", "musí být kladná"},
        {"1:10001:1", "nejvýše jich může být 10000"},
        {"1:1e300:1e-300", "nejvýše jich může být 10000"},
    };
    for (const auto& [text, phrase] : cases) expectFailure(vlastnost("ETAG", "2", text), 2, phrase);
}

TEST_F(PropertyTest, theTourShowsAllTen) {
    const auto values = database.run({"ukazka", "toluen", "-T", "300", "--json"}).json()["vlastnosti"];
    ASSERT_EQ(values.size(), 10U);
    EXPECT_NEAR(values[0]["hodnota"], 301, 1e-9);
    EXPECT_EQ(values[0]["stav"], "v rozsahu");
    EXPECT_TRUE(values[9]["hodnota"].is_null());
    EXPECT_EQ(values[9]["stav"], "nedáno");
    expectMentions(database.run({"ukazka", "toluen"}).out, "Vlastnosti při 298.15 K");
    expectFailure(database.run({"ukazka", "toluen", "-T", "300:310:1"}), 2, "není číslo");
}

}  // namespace
}  // namespace velor::test
