// The temporary change of a component's correlations in a window.
#include "velor/component_forms.h"
#include "views/windows/controls.h"
#include "views/windows/form_ids.h"
#include "views/windows/form_window.h"
#include "views/windows/user_interface.h"

namespace velor::forms {

namespace {

using namespace velor::forms;

constexpr int kLastField = OPRAV_T_POLE + frmOprav::kFields - 1;
constexpr Anchor kAnchors[] = {
    {OPRAV_NAVOD, OPRAV_NAVOD, kGrowX},
    {OPRAV_L_VLAST, OPRAV_L_VLAST, kGrowX | kGrowY},
    {OPRAV_VZTAH, OPRAV_POZNAMKA, kMoveY | kGrowX},
    {OPRAV_T_TEPLOTA_POPIS, OPRAV_PRED_POPIS, kMoveY},
    {OPRAV_PRED, OPRAV_PRED, kMoveY | kGrowX},
    {OPRAV_PO_POPIS, OPRAV_PO_POPIS, kMoveY},
    {OPRAV_PO, OPRAV_PO, kMoveY | kGrowX},
    {OPRAV_C_OK, OPRAV_C_ZPET, kMoveX | kMoveY},
    {OPRAV_T_POLE, OPRAV_L_POLE + frmOprav::kFields - 1, kMoveY},
};
constexpr FocusMap kFocus{Focus::Control::Value, OPRAV_T_POLE, frmOprav::kFields, OPRAV_L_VLAST, OPRAV_C_OK};

class CorrectionView : public FormWindow {
  public:
    explicit CorrectionView(frmOprav& form) : FormWindow(FORM_OPRAV, form.visible, kAnchors), form_(form) {}

  private:
    static bool isField(int id) { return id >= OPRAV_T_POLE && id <= kLastField; }

    void fill() override {
        setCaption(form_.caption);
        showText(control(OPRAV_NAVOD), form_.Navod);
        showText(control(OPRAV_T_TEPLOTA_POPIS), form_.T_TeplotaPopis);
        showText(control(OPRAV_C_VYPOCET), form_.C_VypocetCaption);
        showText(control(OPRAV_PRED_POPIS), form_.PredPopis);
        showText(control(OPRAV_PO_POPIS), form_.PoPopis);
        showText(control(OPRAV_C_OK), form_.C_OKCaption);
        showText(control(OPRAV_C_OBNOVIT), form_.C_ObnovitCaption);
        showText(control(OPRAV_C_ZPET), form_.C_ZpetCaption);
        int id = OPRAV_L_POLE;
        for (const std::string& caption : form_.L_Pole) showText(control(id++), caption);
        useFixedPitch(OPRAV_L_VLAST);
        fillList(control(OPRAV_L_VLAST), form_.L_Vlast.items);
    }
    void display() override {
        showSelection(control(OPRAV_L_VLAST), form_.L_Vlast.selected);
        int id = OPRAV_T_POLE;
        for (const TextBox& box : form_.T_Pole) showBox(control(id++), box);
        showText(control(OPRAV_VZTAH), form_.Vztah);
        showText(control(OPRAV_POZNAMKA), form_.Poznamka);
        showBox(control(OPRAV_T_TEPLOTA), form_.T_Teplota);
        showText(control(OPRAV_PRED), form_.HodnotaPred);
        showText(control(OPRAV_PO), form_.HodnotaPo);
        setFocus(kFocus.idOf(form_.focus));
    }
    void close() override { form_.close(); }

    void clicked(int id) override {
        if (id == OPRAV_C_VYPOCET) form_.clickC_Vypocet();
        if (id == OPRAV_C_OK) form_.clickC_OK();
        if (id == OPRAV_C_OBNOVIT) form_.clickC_Obnovit();
        if (id == OPRAV_C_ZPET) form_.clickC_Zpet();
    }
    // The focus stays in the list, so that the arrows can walk on through it.
    void lineSelected(int id, int index) override {
        form_.selectProperty(index);
        form_.focus = kFocus.focusOf(id);
    }
    void textChanged(int id, std::string text) override {
        if (isField(id)) form_.setText(id - OPRAV_T_POLE, std::move(text));
        if (id == OPRAV_T_TEPLOTA) form_.setTemperature(std::move(text));
    }
    void focused(int id) override { form_.focus = kFocus.focusOf(id); }
    bool takesEnter(int id) const override { return isField(id) || id == OPRAV_T_TEPLOTA; }
    void keyPressed(int id, int key) override {
        if (isField(id)) form_.keyPressed(id - OPRAV_T_POLE, key);
        if (id == OPRAV_T_TEPLOTA) form_.keyInTemperature(key);
    }

    frmOprav& form_;
};

}  // namespace

void WindowsUserInterface::showForm(frmOprav& form) {
    CorrectionView view(form);
    show(view);
}

}  // namespace velor::forms
