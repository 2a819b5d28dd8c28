// Shows the forms one after another with real data, for pictures of them. Prints the name of each form that stands on
// the screen and waits for a line before it goes on.
#include <iostream>
#include <string>

#include "com/forms/form_ids.h"
#include "velor/smes.h"
#include "windows/user.h"

namespace velor::test {

namespace {

void picture(const std::string& name) {
    std::this_thread::sleep_for(std::chrono::milliseconds(400));  // until all of it is drawn
    std::cout << name << std::endl;
    std::string line;
    std::getline(std::cin, line);
}

void closeWithPicture(const Window& window, const std::string& name) {
    picture(name);
    window.close();
    window.expectGone();
}

void showSubstances() {
    {
        const Window box(kInputBox);
        picture("input-box");
        box.replaceText(kInputText, "kyselina");
        box.click(IDOK);
    }
    closeWithPicture(Window({"VELOR", SEZN_L_SEZN}), "F_Sezn");
}

void chooseComponents() {
    const Window form({" SEZNAM", SEZNAM_L_SEZNAM});
    form.click(SEZNAM_OPTION2);
    for (const int line : {455, 21, 100, 318, 77, 6, 8, 90, 111, 112, 180, 113}) form.doubleClickLine(SEZNAM_L_SEZNAM, line);
    picture("F_Seznam");
    form.click(SEZNAM_C_OK);
}

void changeComponent(const Window& composition) {
    composition.mouse(SLOZ_L_J, WM_RBUTTONDOWN);
    const Window change({" Dočasná", ZMENAZ_NAVOD});
    picture("F_Zmenaz");
    change.click(ZMENAZ_C_DATA);
    const Window correction({" Dočasná", OPRAV_NAVOD});
    picture("frmOprav");
    SetWindowPos(correction.get(), nullptr, 0, 0, 900, 700, SWP_NOZORDER);
    closeWithPicture(correction, "frmOprav-large");
}

void enterComposition() {
    const Window form({" Zadání", SLOZ_C_OK});
    form.type(SLOZ_T_S, "0,25");
    form.press(SLOZ_T_S, VK_RETURN);
    form.replaceText(SLOZ_T_S + 1, "0,75");
    picture("F_Sloz");
    form.mouse(SLOZ_L_J, WM_LBUTTONDOWN);
    const Window display({" Zobrazení", LATKA_L_VLAST});
    closeWithPicture(display, "frmLatka");
    changeComponent(form);
    SetWindowPos(form.get(), nullptr, 10, 10, 900, 560, SWP_NOZORDER);
    picture("F_Sloz-large");
    form.click(SLOZ_C_ZPET);
}

void runHost() {
    Smes smes;
    smes.AdrVELOR(smes.CFGPath() + smes.DataFileName());  // beside this program
    smes.SeznamShow(2);
    smes.ZadejSmes();
    Variant n, X = Fractions(std::vector<double>(20, 0.0)), W = X;
    smes.ZadejSloz(n, X, W, "", 5);
}

}  // namespace

}  // namespace velor::test

int main() {
    using namespace velor::test;
    together(runHost, [] {
        showSubstances();
        chooseComponents();
        enterComposition();
    });
}
