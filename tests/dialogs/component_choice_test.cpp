// Choosing a mixture's components: the form alone, and ZadejSmes around it.
#include <gtest/gtest.h>

#include "support/sample_mixture.h"
#include "velor/version.h"

namespace velor {
namespace {

using test::errorNumber;
using test::sampleSubstance;
using Control = Focus::Control;

struct ChoiceFormTest : ::testing::Test {
    F_Seznam form;
    std::vector<std::string> exclamations;
    std::vector<F_Seznam::CislaLatek> confirmed;

    ChoiceFormTest() {
        form.showExclamation = [this](const std::string& text) { exclamations.push_back(text); };
        form.SZavrit = [this](const auto& numbers) { confirmed.push_back(numbers); };
        form.L_Seznam.items = {"007  Zinek", "Látka  XYZ  nenalezena!!!", "000  tisící 1"};
        form.visible = true;
    }
    // As a person types: characters into box k, then Enter.
    void type(int k, const std::string& text) {
        for (const char c : text) {
            form.keyPressed(k, c);
            form.setText(k, form.T_Smes[static_cast<std::size_t>(k)].text + c);
            form.keyReleased(k);
        }
    }
    void enter(int k) {
        form.keyPressed(k, kEnterKey);
        form.keyReleased(k);
    }
    void fill(int count) {
        for (int k = form.PocZadanych; k < count; ++k) type(k, std::to_string(k + 1)), enter(k);
    }
    int visibleBoxes() const {
        int count = 0;
        for (const TextBox& box : form.T_Smes) {
            EXPECT_EQ(box.visible, box.enabled);
            count += box.visible ? 1 : 0;
        }
        return count;
    }
    const std::string& text(int k) const { return form.T_Smes[static_cast<std::size_t>(k)].text; }
};

TEST_F(ChoiceFormTest, walksThroughTheBoxes) {
    EXPECT_EQ(visibleBoxes(), 1);
    EXPECT_EQ(form.focus, (Focus{Control::Number, 0}));
    enter(0);  // nothing typed
    type(0, "0");
    enter(0);  // no number of a substance
    EXPECT_EQ(form.PocZadanych, 0);
    form.setText(0, "");
    fill(3);
    EXPECT_EQ(form.PocZadanych, 3);
    EXPECT_EQ(visibleBoxes(), 4);
    EXPECT_EQ(form.focus, (Focus{Control::Number, 3}));
    for (const int k : {0, 1, 2}) {  // through the boxes already counted
        enter(k);
        EXPECT_EQ(form.focus, (Focus{Control::Number, k + 1}));
    }
    enter(3);
    EXPECT_EQ(form.focus, (Focus{Control::Number, 3}));
    type(3, "4");
    enter(1);  // the number typed last counts, wherever Enter is pressed
    EXPECT_EQ(form.PocZadanych, 4);

    fill(19);
    enter(19);
    EXPECT_EQ(form.focus, (Focus{Control::Number, 19}));
    fill(20);
    EXPECT_EQ(visibleBoxes(), 20);
    EXPECT_EQ(form.focus, (Focus{Control::Confirm, 0}));
    enter(18);
    EXPECT_EQ(form.focus, (Focus{Control::Number, 19}));
    enter(19);
    EXPECT_EQ(form.focus, (Focus{Control::Confirm, 0}));
    form.clickOption1();
    EXPECT_EQ(form.focus, (Focus{Control::Confirm, 0}));
    EXPECT_EQ(form.PocZadanych, 20);
    for (const int k : {-1, 20}) {
        EXPECT_EQ(errorNumber([&] { form.keyPressed(k, '1'); }), 9);
        EXPECT_EQ(errorNumber([&] { form.keyReleased(k); }), 9);
        EXPECT_EQ(errorNumber([&] { form.setText(k, ""); }), 9);
    }
}

TEST_F(ChoiceFormTest, letsOnlyDigitsAndControlKeysSurvive) {
    for (const int key : {32, 45, 47, 58, 97, 225}) {
        type(0, "12");
        form.keyPressed(0, key);
        form.keyReleased(0);
        EXPECT_EQ(text(0), "") << key;
        form.keyReleased(0);
    }
    type(0, "12");
    form.keyPressed(0, 8);
    form.keyReleased(0);
    EXPECT_EQ(text(0), "12");
    enter(0);
    // A letter in a box already counted empties the next free one.
    type(1, "3");
    type(0, "x");
    EXPECT_EQ(text(0), "12x");
    EXPECT_EQ(text(1), "");
    // With all boxes taken there is none to empty, not even after a new start.
    fill(20);
    type(3, "x");
    form.clickZpet();
    type(0, "5");
    EXPECT_EQ(text(0), "5");
}

TEST_F(ChoiceFormTest, picksFromTheList) {
    form.doubleClick();  // nothing selected
    EXPECT_EQ(form.PocZadanych, 0);
    const char* const numbers[] = {"7", "0", "0"};
    for (int line = 0; line < 3; ++line) {
        form.selectLine(line);
        form.keyInList('x');
        line == 1 ? form.keyInList(kEnterKey) : form.doubleClick();
        EXPECT_EQ(text(line), numbers[line]);
    }
    EXPECT_EQ(form.PocZadanych, 3);
    EXPECT_EQ(visibleBoxes(), 4);
    EXPECT_EQ(errorNumber([&] { form.selectLine(3); }), 9);
    EXPECT_EQ(errorNumber([&] { form.selectLine(-1); }), 9);
    while (form.PocZadanych < 20) form.doubleClick();
    EXPECT_TRUE(exclamations.empty());
    form.doubleClick();
    EXPECT_EQ(exclamations, std::vector<std::string>{"Maximální počet složek směsi je 20"});
    EXPECT_EQ(form.PocZadanych, 20);
}

TEST_F(ChoiceFormTest, startsAgain) {
    fill(5);
    form.clickOption2();
    EXPECT_EQ(form.focus.control, Control::List);
    form.clickZpet();
    EXPECT_EQ(form.focus.control, Control::List);
    EXPECT_EQ(form.PocZadanych, 0);
    EXPECT_EQ(visibleBoxes(), 1);
    for (const TextBox& box : form.T_Smes) EXPECT_EQ(box.text, "");
    form.clickOption1();
    EXPECT_EQ(form.focus, (Focus{Control::Number, 0}));
}

TEST_F(ChoiceFormTest, confirmsWhatWasEntered) {
    type(0, "5");
    form.focus = {Control::Confirm, 0};
    form.clickC_OK();  // without Enter the number does not count
    EXPECT_EQ(exclamations,
              std::vector<std::string>{"Nezadána žádná látka nebo po zadání čísla látky nebyl stisknut Enter!"});
    EXPECT_EQ(form.focus, (Focus{Control::Number, 0}));
    enter(0);
    type(1, "32767");
    enter(1);
    form.setText(0, " 12x");
    form.clickC_OK();
    ASSERT_EQ(confirmed.size(), 1U);
    EXPECT_EQ(confirmed[0], (F_Seznam::CislaLatek{2, 12, 32767}));
    for (const std::string tooLarge : {"32768", "99999999999999999999"}) {
        form.setText(1, tooLarge);
        EXPECT_EQ(errorNumber([&] { form.clickC_OK(); }), 6);
    }
    EXPECT_EQ(confirmed.size(), 1U);
    EXPECT_TRUE(form.visible);
    form.close();
    EXPECT_FALSE(form.visible);
    EXPECT_EQ(confirmed.size(), 1U);
}

struct ChoiceTest : ::testing::Test {
    test::SampleMixture mixture{
        {sampleSubstance(1, "Voda"), sampleSubstance(2, "Aceton"), test::blankRecord(), sampleSubstance(4, "Benzen")}};
    Smes& smes = mixture.smes;
    RecordingUserInterface& boxes = mixture.boxes;

