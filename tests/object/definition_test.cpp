// Choosing which substances form the mixture, and their constants.
#include "support/sample_test.h"

namespace velor::test {
namespace {

struct ComponentsTest : SampleTest {
    ComponentsTest() : SampleTest(sampleSubstances(30)) {}
    int count() { return smes.Inivlr().toInt16(); }
};

const Message kNotLoaded{"Nemohu načíst z VELOR.DRC!", Icon::Critical, "VELOR"};
const Message kNotInDatabase{"INIVLR: Látka č.  99 není v bázi!", Icon::Exclamation, "VELOR"};

TEST_F(ComponentsTest, defSmesTakesAnArrayFromOneAndSetsATerminator) {
    smes.DefSmes(3, Fractions({5, 6, 7}));
    EXPECT_EQ(count(), 3);
    smes.DefSmes(-2, Variant::array(1, {"8", 9.4}));
    EXPECT_EQ(count(), 2);  // slot 3 ends the list
    smes.ChyboveHlasky(2);
    smes.ZapisNslozky(1, 1);           // clears the loaded marker
    smes.DefSmes(1, Fractions({99}));  // messages are switched on again
    EXPECT_EQ(messages, (std::vector{kNotInDatabase, kNotLoaded}));
    const std::tuple<int, Variant, int> errors[] = {{3, Fractions({1, 2}), 9},
                                                    {21, Numbers(std::vector<double>(21, 1)), 9},
                                                    {1, Fractions({40000}), 6},
                                                    {1, 5, 13},
                                                    {-32768, 5, 6}};
    for (const auto& [n, numbers, error] : errors)
        EXPECT_EQ(errorNumber([&, n = n, &array = numbers] { smes.DefSmes(n, array); }), error) << n;
}

TEST_F(ComponentsTest, resetujSmesEmptiesEverySlot) {
    smes.DefSlozky(List(std::vector<int>(20, 4)));
    EXPECT_EQ(count(), 20);
    smes.Nsloz(20);  // there is no slot behind the last one to end the list in, and no need for it
    smes.ChyboveHlasky(2);
    smes.ResetujSmes();
    EXPECT_EQ(smes.ChyboveHlasky(), 0);
    for (int slot = 1; slot <= 20; ++slot) {
        EXPECT_EQ(smes.Nslozky(slot).toInt16(), 0);
        EXPECT_EQ(smes.Nazev(slot), Variant(""));
    }
    EXPECT_EQ(count(), 0);
    smes.ZapisNslozky(1, 6);                                  // the first slot alone makes a mixture again
    EXPECT_EQ(smes.Nazev(1), Variant(std::string(30, ' ')));  // until it is loaded
    EXPECT_EQ(count(), 1);
    EXPECT_EQ(errorNumber([&] { smes.Nslozky(21); }), 9);
    for (const int slot : {0, 21}) smes.ZapisNslozky(slot, 1);
    EXPECT_EQ(messages, std::vector<Message>(2, {"Index složky mimo meze!", Icon::Critical, "VELOR"}));
    smes.ChyboveHlasky(2);
    smes.ZapisNslozky(21, 1);
    smes.Bod(0, 1, 1);
    EXPECT_EQ(messages.size(), 2U);
}

TEST_F(ComponentsTest, bodReadsAndWritesTheLoadedConstants) {
    smes.DefSlozky(List({1, 2}));
    count();
    for (int k = 1; k <= 17; ++k) smes.Bod(2, k, 100 + k);
    for (int k = 1; k <= 17; ++k) EXPECT_EQ(smes.Bod(2, k), static_cast<float>(100 + k));
    EXPECT_EQ(smes.Bod(1, 1), 0.046F);  // the other component is left alone
    for (const auto& [i, k] : {std::pair{0, 1}, {3, 1}, {1, 0}, {1, 18}}) {
        messages.clear();
        EXPECT_EQ(smes.Bod(i, k), -9999.0F) << i << ' ' << k;
        smes.Bod(i, k, 1);
        EXPECT_EQ(messages, (std::vector<Message>{{"Bod( ) - chybné zadání!", Icon::Exclamation, "VELOR"}}));
    }
    EXPECT_EQ(smes.PocHlasek(), 0);
    EXPECT_EQ(errorNumber([&] { smes.Bod(1, 1, 1e39); }), 6);
    smes.ZapisNslozky(1, 1);
    count();
    EXPECT_EQ(smes.Bod(2, 1), 0.046F);  // a reload undoes the change
}

}  // namespace
}  // namespace velor::test
