// Pseudocritical values: the rule, the coupling of its checks with the messages, and the box.
#include "support/sample_test.h"

namespace velor::test {
namespace {

constexpr double kR = 8.314;

std::vector<TLatka> substances() {
    std::vector<TLatka> records{sampleSubstance(1, "Voda"), sampleSubstance(2, "A"), sampleSubstance(3, "B"),
                                sampleSubstance(4, "Bez Tkr")};
    records[1].Mv = 0.1F, records[1].Tkr = 400, records[1].Pkr = 3e6F, records[1].Vkr = 2e-4F;
    records[2].Mv = 0.3F, records[2].Tkr = 600, records[2].Pkr = 5e6F, records[2].Vkr = 4e-4F;
    records[3].Tkr = 0;
    return records;
}

struct PseudocriticalTest : SampleTest {
    PseudocriticalTest() : SampleTest(substances()) { smes.DefSlozky(List({2, 3})); }
    std::vector<Variant> members() const {
        return {smes.TKRITsm(), smes.PKRITsm(), smes.VKRITsm(), smes.ZKRITsm(), smes.MSm()};
    }
};

TEST_F(PseudocriticalTest, constantsMixLinearlyAndThePressureFollows) {
    const double Z = 0.5 * 3e6 * 2e-4 / (kR * 400) + 0.5 * 5e6 * 4e-4 / (kR * 600);
    const std::pair<std::vector<double>, std::vector<double>> cases[] = {
        {{0.5, 0.5}, {500, Z * kR * 500 / 3e-4, 3e-4, Z, 0.2}},
        {{0, 1}, {600, 5e6, 4e-4, 5e6 * 4e-4 / (kR * 600), 0.3}}};  // a pure substance gets its own back
    for (const auto& [x, expected] : cases)
        for (std::size_t k = 0; k < 5; ++k) {
            const std::string capital{"TPVZM"[k]}, small{"tpvzm"[k]};
            const Variant named = smes.PSEUD(Fractions(x), capital);
            EXPECT_NEAR(named.toDouble(), expected[k], 1e-6 * expected[k]);
            EXPECT_EQ(smes.PSEUD(Fractions(x), small), named);
            EXPECT_EQ(members()[k], named);
        }
    for (const char* choice : {"", "TT", " T", "Ž"})
        EXPECT_EQ(smes.PSEUD(Fractions({0.3, 0.7}), choice), Variant("PSEUD?")) << choice;
    EXPECT_TRUE(messages.empty());
}

TEST_F(PseudocriticalTest, onlyADueMessageMakesTheSumMatter) {
    enum Outcome { AsPassed, Normalised, Refused };
    // clang-format off
    const std::tuple<double, double, int, int, Outcome> cases[] = {  // two fractions, mode, budget
        {0.5, 0.5019, 0, 1, AsPassed}, {0.5, 0.5021, 0, 1, Normalised}, {0.5, 0.4979, -1, 1, Normalised},
        {0.45, 0.45, 2, 1, AsPassed}, {0.45, 0.45, 0, 0, AsPassed}, {2, 3, 1, 1, Normalised},
        {0.125, 0.126, 0, 1, Normalised}, {0.125, 0.125, 0, 1, Refused}, {0.1, 0.1, -1, 0, AsPassed}};
    // clang-format on
    for (const auto& [first, second, mode, budget, outcome] : cases) {
        messages.clear();
        smes.ChyboveHlasky(mode);
        smes.MaxErrHlas(smes.PocHlasek() + budget);
        const Variant result = smes.PSEUD(Fractions({first, second}), "T");
        const double sum = outcome == Normalised ? first + second : 1.0;
        if (outcome == Refused) {
            EXPECT_EQ(result, Variant("PSEUD?"));
            EXPECT_EQ(members(), std::vector<Variant>(5, std::int16_t{0}));
        } else {
            EXPECT_NEAR(result.toDouble(), (first * 400 + second * 600) / sum, 1e-9) << first << ' ' << mode;
        }
        EXPECT_DOUBLE_EQ(smes.Slozeni(2).toDouble(), second / sum);
        EXPECT_EQ(messages,
                  std::vector<Message>(outcome == AsPassed ? 0 : 1, {"Směs složení není definováno nebo normalizováno!",
                                                                     Icon::Exclamation, "VELOR"}));
    }
}

TEST_F(PseudocriticalTest, raisesWhatItCannotRead) {
    const Variant good = Fractions({0.5, 0.5});
    smes.PSEUD(good, "");
    EXPECT_EQ(errorNumber([&] { smes.PSEUD(Fractions({1}), "T"); }), 9);
    EXPECT_EQ(smes.TKRITsm(), Variant(std::int16_t{0}));  // the last results are gone
    smes.DefSlozky(List({2, 4}));
    EXPECT_EQ(errorNumber([&] { smes.PSEUD(good, "T"); }), 11);
    smes.ResetujSmes();
    EXPECT_EQ(smes.PSEUD(5, "T"), Variant("PSEUD?"));
    EXPECT_EQ(messages, (std::vector<Message>{{"Směs není definována!", Icon::Exclamation, "VELOR"}}));
    EXPECT_EQ(smes.PocHlasek(), 1);
    smes.ChyboveHlasky(2);  // without the message the pressure is 0/0
    EXPECT_EQ(errorNumber([&] { smes.PSEUD(5, "T"); }), 11);
}

TEST_F(PseudocriticalTest, theBoxShowsAllButTheMolarMass) {
    smes.ChyboveHlasky(2);  // a result is shown whatever the mode
    smes.PseudShow(Fractions({1, 0}));
    EXPECT_EQ(messages,
              (std::vector<Message>{{"Pseudokritické veličiny směsi \r\nnepojmenovaná\r\nTKRITsm(K) = 400.0\r\n"
                                     "PKRITsm(MPa) = 3.000\r\nVKRITsm(m3/mol) = 2.000E-04\r\nZKRITsm(-) = 0.1804\r\n",
                                     Icon::Information, "VELOR"}}));
    EXPECT_EQ(smes.PocHlasek(), 0);
    smes.SNazev("Směs č. 1");
    smes.PseudShow(Fractions({0, 1}));
    EXPECT_TRUE(messages.back().text.starts_with("Pseudokritické veličiny směsi \r\nSměs č. 1\r\nTKRITsm(K) = 600.0"));
}

}  // namespace
}  // namespace velor::test
