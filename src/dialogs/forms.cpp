// How the dialogs behave.
#include "velor/forms.h"

#include <cstddef>
#include <utility>

#include "dialogs/events.h"
#include "runtime/checked.h"
#include "runtime/numbers.h"
#include "velor/form_controls.h"

namespace velor {

namespace {

bool isDigitOrControl(int key) { return key < 32 || (key >= 48 && key <= 57); }

}  // namespace

// ---- F_Sezn ------------------------------------------------------------------------------------------------------

void F_Sezn::keyPressed(int) { close(); }

void F_Sezn::close() {
    raiseEvent(zavrit);
    visible = false;
}

// ---- F_Seznam ----------------------------------------------------------------------------------------------------

F_Seznam::F_Seznam() {
    for (std::size_t k = 1; k < T_Smes.size(); ++k) T_Smes[k] = {"", false, false};
}

void F_Seznam::selectLine(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= L_Seznam.items.size()) checked::raise(RunTimeError::kSubscript);
    L_Seznam.selected = index;
}

void F_Seznam::exclaim(const std::string& text) const { raiseEvent(showExclamation, text); }

void F_Seznam::showNextBox() {
    if (PocZadanych >= kBoxes) return;
    TextBox& next = boxAt(T_Smes, PocZadanych);
    next.visible = next.enabled = true;
}

void F_Seznam::doubleClick() {
    if (PocZadanych == kBoxes) return exclaim("Maximální počet složek směsi je 20");
    if (L_Seznam.selected < 0) return;
    const std::string& line = L_Seznam.items[static_cast<std::size_t>(L_Seznam.selected)];
    boxAt(T_Smes, PocZadanych).text = std::to_string(roundToInt16(parseLeadingNumber(line)));
    ++PocZadanych;
    showNextBox();
}

void F_Seznam::keyInList(int key) {
    if (key == kEnterKey) doubleClick();
}

void F_Seznam::setText(int k, std::string text) { boxAt(T_Smes, k).text = std::move(text); }

void F_Seznam::keyPressed(int k, int key) {
    boxAt(T_Smes, k);
    if (key != kEnterKey) {
        if (!isDigitOrControl(key)) NeniCislice = true;
        return;
    }
    const std::string next = PocZadanych < kBoxes ? boxAt(T_Smes, PocZadanych).text : std::string();
    if (!next.empty() && next != "0") {
        ++PocZadanych;
        showNextBox();
        if (PocZadanych == kBoxes) NeniCislice = false;
        focusNumber(PocZadanych);
    } else if (k < PocZadanych) {
        focusNumber(k + 1);
    }
}

void F_Seznam::keyReleased(int k) {
    boxAt(T_Smes, k);
    if (NeniCislice && PocZadanych < kBoxes) boxAt(T_Smes, PocZadanych).text.clear();
    NeniCislice = false;
}

// There is no box behind the last one; confirming is next.
void F_Seznam::focusNumber(int k) {
    if (k < kBoxes) {
        focus = {Focus::Control::Number, k};
    } else {
        focus = {Focus::Control::Confirm, 0};
    }
}

void F_Seznam::focusByOption() {
    if (Option1) {
        focusNumber(PocZadanych);
    } else {
        focus = {Focus::Control::List, 0};
    }
}

void F_Seznam::clickOption1() {
    Option1 = true;
    focusByOption();
}

void F_Seznam::clickOption2() {
    Option1 = false;
    focusByOption();
}

void F_Seznam::clickZpet() {
    PocZadanych = 0;
    boxAt(T_Smes, 0).text.clear();
    for (std::size_t k = 1; k < T_Smes.size(); ++k) T_Smes[k] = {"", false, false};
    focusByOption();
}

void F_Seznam::clickC_OK() {
    if (PocZadanych == 0) {
        exclaim("Nezadána žádná látka nebo po zadání čísla látky nebyl stisknut Enter!");
        focus = {Focus::Control::Number, 0};
        return;
    }
    CislaLatek numbers{};
    numbers[0] = static_cast<std::int16_t>(PocZadanych);
    for (int i = 1; i <= PocZadanych; ++i)
        boxAt(numbers, i) = roundToInt16(parseLeadingNumber(boxAt(T_Smes, i - 1).text));
    raiseEvent(SZavrit, numbers);
}

// ---- F_Sloz ------------------------------------------------------------------------------------------------------

F_Sloz::F_Sloz() {
    for (TextBox& box : T_S) box.enabled = false;
}

void F_Sloz::setText(int i, std::string text) { boxAt(T_S, i).text = std::move(text); }

void F_Sloz::keyPressed(int i, int key) {
    boxAt(T_S, i);
    if (key == kEnterKey && i + 1 < components) focus = {Focus::Control::Value, i + 1};
}

void F_Sloz::clickO_Mol() {
    O_Mol = true;
    focus = {Focus::Control::Value, 0};
}

void F_Sloz::clickO_Hmot() {
    O_Mol = false;
    focus = {Focus::Control::Value, 0};
}

void F_Sloz::mouseOnName(int i, int button) {
    boxAt(L_J, i);
    raiseEvent(button == 1 ? ZobrazL : ZobrazZ, i + 1);
}

void F_Sloz::clickC_OK() {
    raiseEvent(ZavriSloz);
    visible = false;
}

void F_Sloz::clickC_Zpet() {
    raiseEvent(ZpetSloz);
    visible = false;
}

}  // namespace velor
