// The composition of the mixture in a window.
#include <algorithm>

#include "velor/forms.h"
#include "views/windows/controls.h"
#include "views/windows/form_ids.h"
#include "views/windows/form_window.h"
#include "views/windows/user_interface.h"

namespace velor::forms {

namespace {

using namespace velor::forms;

constexpr int kLastName = SLOZ_L_J + F_Sloz::kBoxes - 1;
constexpr Anchor kAnchors[] = {
    {SLOZ_NADPISS, SLOZ_NAVOD2, kMoveX},
    {SLOZ_C_OK, SLOZ_C_ZPET, kMoveX | kMoveY},
    {SLOZ_T_S, SLOZ_T_S + F_Sloz::kBoxes - 1, kMoveX},
    {SLOZ_L_J, kLastName, kGrowX},
};
constexpr FocusMap kFocus{Focus::Control::Value, SLOZ_T_S, F_Sloz::kBoxes, 0, SLOZ_C_OK};
constexpr int kRowHeight = 14;  // dialog units, as in the layout
constexpr int kRowsBesideHints = 13;
constexpr int kLeftButton = 1, kRightButton = 2;

class CompositionView : public FormWindow {
  public:
    explicit CompositionView(F_Sloz& form) : FormWindow(FORM_SLOZ, form.visible, kAnchors), form_(form) {}

  private:
    void fill() override {
        setCaption(form_.caption);
        showText(control(SLOZ_NADPIS), form_.Nadpis);
        showText(control(SLOZ_NADPISS), form_.Nadpiss);
        showText(control(SLOZ_NADPISC), form_.Nadpisc);
        showText(control(SLOZ_FRAME1), form_.Frame1);
        showText(control(SLOZ_O_MOL), form_.O_MolCaption);
        showText(control(SLOZ_O_HMOT), form_.O_HmotCaption);
        showText(control(SLOZ_NAVOD), form_.Navod);
        showText(control(SLOZ_NAVOD1), form_.Navod1);
        showText(control(SLOZ_NAVOD2), form_.Navod2);
        showText(control(SLOZ_C_OK), form_.C_OKCaption);
        showText(control(SLOZ_C_ZPET), form_.C_ZpetCaption);
        shorten((F_Sloz::kBoxes - std::max(form_.components, kRowsBesideHints)) * kRowHeight);
    }
    // Rows that the mixture does not use are left out.
    void display() override {
        for (int i = 0; i < F_Sloz::kBoxes; ++i) {
            const bool isUsed = i < form_.components;
            TextBox box = form_.T_S[static_cast<std::size_t>(i)];
            box.visible = box.visible && isUsed;
            showBox(control(SLOZ_T_S + i), box);
            showBox(control(SLOZ_L_J + i), {form_.L_J[static_cast<std::size_t>(i)], isUsed});
        }
        showCheck(control(SLOZ_O_MOL), form_.O_Mol);
        showCheck(control(SLOZ_O_HMOT), !form_.O_Mol);
        setFocus(kFocus.idOf(form_.focus));
    }
    void close() override { form_.close(); }

    void clicked(int id) override {
        if (id == SLOZ_O_MOL) form_.clickO_Mol();
        if (id == SLOZ_O_HMOT) form_.clickO_Hmot();
        if (id == SLOZ_C_OK) form_.clickC_OK();
        if (id == SLOZ_C_ZPET) form_.clickC_Zpet();
    }
    void textChanged(int id, std::string text) override { form_.setText(id - SLOZ_T_S, std::move(text)); }
    void focused(int id) override { form_.focus = kFocus.focusOf(id); }
    bool takesEnter(int id) const override { return kFocus.focusOf(id).control == Focus::Control::Value; }
    void keyPressed(int id, int key) override {
        if (takesEnter(id)) form_.keyPressed(id - SLOZ_T_S, key);
    }
    void mousePressed(int id, int button) override {
        if (id >= SLOZ_L_J && id <= kLastName) form_.mouseOnName(id - SLOZ_L_J, button);
    }

    // From the keyboard they stand for the mouse on the name of the component whose value has the focus.
    void functionKeyPressed(int id, WPARAM key) override {
        if (takesEnter(id)) form_.mouseOnName(id - SLOZ_T_S, key == VK_F2 ? kLeftButton : kRightButton);
    }

    F_Sloz& form_;
};

}  // namespace

void WindowsUserInterface::showForm(F_Sloz& form) {
    CompositionView view(form);
    show(view);
}

}  // namespace velor::forms
