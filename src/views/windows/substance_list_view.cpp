// The list of substances in a window.
#include "velor/forms.h"
#include "views/windows/controls.h"
#include "views/windows/form_ids.h"
#include "views/windows/form_window.h"
#include "views/windows/user_interface.h"

namespace velor::forms {

namespace {

using namespace velor::forms;

constexpr Anchor kAnchors[] = {{SEZN_NADPIS_2, SEZN_NADPIS_2, kMoveX}, {SEZN_L_SEZN, SEZN_L_SEZN, kGrowX | kGrowY}};

class SubstanceListView : public FormWindow {
  public:
    explicit SubstanceListView(F_Sezn& form) : FormWindow(FORM_SEZN, form.visible, kAnchors), form_(form) {}

  private:
    void fill() override {
        showText(control(SEZN_NADPIS_1), form_.Nadpis_1);
        showText(control(SEZN_NADPIS_2), form_.Nadpis_2);
        showText(control(SEZN_TITULEK), kColumnHeadings);
        useFixedPitch(SEZN_TITULEK, F_Sezn::kFont);
        useFixedPitch(SEZN_L_SEZN, F_Sezn::kFont);
        fillList(control(SEZN_L_SEZN), form_.L_Sezn.items);
    }
    void display() override { showSelection(control(SEZN_L_SEZN), form_.L_Sezn.selected); }
    void close() override { form_.close(); }

    void lineSelected(int, int index) override { form_.L_Sezn.selected = index; }
    void mousePressed(int, int) override { form_.click(); }
    bool takesEnter(int id) const override { return id == SEZN_L_SEZN; }
    // Keys that make no character, such as the arrows, move through the list: it could not be read otherwise.
    void keyPressed(int, int character) override { form_.keyPressed(character); }

    F_Sezn& form_;
};

}  // namespace

void WindowsUserInterface::showForm(F_Sezn& form) {
    SubstanceListView view(form);
    show(view);
}

}  // namespace velor::forms