    void choose(const std::vector<std::string>& numbers) {
        boxes.nextComponentActions.push_back([numbers](F_Seznam& form) {
            form.clickZpet();
            for (const std::string& number : numbers) {
                form.setText(form.PocZadanych, number);
                form.keyPressed(form.PocZadanych, kEnterKey);
            }
            form.clickC_OK();
        });
        smes.ZadejSmes();
    }
};

TEST_F(ChoiceTest, preparesTheForm) {
    for (int round = 0; round < 2; ++round) {  // the lines do not add up
        F_Seznam shown;
        boxes.nextComponentActions = {[&](F_Seznam& form) { shown = form; }};
        smes.ZadejSmes();
        EXPECT_EQ(shown.L_Seznam.items,
                  (std::vector<std::string>{smes.SeznamLatek(1), smes.SeznamLatek(2), smes.SeznamLatek(3)}));
        EXPECT_EQ(shown.L_Seznam.selected, 0);
        EXPECT_EQ(shown.caption,
                  " SEZNAM LÁTEK - definice složek směsi                                                 "
                  "         dll V." +
                      std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
                      std::to_string(kVersionRevision));
        EXPECT_EQ(shown.Nadpis_1, "SEZNAM LÁTEK DATABÁZE  V E L O R");
        EXPECT_EQ(shown.Nadpis_2, "Počet látek je 3");
        EXPECT_EQ(shown.lblDatafile, mixture.folder / "VELOR.DRC");
        EXPECT_TRUE(shown.visible);
    }
}

TEST_F(ChoiceTest, loadsTheComponents) {
    choose({"2", "1"});
    EXPECT_EQ(smes.Nsloz(), Variant(std::int16_t{2}));
    EXPECT_EQ(smes.Nslozky(1).toInt16(), 2);
    EXPECT_EQ(smes.Nslozky(2).toInt16(), 1);
    choose({"4"});  // a shorter mixture ends where it should
    EXPECT_EQ(smes.Inivlr().toInt16(), 1);
    F_Seznam kept;
    boxes.nextComponentActions = {[&](F_Seznam& form) { kept = form; }};  // closed by the frame
    smes.ZadejSmes();
    EXPECT_EQ(kept.T_Smes[0].text, "4");
    EXPECT_EQ(smes.Inivlr().toInt16(), 1);
    EXPECT_EQ(errorNumber([&] { choose({"1", "40000"}); }), 6);
    EXPECT_EQ(smes.Inivlr().toInt16(), 1);
    EXPECT_EQ(smes.Nslozky(1).toInt16(), 4);
    EXPECT_TRUE(boxes.messages.empty());
    choose({});
    EXPECT_EQ(boxes.messages,
              (std::vector<Message>{{"Nezadána žádná látka nebo po zadání čísla látky nebyl stisknut Enter!",
                                     Icon::Exclamation, "VELOR"}}));
}

TEST_F(ChoiceTest, tellsWhatItCannotLoad) {
    const Message unknown{"INIVLR: Látka č.  3 není v bázi!", Icon::Exclamation, "VELOR"};
    const Message notLoaded{"Nemohu načíst z VELOR.DRC!", Icon::Critical, "VELOR"};
    for (const int mode : {-1, 0, 1, 2}) {
        smes.ChyboveHlasky(mode);
        boxes.messages.clear();
        choose({"1", "3", "2"});
        EXPECT_EQ(boxes.messages, mode < 2 ? (std::vector{unknown, notLoaded}) : std::vector{unknown});
        EXPECT_EQ(smes.Nsloz().toInt16(), 3);  // the slots are set all the same
    }
}

TEST_F(ChoiceTest, checksWhatAHostPasses) {
    F_Seznam::CislaLatek numbers{21};
    numbers.fill(1);
    for (const int count : {-1, 21, 32767}) {
        numbers[0] = static_cast<std::int16_t>(count);
        EXPECT_EQ(errorNumber([&] { smes.mZadSmes_SZavrit(numbers); }), 9) << count;
    }
    numbers[0] = 20;
    smes.mZadSmes_SZavrit(numbers);
    EXPECT_EQ(smes.Nsloz().toInt16(), 20);
}

}  // namespace
}  // namespace velor
