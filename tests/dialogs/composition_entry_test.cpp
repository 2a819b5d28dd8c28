// Entering a mixture's composition.
#include <gtest/gtest.h>

#include "support/sample_mixture.h"

namespace velor {
namespace {

using test::errorNumber;
using test::sampleSubstance;
using Texts = std::vector<std::string>;

TLatka substanceOfMass(int number, std::string_view name, float Mv) {
    TLatka record = sampleSubstance(number, name);
    record.Mv = Mv;
    return record;
}

const Message kNoComposition{"Je třeba zadat složení směsi!", Icon::Critical, "VELOR"};
const Message kUnknown{"Některá ze složek není v bázi (0), opravte neznámou složku,\revent. náhradní složku!",
                       Icon::Critical, "VELOR"};

struct EntryTest : ::testing::Test {
    test::SampleMixture mixture{{substanceOfMass(1, "Lehká", 0.125F), substanceOfMass(2, "Střední", 0.25F),
                                 substanceOfMass(3, "Těžká", 0.5F), substanceOfMass(4, "Bez M", 0.0F)}};
    Smes& smes = mixture.smes;
    RecordingUserInterface& boxes = mixture.boxes;
    Variant n, X = Fractions({0.1, 0.2, 0.7}), W = Fractions({0.3, 0.3, 0.4});

