// Pseudocritical values: the rule, the coupling of its checks with the messages, and the box.
#include "support/sample_test.h"

namespace velor::test {
namespace {

constexpr double kR = 8.314;

std::vector<TLatka> substances() {
    std::vector<TLatka> records{sampleSubstance(1, "Voda"), sampleSubstance(2, "A"), sampleSubstance(3, "B")};
    records[1].Mv = 0.1F, records[1].Tkr = 400, records[1].Pkr = 3e6F, records[1].Vkr = 2e-4F;
    records[2].Mv = 0.3F, records[2].Tkr = 600, records[2].Pkr = 5e6F, records[2].Vkr = 4e-4F;
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
