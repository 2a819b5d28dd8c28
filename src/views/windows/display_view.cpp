// The display of a component in a window.
#include "velor/component_forms.h"
#include "views/windows/controls.h"
#include "views/windows/form_ids.h"
#include "views/windows/form_window.h"
#include "views/windows/user_interface.h"

namespace velor::forms {

namespace {

using namespace velor::forms;

constexpr Anchor kAnchors[] = {
    {LATKA_FRAME1, LATKA_FRAME1, kGrowX},
    {LATKA_FRAME2, LATKA_L_VLAST, kGrowX | kGrowY},
    {LATKA_VZTAH, LATKA_VZTAH, kMoveY | kGrowX},
    {LATKA_ROZSAH, LATKA_ROZSAH, kMoveY},
    {LATKA_POZNAMKA, LATKA_POZNAMKA, kMoveY | kGrowX},
    {LATKA_T_TEPLOTA_POPIS, LATKA_T_TEPLOTA, kMoveY},
    {LATKA_HODNOTA, LATKA_HODNOTA, kMoveY | kGrowX},
    {LATKA_C_VYPOCET, LATKA_C_VYPOCET, kMoveY},
    {LATKA_C_ZPET, LATKA_C_ZPET, kMoveX | kMoveY},
    {LATKA_A, LATKA_A_POPIS + 5, kMoveY},
};

class DisplayView : public FormWindow {
  public:
    explicit DisplayView(frmLatka& form) : FormWindow(FORM_LATKA, form.visible, kAnchors), form_(form) {}

  private:
    void fill() override {
        setCaption(form_.caption);
        showText(control(LATKA_NAZEV_POPIS), form_.NazevPopis);
        showText(control(LATKA_NAZEV), form_.Nazev);
        showText(control(LATKA_SYNONYM_POPIS), form_.SynonymPopis);
        showText(control(LATKA_SYNONYM), form_.Synonym);
        showText(control(LATKA_VZOREC_POPIS), form_.VzorecPopis);
        showText(control(LATKA_VZOREC), form_.Vzorec);
        showText(control(LATKA_CAS_POPIS), form_.CASPopis);
        showText(control(LATKA_CAS), form_.CAS);
        showText(control(LATKA_FRAME1), form_.Frame1);
        showText(control(LATKA_FRAME2), form_.Frame2);
        showText(control(LATKA_T_TEPLOTA_POPIS), form_.T_TeplotaPopis);
        showText(control(LATKA_C_VYPOCET), form_.C_VypocetCaption);
        showText(control(LATKA_C_ZPET), form_.C_ZpetCaption);
        int row = 0;
        for (const frmLatka::Constant& constant : form_.Konstanty) {
            showText(control(LATKA_KONSTANTY_POPIS + row), constant.caption);
            showText(control(LATKA_KONSTANTY + row), constant.value + " " + constant.unit);
            ++row;
        }
        useFixedPitch(LATKA_L_VLAST);
        fillList(control(LATKA_L_VLAST), form_.L_Vlast.items);
    }
    void display() override {
        const CorrelationText& correlation = form_.selectedCorrelation();
        showSelection(control(LATKA_L_VLAST), form_.L_Vlast.selected);
        showText(control(LATKA_VZTAH),
                 correlation.isGiven ? std::to_string(correlation.Typ) + ": " + correlation.Vztah : "neobsazeno");
        for (int j = 0; j < 6; ++j) {
            showBox(control(LATKA_A + j), {correlation.A[static_cast<std::size_t>(j)], correlation.isGiven});
            showBox(control(LATKA_A_POPIS + j), {"A" + std::to_string(j + 1), correlation.isGiven});
        }
        showText(control(LATKA_ROZSAH), correlation.range);
        showText(control(LATKA_POZNAMKA), correlation.note);
        showBox(control(LATKA_T_TEPLOTA), form_.T_Teplota);
        showText(control(LATKA_HODNOTA), form_.Hodnota);
    }
    void close() override { form_.close(); }

    void clicked(int id) override {
        if (id == LATKA_C_VYPOCET) form_.clickC_Vypocet();
        if (id == LATKA_C_ZPET) form_.clickC_Zpet();
    }
    void lineSelected(int, int index) override { form_.selectProperty(index); }
    void textChanged(int, std::string text) override { form_.setTemperature(std::move(text)); }
    bool takesEnter(int id) const override { return id == LATKA_T_TEPLOTA; }
    void keyPressed(int id, int key) override {
        if (id == LATKA_T_TEPLOTA) form_.keyInTemperature(key);
    }

    frmLatka& form_;
};

}  // namespace

void WindowsUserInterface::showForm(frmLatka& form) {
    DisplayView view(form);
    show(view);
}

}  // namespace velor::forms
