#include <gtest/gtest.h>

#include "support/sample_mixture.h"

namespace velor {
namespace {

using test::errorNumber;
using test::SampleMixture;
using test::sampleSubstance;

struct ComponentsTest : ::testing::Test {
    static std::vector<TLatka> substances() {
        std::vector<TLatka> records;
        for (int number = 1; number <= 30; ++number) records.push_back(sampleSubstance(number, "Látka"));
        return records;
    }
    SampleMixture mixture{substances()};
    Smes& smes = mixture.smes;
    std::vector<Message>& messages = mixture.boxes.messages;

    int count() { return smes.Inivlr().toInt16(); }
};

const Message kNotNumbers{"Chybné zadání složek", Icon::Exclamation, "Definice složek"};
const Message kNotLoaded{"Nemohu načíst z VELOR.DRC!", Icon::Critical, "VELOR"};
const Message kNotInDatabase{"INIVLR: Látka č.  99 není v bázi!", Icon::Exclamation, "VELOR"};

TEST_F(ComponentsTest, defSmesTakesAnArrayFromOneAndSetsATerminator) {
    smes.DefSmes(3, Numbers(std::vector<double>{5, 6, 7}));
    EXPECT_EQ(count(), 3);
    smes.DefSmes(-2, Variant::array(1, {"8", 9.4}));
    EXPECT_EQ(count(), 2);  // slot 3 ends the list
    smes.ChyboveHlasky(2);
    smes.ZapisNslozky(1, 1);                   // clears the loaded marker
    smes.DefSmes(1, Variant::array(1, {99}));  // messages are switched on again
    EXPECT_EQ(smes.ChyboveHlasky(), 0);
    EXPECT_EQ(messages, (std::vector{kNotInDatabase, kNotLoaded}));
    EXPECT_EQ(errorNumber([&] { smes.DefSmes(3, Numbers(std::vector<double>{1, 2})); }), 9);
    EXPECT_EQ(errorNumber([&] { smes.DefSmes(21, Numbers(std::vector<double>(21, 1.0))); }), 9);
    EXPECT_EQ(errorNumber([&] { smes.DefSmes(1, Variant::array(1, {"x"})); }), 13);
    EXPECT_EQ(errorNumber([&] { smes.DefSmes(1, Variant::array(1, {40000})); }), 6);
    EXPECT_EQ(errorNumber([&] { smes.DefSmes(1, 5); }), 13);
    EXPECT_EQ(errorNumber([&] { smes.DefSmes(-32768, 5); }), 6);
}

TEST_F(ComponentsTest, defSlozkyCopiesUntilTheArrayEnds) {
    smes.DefSlozky(List(std::vector<int>{1, 2, 3, 4, 5}));
    EXPECT_EQ(count(), 5);
    // The loaded marker is set, so the definition reads nothing at once; its count stands until the next load counts
    // the slots, which nobody terminated.
    smes.DefSlozky(List({7, 8}));
    EXPECT_EQ(smes.VLRConst(3, 1, 1), -9999.0F);
    EXPECT_EQ(count(), 5);
    EXPECT_EQ(smes.VLRConst(3, 1, 1), 1.0F);
    EXPECT_TRUE(messages.empty());
}

TEST_F(ComponentsTest, defSlozkyIsQuietForANegativeFirstNumber) {
    smes.DefSlozky(List({-99, 1}));
    EXPECT_EQ(smes.ChyboveHlasky(), 1);
    EXPECT_TRUE(messages.empty());  // silenced messages accept the empty record beyond the end, too
    smes.ZapisNslozky(1, 1);
    smes.DefSlozky(List({99}));
    EXPECT_EQ(smes.ChyboveHlasky(), 0);
    EXPECT_EQ(messages, (std::vector{kNotInDatabase, kNotLoaded}));
    messages.clear();
    smes.DefSlozky(List({-31}));  // a blank record is refused in quiet, but for the load's own message
    EXPECT_EQ(messages.size(), 0U);
}

TEST_F(ComponentsTest, defSlozkyResumesAfterAnError) {
    smes.DefSlozky(List({1, "x", 3}));
    EXPECT_EQ(messages, std::vector{kNotNumbers});
    EXPECT_EQ(count(), 1);  // slot 2 kept its 0
    messages.clear();
    smes.DefSlozky(5);  // no array at all: every statement fails in its turn
    EXPECT_EQ(messages, std::vector<Message>(23, kNotNumbers));
    messages.clear();
    smes.DefSlozky(List({}));
    EXPECT_EQ(messages, (std::vector<Message>{{"Nebyly zadány čísla složek!", Icon::Exclamation, "Definice složek"}}));
    messages.clear();
    smes.DefSlozky(Variant::array(1, {4, 5}));  // counted from 1: nothing is copied, the count is one too high
    EXPECT_TRUE(messages.empty());
    EXPECT_EQ(count(), 1);
    smes.DefSlozky(List(std::vector<int>(25, 2)));  // 20 are copied, the count is 25 until the next load
    EXPECT_EQ(count(), 20);
}

TEST_F(ComponentsTest, zapisNslozkyChecksTheSlot) {
    for (const int slot : {0, 21, -1}) {
        messages.clear();
        smes.ZapisNslozky(slot, 1);
        EXPECT_EQ(messages, (std::vector<Message>{{"Index složky mimo meze!", Icon::Critical, "VELOR"}}));
    }
    smes.ChyboveHlasky(2);
    messages.clear();
    smes.ZapisNslozky(21, 1);
    EXPECT_TRUE(messages.empty());
    smes.ZapisNslozky(20, 1);
    EXPECT_EQ(smes.Mvi(20).kind(), Variant::Kind::Single);
    EXPECT_EQ(errorNumber([&] { smes.ZapisNslozky(1, 40000); }), 6);
}

}  // namespace
}  // namespace velor
