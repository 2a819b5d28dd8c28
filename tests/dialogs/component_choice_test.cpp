// Choosing a mixture's components: the form alone, and ZadejSmes around it.
#include "support/sample_test.h"
#include "velor/forms.h"

namespace velor::test {
namespace {

using Control = Focus::Control;

struct ChoiceForm : ::testing::Test {
    F_Seznam form;
    std::vector<std::string> exclamations;
    std::vector<CislaLatek> confirmed;

    ChoiceForm() {
        form.showExclamation = [this](const std::string& text) { exclamations.push_back(text); };
        form.SZavrit = [this](const auto& numbers) { confirmed.push_back(numbers); };
        form.L_Seznam.items = {"007  Zinek", "Látka  XYZ  nenalezena!!!", "000  tisící 1"};
        form.visible = true;
    }
    void press(int k, int key) {
        form.keyPressed(k, key);
        form.keyReleased(k);
    }
    void type(int k, const std::string& text) {
        form.setText(k, text);
        press(k, text.back());
    }
    Focus enter(int k) {
        press(k, kEnterKey);
        return form.focus;
    }
    void fill(int count) {
        for (int k = form.PocZadanych; k < count; ++k) type(k, std::to_string(k + 1)), enter(k);
    }
    auto visibleBoxes() const {
        return std::count_if(form.T_Smes.begin(), form.T_Smes.end(), [](auto& box) { return box.visible; });
    }
    const std::string& text(std::size_t k) const { return form.T_Smes[k].text; }
};

TEST_F(ChoiceForm, walksThroughTheBoxes) {
    type(0, "0");
    EXPECT_EQ(enter(0), (Focus{Control::Number, 0}));  // no number of a substance
    EXPECT_EQ(form.PocZadanych, 0);
    fill(3);
    EXPECT_EQ(visibleBoxes(), 4);
    for (const int k : {0, 2, 3}) EXPECT_EQ(enter(k), (Focus{Control::Number, std::min(k + 1, 3)}));
    type(3, "4");
    enter(1);  // the number typed last counts, wherever Enter is pressed
    EXPECT_EQ(form.PocZadanych, 4);
    fill(20);
    EXPECT_EQ(visibleBoxes(), 20);
    EXPECT_EQ(form.focus, (Focus{Control::Confirm, 0}));
    EXPECT_EQ(enter(18), (Focus{Control::Number, 19}));
    EXPECT_EQ(enter(19), (Focus{Control::Confirm, 0}));
    EXPECT_EQ(errorNumber([&] { form.keyPressed(20, '1'); }), 9);
    form.clickZpet();
    EXPECT_EQ(form.PocZadanych, 0);
    EXPECT_EQ(visibleBoxes(), 1);
    for (const TextBox& box : form.T_Smes) EXPECT_EQ(box.text, "");
}

TEST_F(ChoiceForm, confirmsWhatWasEntered) {
    type(0, "5");
    form.clickC_OK();  // without Enter the number does not count
    EXPECT_EQ(exclamations,
              std::vector<std::string>{"Nezadána žádná látka nebo po zadání čísla látky nebyl stisknut Enter!"});
    enter(0);
    type(1, "32767");
    enter(1);
    form.setText(0, " 12x");
    form.clickC_OK();
    EXPECT_EQ(confirmed, (std::vector{CislaLatek{2, 12, 32767}}));
    form.setText(1, "32768");
    EXPECT_EQ(errorNumber([&] { form.clickC_OK(); }), 6);
}

struct Choice : SampleTest {
    Choice() : SampleTest({sampleSubstance(1, "Voda"), sampleSubstance(2, "Aceton"), blankRecord()}) {}

    void choose(const std::vector<std::string>& numbers) {
        mixture.boxes.nextComponentActions.push_back([numbers](F_Seznam& form) {
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

TEST_F(Choice, tellsWhatItCannotLoad) {
    const Message unknown{"INIVLR: Látka č.  3 není v bázi!", Icon::Exclamation, "VELOR"};
    const Message notLoaded{"Nemohu načíst z VELOR.DRC!", Icon::Critical, "VELOR"};
    for (const int mode : {-1, 2}) {
        smes.ChyboveHlasky(mode);
        messages.clear();
        choose({"1", "3", "2"});
        EXPECT_EQ(messages, mode < 2 ? (std::vector{unknown, notLoaded}) : std::vector{unknown});
        EXPECT_EQ(smes.Nsloz().toInt16(), 3);  // the slots are set all the same
    }
    CislaLatek numbers{21};  // from a host
    EXPECT_EQ(errorNumber([&] { smes.mZadSmes_SZavrit(numbers); }), 9);
}

}  // namespace
}  // namespace velor::test
