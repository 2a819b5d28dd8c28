// The form with the list: what it asks, what it shows, how it closes.
#include <gtest/gtest.h>

#include "platform/system.h"
#include "support/sample_mixture.h"
#include "velor/forms.h"

namespace velor::test {
namespace {

using Lines = std::vector<std::string>;
using Requests = std::vector<InputRequest>;
using Answers = std::deque<std::string>;

TEST(ListForm, asksForTheOrderOrTheText) {
    SampleMixture mixture({sampleSubstance(1, "Ethanol"), sampleSubstance(2, "Žluť 50%"), sampleSubstance(3, "Aceton"),
                           sampleSubstance(4, "Methanol")});
    auto& [folder, boxes, smes] = mixture;
    F_Sezn shown;
    // Shows the list; the numbers or other texts of its lines.
    const auto show = [&](const Variant& mode, Answers answers) {
        boxes.requests.clear();
        boxes.nextTexts = std::move(answers);
        boxes.nextListActions = {[&](F_Sezn& form) { shown = form; }};
        smes.SeznamShow(mode);
        Lines lines = shown.L_Sezn.items;
        for (std::string& line : lines)
            if (line.starts_with("00")) line.resize(3);
        return lines;
    };
    const Requests order{{"0 - podle abecedy\r\n1 - podle čísel (chvíli trvá ...)", "VELOR", "0"}};
    const Requests wanted{{"Vložte název nebo část názvu hledané látky (bez *, %):", "VELOR", ""}};
    const Lines byName{"003", "001", "004", "002"}, byNumber{"001", "002", "003", "004"};
    struct Case {
        Variant mode;
        Answers answers;
        Requests requests;
        Lines lines;
        int rememberedMode, found;  // -1: all are shown
    };
    // clang-format off
    const Case cases[] = {
        {Variant::missing(), {"0"}, order, byName, -1, -1}, {0, {"1"}, order, byNumber, 0, -1},
        {1, {"1 "}, order, byName, 1, -1}, {Variant(), {"x"}, order, byName, 0, -1},
        {1, {"2", "ANOL"}, {order[0], wanted[0]}, {"001", "004"}, 2, 2}, {2, {"aceton*"}, wanted, {"003"}, 2, 1},
        {2, {"*"}, wanted, byName, 2, 4}, {2, {"žluť 50%"}, wanted, {"002"}, 2, 1},
        {2, {"004 "}, wanted, {"004"}, 2, 1},
        {2, {"xyz"}, wanted, {"Látka  XYZ  nenalezena!!!"}, 2, 1},
        {2, {"č*e*ton"}, wanted, {"Látka  ČE*TON  nenalezena!!!"}, 2, 1},
        {2, {"é*" + std::string(120, 'x')}, wanted, {"Látka  É" + std::string(99, 'X') + "  nenalezena!!!"}, 2, 1},
        {3, {}, {}, {}, 3, -1}};
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(show(c.mode, c.answers), c.lines);
        EXPECT_EQ(boxes.requests, c.requests);
        EXPECT_EQ(smes.RezimSeznamu(), c.rememberedMode);
        EXPECT_EQ(shown.Nadpis_1, "SEZNAM LÁTEK DATABÁZE  V E L O R   " + platform::shortDate());
        EXPECT_EQ(shown.Nadpis_2, c.found < 0 ? "Počet zahrnutých látek  4"
                                              : "k zadání nalezeno " + std::to_string(c.found) + " látek");
        for (std::size_t i = 0; i < shown.Latky.size(); ++i)
            EXPECT_EQ(c.lines[i], "00" + std::to_string(shown.Latky[i].number));
        EXPECT_EQ(shown.L_Sezn.selected, c.lines.empty() ? -1 : 0);
    }
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(errorNumber([&] { show(0, {}); }), 62);  // nobody answers
    show(2, {"aceton"});
    smes.ResetujSmes();
    EXPECT_EQ(show(3, {}), Lines{});  // renewed
}

}  // namespace
}  // namespace velor::test
