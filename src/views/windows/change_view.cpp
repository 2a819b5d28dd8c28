// The temporary change of a component's names and constants in a window.
#include "velor/component_forms.h"
#include "views/windows/controls.h"
#include "views/windows/form_ids.h"
#include "views/windows/form_window.h"
#include "views/windows/user_interface.h"

namespace velor::forms {

namespace {

using namespace velor::forms;

constexpr Anchor kAnchors[] = {
    {ZMENAZ_NAVOD, ZMENAZ_NAVOD, kGrowX},
    {ZMENAZ_C_OK, ZMENAZ_C_ZPET, kMoveX | kMoveY},
    {ZMENAZ_T_POLE, ZMENAZ_T_POLE + F_Zmenaz::kFirstConstant - 1, kGrowX},
};
constexpr FocusMap kFocus{Focus::Control::Value, ZMENAZ_T_POLE, F_Zmenaz::kFields, 0, ZMENAZ_C_OK};

class ChangeView : public FormWindow {
  public:
    explicit ChangeView(F_Zmenaz& form) : FormWindow(FORM_ZMENAZ, form.visible, kAnchors), form_(form) {}

  private:
    void fill() override {
        setCaption(form_.caption);
        showText(control(ZMENAZ_NAVOD), form_.Navod);
        showText(control(ZMENAZ_C_OK), form_.C_OKCaption);
        showText(control(ZMENAZ_C_DATA), form_.C_DataCaption);
        showText(control(ZMENAZ_C_OBNOVIT), form_.C_ObnovitCaption);
        showText(control(ZMENAZ_C_ZPET), form_.C_ZpetCaption);
        int id = ZMENAZ_L_POLE;
        for (const std::string& caption : form_.L_Pole) showText(control(id++), caption);
    }
    void display() override {
        int id = ZMENAZ_T_POLE;
        for (const TextBox& box : form_.T_Pole) showBox(control(id++), box);
        setFocus(kFocus.idOf(form_.focus));
    }
    void close() override { form_.close(); }

    void clicked(int id) override {
        if (id == ZMENAZ_C_OK) form_.clickC_OK();
        if (id == ZMENAZ_C_DATA) form_.clickC_Data();
        if (id == ZMENAZ_C_OBNOVIT) form_.clickC_Obnovit();
        if (id == ZMENAZ_C_ZPET) form_.clickC_Zpet();
    }
    void textChanged(int id, std::string text) override { form_.setText(id - ZMENAZ_T_POLE, std::move(text)); }
    void focused(int id) override { form_.focus = kFocus.focusOf(id); }
    bool takesEnter(int id) const override { return kFocus.focusOf(id).control == Focus::Control::Value; }
    void keyPressed(int id, int key) override {
        if (takesEnter(id)) form_.keyPressed(id - ZMENAZ_T_POLE, key);
    }

    F_Zmenaz& form_;
};

}  // namespace

void WindowsUserInterface::showForm(F_Zmenaz& form) {
    ChangeView view(form);
    show(view);
}

}  // namespace velor::forms
