// Shows the forms one after another with real data, for pictures of them. Prints the name of each form that stands on
// the screen and waits for a line before it goes on.
#include <iostream>
#include <numeric>
#include <string>
#include <vector>

#include "pictures/user.h"
#include "velor/smes.h"
#include "views/windows/form_ids.h"

namespace velor::pictures {

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
    int box = SEZNAM_T_SMES;
    for (const char* number : {"1", "57", "318"}) {
        form.type(box, number);
        form.press(box, VK_RETURN);
        form.expectFocus(++box);
    }
    picture("F_Seznam");
    form.type(SEZNAM_HLEDAT, "mraven");
    picture("F_Seznam-search");
    form.click(SEZNAM_C_OK);
}

void changeComponent(const Window& composition) {
    composition.clickName(SLOZ_L_J, WM_RBUTTONDOWN, WM_RBUTTONUP);
    const Window change({" Dočasná", ZMENAZ_NAVOD});
    picture("F_Zmenaz");
    change.click(ZMENAZ_C_DATA);
    const Window correction({" Dočasná", OPRAV_NAVOD});
    for (int k = 1; k < 4; ++k) correction.press(OPRAV_L_VLAST, VK_DOWN);
    correction.replaceText(OPRAV_T_TEPLOTA, "700");
    correction.click(OPRAV_C_VYPOCET);
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
    form.clickName(SLOZ_L_J, WM_LBUTTONDOWN, WM_LBUTTONUP);
    const Window display({" Zobrazení", LATKA_L_VLAST});
    for (int k = 1; k < 4; ++k) display.press(LATKA_L_VLAST, VK_DOWN);  // water's density, which has a note
    display.replaceText(LATKA_T_TEPLOTA, "700");
    display.press(LATKA_T_TEPLOTA, VK_RETURN);
    closeWithPicture(display, "frmLatka");
    changeComponent(form);
    form.click(SLOZ_C_ZPET);
}

// Asks for substances and their composition.
void askForMixture() {
    Smes smes;
    smes.AdrVELOR(smes.CFGPath() + smes.DataFileName());  // beside this program
    smes.SeznamShow(2);
    smes.ZadejSmes();
    Variant n, X = Fractions(std::vector<double>(20, 0.0)), W = X;
    smes.ZadejSloz(n, X, W, "", 5);
}

void askForManyFractions() {
    Smes smes;
    smes.AdrVELOR(smes.CFGPath() + smes.DataFileName());
    std::vector<int> numbers(20);
    std::iota(numbers.begin(), numbers.end(), 41);
    smes.DefSlozky(List(numbers));
    Variant n, X = Fractions(std::vector<double>(20, 0.0)), W = X;
    smes.ZadejSloz(n, X, W, "", 1);
}

}  // namespace

}  // namespace velor::pictures

int main() {
    using namespace velor::pictures;
    try {
        together(askForMixture, [] {
            showSubstances();
            chooseComponents();
            enterComposition();
        });
        together(askForManyFractions, [] { closeWithPicture(Window({" Zadání", SLOZ_C_OK}), "F_Sloz-20"); });
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
    return 0;
}