    void enterNext(const Texts& values, bool molar = true) {
        boxes.nextCompositionActions.push_back([values, molar](F_Sloz& form) {
            molar ? form.clickO_Mol() : form.clickO_Hmot();
            for (std::size_t i = 0; i < values.size(); ++i) form.setText(static_cast<int>(i), values[i]);
            form.clickC_OK();
        });
    }
    void enter(const Texts& values, bool molar = true) {
        enterNext(values, molar);
        smes.ZadejSloz(n, X, W);
    }
};

TEST(CompositionForm, behaves) {
    F_Sloz form;
    form.components = 3;
    form.visible = true;
    std::string events;
    form.ZobrazL = [&](int i) { events += "L" + std::to_string(i); };
    form.ZobrazZ = [&](int i) { events += "Z" + std::to_string(i); };
    form.ZpetSloz = [&] { events += form.visible ? "B" : "b"; };
    for (const auto& [box, next] : {std::pair{0, 1}, {1, 2}, {2, 2}}) {
        form.keyPressed(box, kEnterKey);
        EXPECT_EQ(form.focus, (Focus{Focus::Control::Value, next}));
        form.keyPressed(0, '5');
        EXPECT_EQ(form.focus.index, next);
    }
    form.clickO_Hmot();
    EXPECT_FALSE(form.O_Mol);
    EXPECT_EQ(form.focus, (Focus{Focus::Control::Value, 0}));
    form.mouseOnName(0, 1);
    form.mouseOnName(19, 2);
    form.mouseOnName(1, 4);
    EXPECT_EQ(errorNumber([&] { form.mouseOnName(20, 1); }), 9);
    EXPECT_EQ(errorNumber([&] { form.setText(-1, ""); }), 9);
    form.close();
    EXPECT_EQ(events, "L1Z20Z2B");
    EXPECT_FALSE(form.visible);
}

TEST_F(EntryTest, prefillsByMode) {
    const std::pair<Variant, Texts> cases[] = {
        {Variant::missing(), {"", "", ""}},  {0, {"", "", ""}},
        {1, {"1.0", "1.0", "1.0"}},          {-1, {"1.0", "1.0", "1.0"}},
        {2, {"0.3000", "0.3000", "0.4000"}}, {-2, {"0.3000", "0.3000", "0.4000"}},
        {3, {"0.1000", "0.2000", "0.7000"}}, {4, {"", "", ""}},
    };
    for (const auto& [mode, expected] : cases) {
        smes.DefSmes(3, Fractions({1, 2, 3}));
        F_Sloz shown;
        boxes.nextCompositionActions = {[&](F_Sloz& form) {
            shown = form;
            form.T_S[5] = {"left over", true, true};  // the next display shows none of it
            form.focus = {Focus::Control::Value, 5};
        }};
        smes.ZadejSloz(n, X, W, "text", mode);
        EXPECT_EQ(n.toInt16(), 3);
        EXPECT_EQ(shown.components, 3);
        EXPECT_EQ(shown.focus, (Focus{Focus::Control::Value, 0}));
        EXPECT_EQ(shown.L_J[1], "Střední                       ");
        for (std::size_t i = 0; i < shown.T_S.size(); ++i) {
            EXPECT_EQ(shown.T_S[i].text, i < 3 ? expected[i] : "");
            EXPECT_EQ(shown.T_S[i].enabled, i < 3);
            EXPECT_EQ(shown.L_J[i].empty(), i >= 3);
        }
    }
    smes.DefSmes(3, Fractions({1, 2, 3}));
    EXPECT_EQ(errorNumber([&] { smes.ZadejSloz(n, X, W, "", "x"); }), 13);
    Variant shorter = Fractions({0.5, 0.5});
    EXPECT_EQ(errorNumber([&] { smes.ZadejSloz(n, shorter, W, "", 3); }), 9);
    EXPECT_EQ(errorNumber([&] { smes.ZadejSloz(n, X, shorter, "", 2); }), 9);
}

TEST_F(EntryTest, convertsTheEnteredValues) {
    struct Case {
        std::vector<double> numbers;
        Texts values;
        bool molar;
        std::vector<double> entered, mole, mass;
    };
    // Molar masses 1/8, 1/4 and 1/2.
    const Case cases[] = {
        {{1, 2, 3}, {"2", "1", "1"}, true, {0.5, 0.25, 0.25}, {0.5, 0.25, 0.25}, {0.25, 0.25, 0.5}},
        {{1, 2, 3}, {"1", "1", "2"}, false, {0.25, 0.25, 0.5}, {0.5, 0.25, 0.25}, {0.25, 0.25, 0.5}},
        {{1, 2}, {"0,5", " 0.5 mol"}, true, {0.5, 0.5}, {0.5, 0.5}, {1 / 3.0, 2 / 3.0}},
        {{1, 2}, {"0.50009", "0.5"}, true, {0.50009, 0.5}, {0.50009, 0.5}, {0.50009 / 1.50009, 1 / 1.50009}},
        {{1, 2},
         {"0.50011", "0.5"},
         true,
         {0.50011 / 1.00011, 0.5 / 1.00011},
         {0.50011 / 1.00011, 0.5 / 1.00011},
         {0.50011 / 1.50011, 1 / 1.50011}},
        {{1, 1}, {"0", "1e3"}, true, {0, 1}, {0, 1}, {0, 1}},
        // One component: what was entered stays as it is, the computed fraction is 1.
        {{3}, {"5"}, true, {5}, {5}, {1}},
        {{3}, {"0.2"}, false, {0.2}, {1}, {0.2}},
    };
    for (const Case& c : cases) {
        const int count = static_cast<int>(c.numbers.size());
        smes.DefSmes(count, Fractions(c.numbers));
        enter(c.values, c.molar);
        for (int i = 1; i <= count; ++i) {
            const auto at = static_cast<std::size_t>(i - 1);
            EXPECT_NEAR(smes.ZadaneSlozeni(i).toDouble(), c.entered[at], 1e-15) << c.values[at];
            EXPECT_NEAR(smes.MolZlomky(i).toDouble(), c.mole[at], 1e-15) << c.values[at];
            EXPECT_NEAR(smes.HmotZlomky(i).toDouble(), c.mass[at], 1e-15) << c.values[at];
            EXPECT_EQ(X.at(i), smes.MolZlomky(i));
            EXPECT_EQ(W.at(i), smes.HmotZlomky(i));
        }
    }
    EXPECT_EQ(X.at(3), Variant(0.25));  // elements behind the components stay
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(EntryTest, refusesWhatCannotBeAComposition) {
    smes.DefSmes(3, Fractions({1, 2, 3}));
    enter({"1", "1", "2"});
    const Variant before[] = {X, W, smes.MolZlomky(1)};
    try {
        enter({"1", "-0.5", "-1"});
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), RunTimeError::kRaisedToHost);
        EXPECT_EQ(error.source(), "ZadejSloz");
        EXPECT_EQ(error.description(), "2. složení je záporné!");
    }
    EXPECT_EQ(errorNumber([&] { enter({"1e999", "0", "0"}); }), 6);
    smes.ChyboveHlasky(2);  // no message, and no second chance
    EXPECT_EQ(errorNumber([&] { enter({"", "", ""}); }), 11);
    smes.DefSmes(2, Fractions({1, 4}));
    EXPECT_EQ(errorNumber([&] { enter({"1", "1"}, false); }), 11);
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(X, before[0]);
    EXPECT_EQ(W, before[1]);
    EXPECT_EQ(smes.MolZlomky(1), before[2]);
    // Arrays that are too short.
    smes.DefSmes(3, Fractions({1, 2, 3}));
    for (Variant* array : {&X, &W}) {
        *array = Fractions({1, 0});
        EXPECT_EQ(errorNumber([&] { enter({"1", "1", "2"}); }), 9);
        *array = Fractions({1, 0, 0});
    }
}

TEST_F(EntryTest, asksAgainUntilThereIsAComposition) {
    smes.DefSmes(2, Fractions({1, 2}));
    enterNext({"0", "1e-11"});
    Texts again;
    boxes.nextCompositionActions.push_back([&](F_Sloz& form) { again = {form.T_S[0].text, form.T_S[1].text}; });
    smes.ZadejSloz(n, X, W, "", 1);
    EXPECT_EQ(boxes.messages, std::vector{kNoComposition});
    EXPECT_EQ(again, (Texts{"1.0", "1.0"}));  // filled anew
    EXPECT_EQ(smes.Nsloz().toInt16(), 0);     // and left by the frame
}

TEST_F(EntryTest, letsTheComponentsBeCorrected) {
    smes.ChyboveHlasky(2);
    smes.ZapisNslozky(1, 1);
    smes.ZapisNslozky(2, 30);  // beyond the database
    smes.Inivlr();
    EXPECT_EQ(boxes.messages.size(), 0U);
    smes.ChyboveHlasky(0);
    enterNext({"0", "0"});  // a missing composition is told first
    enterNext({"1", "1"});
    boxes.nextComponentActions.push_back([](F_Seznam& form) {
        form.setText(0, "2");
        form.keyPressed(0, kEnterKey);
        form.clickC_OK();
    });
    enterNext({"1"});
    smes.ZadejSloz(n, X, W);
    EXPECT_EQ(boxes.messages, (std::vector{kNoComposition, kUnknown}));
    EXPECT_EQ(n.toInt16(), 1);
    EXPECT_EQ(smes.Nslozky(1).toInt16(), 2);
    EXPECT_EQ(X, Fractions({1, 0.2, 0.7}));
}

TEST_F(EntryTest, backLeavesNoComponents) {
    const std::function<void(F_Sloz&)> ways[] = {[](F_Sloz& form) { form.clickC_Zpet(); },
                                                 [](F_Sloz& form) { form.close(); }};
    for (const auto& way : ways) {
        smes.DefSmes(2, Fractions({1, 2}));
        const Variant before = X;
        boxes.nextCompositionActions.push_back([&](F_Sloz& form) {
            form.setText(0, "1");
            way(form);
            EXPECT_EQ(smes.Nsloz().toInt16(), -9999);  // the marker between the form and the method
        });
        smes.ZadejSloz(n, X, W);
        EXPECT_EQ(smes.Nsloz().toInt16(), 0);
        EXPECT_EQ(n.toInt16(), 2);
        EXPECT_EQ(X, before);
        EXPECT_TRUE(smes.MolZlomky(1).isEmpty());
    }
    for (const int i : {0, 21}) EXPECT_EQ(errorNumber([&] { smes.HmotZlomky(i); }), 9);
    EXPECT_TRUE(boxes.messages.empty());
}

}  // namespace
}  // namespace velor
