// The choice of a mixture's components in a window.
#include <algorithm>

#include "velor/forms.h"
#include "views/line_search.h"
#include "views/windows/controls.h"
#include "views/windows/form_ids.h"
#include "views/windows/form_window.h"
#include "views/windows/user_interface.h"

namespace velor::forms {

namespace {

using namespace velor::forms;

constexpr Anchor kAnchors[] = {
    {SEZNAM_L_SEZNAM, SEZNAM_L_SEZNAM, kGrowX | kGrowY}, {SEZNAM_NADPIS_2, SEZNAM_NADPIS_2, kMoveX},
    {SEZNAM_LBLDATAFILE, SEZNAM_LBLDATAFILE, kGrowX},    {SEZNAM_NAV2, SEZNAM_OPTION2, kMoveY},
    {SEZNAM_NALEZENO, SEZNAM_NALEZENO, kGrowX},          {SEZNAM_TITULEK, SEZNAM_TITULEK, kGrowX},
    {SEZNAM_C_OK, SEZNAM_ZPET, kMoveX | kMoveY},         {SEZNAM_T_SMES, SEZNAM_T_SMES + F_Seznam::kBoxes - 1, kMoveY},
};
constexpr FocusMap kFocus{Focus::Control::Number, SEZNAM_T_SMES, F_Seznam::kBoxes, SEZNAM_L_SEZNAM, SEZNAM_C_OK};

class ComponentsView : public FormWindow {
  public:
    explicit ComponentsView(F_Seznam& form)
        : FormWindow(FORM_SEZNAM, form.visible, kAnchors), form_(form), search_(form.L_Seznam.items) {}

  private:
    static bool isBox(int id) { return id >= SEZNAM_T_SMES && id < SEZNAM_T_SMES + F_Seznam::kBoxes; }

    void fill() override {
        setCaption(form_.caption);
        showText(control(SEZNAM_NADPIS_1), form_.Nadpis_1);
        showText(control(SEZNAM_NADPIS_2), form_.Nadpis_2);
        showText(control(SEZNAM_LBLDATAFILE), form_.lblDatafile);
        showText(control(SEZNAM_NAV2), form_.Nav2);
        showText(control(SEZNAM_LABEL1), form_.Label1);
        showText(control(SEZNAM_FRAME1), form_.Frame1);
        showText(control(SEZNAM_OPTION1), form_.Option1Caption);
        showText(control(SEZNAM_OPTION2), form_.Option2Caption);
        showText(control(SEZNAM_C_OK), form_.C_OKCaption);
        showText(control(SEZNAM_ZPET), form_.ZpetCaption);
        showText(control(SEZNAM_HLEDAT_POPIS), "&Hledat:");
        showText(control(SEZNAM_TITULEK), kColumnHeadings);
        useFixedPitch(SEZNAM_TITULEK, F_Seznam::kFont);
        useFixedPitch(SEZNAM_L_SEZNAM, F_Seznam::kFont);
        find({});
    }
    // Shows the lines that hold the text and selects the one that is meant.
    void find(const std::string& text) {
        found_ = search_.holding(text);
        std::vector<std::string> lines;
        for (const int index : found_) lines.push_back(boxAt(form_.L_Seznam.items, index));
        fillList(control(SEZNAM_L_SEZNAM), lines);
        const std::string count = std::to_string(found_.size()) + " z " + std::to_string(form_.L_Seznam.items.size());
        showText(control(SEZNAM_NALEZENO), text.empty() ? std::string() : count);
        if (!text.empty() && !found_.empty()) form_.selectLine(found_[search_.bestOf(found_, text)]);
    }
    // The position of the selected line among those shown; -1 where it is not.
    int position() const {
        const auto at = std::find(found_.begin(), found_.end(), form_.L_Seznam.selected);
        return at == found_.end() ? -1 : static_cast<int>(at - found_.begin());
    }
    void display() override {
        showSelection(control(SEZNAM_L_SEZNAM), position());
        int id = SEZNAM_T_SMES;
        for (const TextBox& box : form_.T_Smes) showBox(control(id++), box);
        showCheck(control(SEZNAM_OPTION1), form_.Option1);
        showCheck(control(SEZNAM_OPTION2), !form_.Option1);
        setFocus(kFocus.idOf(form_.focus));
    }
    void close() override { form_.close(); }

    void clicked(int id) override {
        if (id == SEZNAM_OPTION1) form_.clickOption1();
        if (id == SEZNAM_OPTION2) form_.clickOption2();
        if (id == SEZNAM_C_OK) form_.clickC_OK();
        if (id == SEZNAM_ZPET) form_.clickZpet();
    }
    void doubleClicked(int) override { form_.doubleClick(); }
    void lineSelected(int, int line) override { form_.selectLine(boxAt(found_, line)); }
    void textChanged(int id, std::string text) override {
        if (isBox(id)) form_.setText(id - SEZNAM_T_SMES, std::move(text));
        if (id == SEZNAM_HLEDAT) find(text);
    }
    void focused(int id) override { form_.focus = kFocus.focusOf(id); }

    int listMovedFrom(int id) const override { return id == SEZNAM_HLEDAT ? SEZNAM_L_SEZNAM : 0; }
    bool takesEnter(int id) const override { return id == SEZNAM_L_SEZNAM || id == SEZNAM_HLEDAT || isBox(id); }
    // A box is told characters rather than keys: digits count on both parts of the keyboard and in every layout of it,
    // and the arrows are free to move in the box.
    void keyPressed(int id, int character) override {
        if (id == SEZNAM_L_SEZNAM) form_.keyInList(character);
        if (isBox(id)) form_.keyPressed(id - SEZNAM_T_SMES, character);
        if (id == SEZNAM_HLEDAT && character == kEnterKey) takeFound();
    }
    void keyReleased(int id) override {
        if (isBox(id)) form_.keyReleased(id - SEZNAM_T_SMES);
    }

    // What is typed next looks for another substance.
    void takeFound() {
        if (position() >= 0) form_.keyInList(kEnterKey);
        SendMessageW(control(SEZNAM_HLEDAT), EM_SETSEL, 0, -1);
    }

    F_Seznam& form_;
    const LineSearch search_;
    std::vector<int> found_;  // indices of the lines that the list shows
};

}  // namespace

void WindowsUserInterface::showForm(F_Seznam& form) {
    ComponentsView view(form);
    show(view);
}

}  // namespace velor::forms
