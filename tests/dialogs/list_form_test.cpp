// The form with the list: what it asks, what it shows, how it closes.
#include <gtest/gtest.h>

#include "platform/system.h"
#include "support/sample_mixture.h"

namespace velor {
namespace {

using test::errorNumber;
using test::sampleSubstance;

const InputRequest kOrder{"0 - podle abecedy\r\n1 - podle čísel (chvíli trvá ...)", "VELOR", "0"};
const InputRequest kWanted{"Vložte název nebo část názvu hledané látky (bez *, %):", "VELOR", ""};

struct ListFormTest : ::testing::Test {
    test::SampleMixture mixture{{sampleSubstance(1, "Ethanol"), sampleSubstance(2, "Žluť 50%"),
                                 sampleSubstance(3, "Aceton"), sampleSubstance(4, "Methanol")}};
    Smes& smes = mixture.smes;
    RecordingUserInterface& boxes = mixture.boxes;
    F_Sezn shown;

    // Shows the list; the names or other texts of its lines.
    std::vector<std::string> show(const Variant& mode, std::deque<std::string> answers) {
        boxes.requests.clear();
        boxes.nextTexts = std::move(answers);
        boxes.nextListActions = {[&](F_Sezn& form) { shown = form; }};
        smes.SeznamShow(mode);
        std::vector<std::string> lines;
        for (const std::string& line : shown.L_Sezn.items)
            lines.push_back(line.starts_with("00") ? line.substr(0, 3) : line);
        return lines;
    }
};

TEST_F(ListFormTest, asksForTheOrderOrTheText) {
    using Lines = std::vector<std::string>;
    using Requests = std::vector<InputRequest>;
    struct Case {
        Variant mode;
        std::deque<std::string> answers;
        Requests requests;
        Lines lines;
        int rememberedMode;
        std::string heading;
    };
    const Lines byName{"003", "001", "004", "002"}, byNumber{"001", "002", "003", "004"};
    const std::string all = "Počet zahrnutých látek  4";
    const auto found = [](int count) { return "k zadání nalezeno " + std::to_string(count) + " látek"; };
    const Case cases[] = {
        {Variant::missing(), {"0"}, {kOrder}, byName, -1, all},
        {-1, {""}, {kOrder}, byName, -1, all},
        {0, {"1"}, {kOrder}, byNumber, 0, all},
        {1, {"1 "}, {kOrder}, byName, 1, all},
        {Variant(), {"x"}, {kOrder}, byName, 0, all},
        {1, {"2", "ANOL"}, {kOrder, kWanted}, {"001", "004"}, 2, found(2)},
        {2, {"aceton*"}, {kWanted}, {"003"}, 2, found(1)},
        {2, {""}, {kWanted}, byName, 2, found(4)},
        {2, {"*"}, {kWanted}, byName, 2, found(4)},
        {2, {"žluť 50%"}, {kWanted}, {"002"}, 2, found(1)},
        {2, {"64-17"}, {kWanted}, byName, 2, found(4)},
        {2, {"004 "}, {kWanted}, {"004"}, 2, found(1)},
        {2, {"xyz"}, {kWanted}, {"Látka  XYZ  nenalezena!!!"}, 2, found(1)},
        {2, {"č*e*ton"}, {kWanted}, {"Látka  ČE*TON  nenalezena!!!"}, 2, found(1)},
        {2,
         {"é*" + std::string(120, 'x')},
         {kWanted},
         {"Látka  É" + std::string(99, 'X') + "  nenalezena!!!"},
         2,
         found(1)},
        {3, {}, {}, {}, 3, all},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(show(c.mode, c.answers), c.lines) << c.heading;
        EXPECT_EQ(boxes.requests, c.requests);
        EXPECT_EQ(smes.RezimSeznamu(), c.rememberedMode);
        EXPECT_EQ(shown.Nadpis_1, "SEZNAM LÁTEK DATABÁZE  V E L O R   " + platform::shortDate());
        EXPECT_EQ(shown.Nadpis_2, c.heading);
        EXPECT_EQ(shown.L_Sezn.selected, c.lines.empty() ? -1 : 0);
        EXPECT_TRUE(shown.visible);
    }
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(errorNumber([&] { show(0, {}); }), 62);  // nobody answers
    EXPECT_EQ(errorNumber([&] { show("x", {}); }), 13);
    EXPECT_EQ(errorNumber([&] { show(40000, {}); }), 6);
}

TEST_F(ListFormTest, closesOnAnything) {
    const std::function<void(F_Sezn&)> ways[] = {[](F_Sezn& form) { form.click(); },
                                                 [](F_Sezn& form) { form.keyPressed('x'); },
                                                 [](F_Sezn& form) { form.close(); }};
    for (const auto& way : ways) {
        F_Sezn form;
        form.visible = true;
        bool visibleInEvent = false;
        form.zavrit = [&] { visibleInEvent = form.visible; };
        way(form);
        EXPECT_TRUE(visibleInEvent);
        EXPECT_FALSE(form.visible);
    }
}

TEST_F(ListFormTest, isRenewedByAReset) {
    show(2, {"aceton"});
    smes.ResetujSmes();
    F_Sezn* renewed = nullptr;
    boxes.nextListActions = {[&](F_Sezn& form) { renewed = &form; }};
    smes.SeznamShow(3);
    ASSERT_NE(renewed, nullptr);
    EXPECT_TRUE(renewed->L_Sezn.items.empty());
    EXPECT_EQ(smes.PocLatek(), 4);
    EXPECT_EQ(smes.Nsloz(), Variant(std::int16_t{0}));
    smes.mSeznam_zavrit();
    EXPECT_FALSE(renewed->visible);
}

}  // namespace
}  // namespace velor
