// Pseudocritical values: the rule, the coupling of its checks with the messages, and the box.
#include <gtest/gtest.h>

#include "support/sample_mixture.h"

namespace velor {
namespace {

using test::errorNumber;
using test::SampleMixture;
using test::sampleSubstance;

constexpr double kR = 8.314;

std::vector<TLatka> substances() {
    std::vector<TLatka> records{sampleSubstance(1, "Voda"), sampleSubstance(2, "A"), sampleSubstance(3, "B"),
                                sampleSubstance(4, "Bez Tkr")};
    records[1].Mv = 0.1F, records[1].Tkr = 400, records[1].Pkr = 3e6F, records[1].Vkr = 2e-4F;
    records[2].Mv = 0.3F, records[2].Tkr = 600, records[2].Pkr = 5e6F, records[2].Vkr = 4e-4F;
    records[3].Tkr = 0;
    return records;
}

struct PseudocriticalTest : ::testing::Test {
    SampleMixture mixture{substances()};
    Smes& smes = mixture.smes;
    std::vector<Message>& messages = mixture.boxes.messages;

    PseudocriticalTest() { smes.DefSlozky(List({2, 3})); }

    void expectMembers(double T, double P, double V, double Z, double M) {
        EXPECT_NEAR(smes.TKRITsm().toDouble(), T, 1e-6 * T);
        EXPECT_NEAR(smes.PKRITsm().toDouble(), P, 1e-6 * P);
        EXPECT_NEAR(smes.VKRITsm().toDouble(), V, 1e-6 * V);
        EXPECT_NEAR(smes.ZKRITsm().toDouble(), Z, 1e-6 * Z);
        EXPECT_NEAR(smes.MSm().toDouble(), M, 1e-6 * M);
    }
};

TEST_F(PseudocriticalTest, constantsMixLinearlyAndThePressureFollows) {
    const double Z = 0.5 * 3e6 * 2e-4 / (kR * 400) + 0.5 * 5e6 * 4e-4 / (kR * 600);
    EXPECT_EQ(smes.PSEUD(Fractions({0.5, 0.5}), ""), Variant("PSEUD?"));
    expectMembers(500, Z * kR * 500 / 3e-4, 3e-4, Z, 0.2);
    // A pure substance gets its own constants back.
    smes.PSEUD(Fractions({0, 1}), "T");
    expectMembers(600, 5e6, 4e-4, 5e6 * 4e-4 / (kR * 600), 0.3);
    EXPECT_EQ(smes.Slozeni(1), Variant(0.0));
    EXPECT_EQ(smes.Slozeni(2), Variant(1.0));
    EXPECT_TRUE(messages.empty());
}

TEST_F(PseudocriticalTest, theSelectorNamesTheResult) {
    const Variant X = Fractions({0.3, 0.7});
    smes.PSEUD(X, "");
    const std::pair<const char*, Variant> cases[] = {
        {"T", smes.TKRITsm()}, {"t", smes.TKRITsm()}, {"P", smes.PKRITsm()}, {"p", smes.PKRITsm()},
        {"V", smes.VKRITsm()}, {"v", smes.VKRITsm()}, {"Z", smes.ZKRITsm()}, {"z", smes.ZKRITsm()},
        {"M", smes.MSm()},     {"m", smes.MSm()},     {"", "PSEUD?"},        {"TT", "PSEUD?"},
        {" T", "PSEUD?"},      {"Ž", "PSEUD?"}};
    for (const auto& [choice, result] : cases) EXPECT_EQ(smes.PSEUD(X, choice), result) << choice;
}

TEST_F(PseudocriticalTest, onlyADueMessageMakesTheSumMatter) {
    enum Outcome { AsPassed, Normalised, Refused };
    struct Case {
        double first, second;
        int mode, limit;
        Outcome outcome;
    };
    const Case cases[] = {{0.5, 0.499, 0, 20, AsPassed},
                          {0.5, 0.5019, 0, 20, AsPassed},
                          {0.5, 0.5021, 0, 20, Normalised},
                          {0.5, 0.4979, 0, 20, Normalised},
                          {0.45, 0.45, 0, 20, Normalised},
                          {0.45, 0.45, -1, 20, Normalised},
                          {0.45, 0.45, 1, 20, Normalised},
                          {0.45, 0.45, 2, 20, AsPassed},
                          {0.45, 0.45, 0, 0, AsPassed},
                          {2, 3, 0, 20, Normalised},
                          {0.125, 0.126, 0, 20, Normalised},
                          {0.125, 0.125, 0, 20, Refused},
                          {0.1, 0.1, 0, 20, Refused},
                          {0.1, 0.1, 1, 20, Refused},
                          {0.1, 0.1, 2, 20, AsPassed},
                          {0.1, 0.1, -1, 0, AsPassed},
                          {0, 0, 0, 20, Refused},
                          {-1, 0.5, 0, 20, Refused}};
    const Message notNormalised{"Směs složení není definováno nebo normalizováno!", Icon::Exclamation, "VELOR"};
    for (const Case& c : cases) {
        messages.clear();
        smes.ChyboveHlasky(c.mode);
        smes.MaxErrHlas(c.limit == 0 ? 0 : smes.PocHlasek() + 1);
        const int before = smes.PocHlasek();
        const Variant result = smes.PSEUD(Fractions({c.first, c.second}), "T");
        const double divisor = c.outcome == Normalised ? c.first + c.second : 1.0;
        const double x = c.first / divisor, y = c.second / divisor;
        if (c.outcome == Refused) {
            EXPECT_EQ(result, Variant("PSEUD?"));
            for (const Variant& member : {smes.TKRITsm(), smes.PKRITsm(), smes.VKRITsm(), smes.ZKRITsm(), smes.MSm()})
                EXPECT_EQ(member, Variant(std::int16_t{0}));
        } else {
            EXPECT_NEAR(result.toDouble(), x * 400 + y * 600, 1e-9) << c.first << ' ' << c.second << ' ' << c.mode;
        }
        EXPECT_DOUBLE_EQ(smes.Slozeni(1).toDouble(), x);
        EXPECT_DOUBLE_EQ(smes.Slozeni(2).toDouble(), y);
        EXPECT_EQ(messages, c.outcome == AsPassed ? std::vector<Message>{} : std::vector{notNormalised});
        EXPECT_EQ(smes.PocHlasek() - before, c.outcome == AsPassed ? 0 : 1);
    }
}

TEST_F(PseudocriticalTest, raisesWhatItCannotRead) {
    const Variant good = Fractions({0.5, 0.5});
    const std::pair<Variant, int> cases[] = {{Fractions({1.0}), 9},
                                             {List({0.5, 0.5}), 9},
                                             {0.5, 13},
                                             {Variant::array(1, {0.5, "x"}), 13},
                                             {Variant::array(1, {0.5, Variant::null()}), 94}};
    for (const auto& [X, number] : cases) {
        smes.PSEUD(good, "");
        EXPECT_EQ(errorNumber([&] { smes.PSEUD(X, "T"); }), number);
        EXPECT_EQ(smes.TKRITsm(), Variant(std::int16_t{0}));  // the last results are gone
    }
    smes.DefSlozky(List({2, 4}));
    EXPECT_EQ(errorNumber([&] { smes.PSEUD(good, "T"); }), 11);
    smes.ResetujSmes();
    EXPECT_EQ(smes.PSEUD(5, "T"), Variant("PSEUD?"));
    EXPECT_EQ(messages, (std::vector<Message>{{"Směs není definována!", Icon::Exclamation, "VELOR"}}));
    EXPECT_EQ(smes.PocHlasek(), 1);
    smes.ChyboveHlasky(2);  // without the message the pressure is 0/0
    EXPECT_EQ(errorNumber([&] { smes.PSEUD(5, "T"); }), 11);
    smes.ChyboveHlasky(0);
    smes.MaxErrHlas(1);
    EXPECT_EQ(errorNumber([&] { smes.PSEUD(5, "T"); }), 11);
    EXPECT_EQ(messages.size(), 1U);
}

TEST_F(PseudocriticalTest, theBoxShowsAllButTheMolarMass) {
    const std::string results =
        "\r\nTKRITsm(K) = 400.0\r\nPKRITsm(MPa) = 3.000\r\nVKRITsm(m3/mol) = 2.000E-04\r\nZKRITsm(-) = 0.1804\r\n";
    const std::string zeros =
        "\r\nTKRITsm(K) = 0.0\r\nPKRITsm(MPa) = 0.000\r\nVKRITsm(m3/mol) = 0.000E+00\r\nZKRITsm(-) = 0.0000\r\n";
    const auto box = [](const std::string& text) { return Message{text, Icon::Information, "VELOR"}; };
    smes.PseudShow(Fractions({1, 0}));
    EXPECT_EQ(messages, std::vector{box("Pseudokritické veličiny směsi \r\nnepojmenovaná" + results)});
    smes.SNazev("Směs č. 1");
    smes.ChyboveHlasky(2);  // a result is shown whatever the mode
    messages.clear();
    smes.PseudShow(Fractions({1, 0}));
    EXPECT_EQ(messages, std::vector{box("Pseudokritické veličiny směsi \r\nSměs č. 1" + results)});
    EXPECT_EQ(smes.PocHlasek(), 0);
    smes.ChyboveHlasky(0);
    smes.PseudShow(Fractions({0.1, 0.1}));
    ASSERT_EQ(messages.size(), 3U);
    EXPECT_EQ(messages[2], box("Pseudokritické veličiny směsi \r\nSměs č. 1" + zeros));
}

}  // namespace
}  // namespace velor
