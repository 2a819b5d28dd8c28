// The forms as questions and answers on streams: plain lines that work over a pipe as well as on a terminal.
#include <algorithm>
#include <istream>
#include <ostream>
#include <string>

#include "runtime/numbers.h"
#include "runtime/text.h"
#include "velor/forms.h"
#include "velor/user_interface.h"

namespace velor {

namespace {

bool isNumber(const std::string& text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Captions carry the mark of their accelerator key, which a line of text has no use for.
std::string withoutMark(std::string caption) {
    std::erase(caption, '&');
    return caption;
}

void typeInto(F_Seznam& form, const std::string& number) {
    const int box = std::min(form.PocZadanych, F_Seznam::kBoxes - 1);
    form.setText(box, number);
    form.keyPressed(box, kEnterKey);
}

void listChosen(const F_Seznam& form, std::ostream& out) {
    out << form.Label1;
    for (int k = 0; k < form.PocZadanych; ++k) out << ' ' << form.T_Smes[static_cast<std::size_t>(k)].text;
    out << '\n';
}

void listMatches(const F_Seznam& form, const std::string& text, std::ostream& out) {
    const std::string wanted = upperCase(text);
    for (const std::string& line : form.L_Seznam.items)
        if (upperCase(line).find(wanted) != std::string::npos) out << line << '\n';
}

}  // namespace

bool StreamUserInterface::readLine(std::string& line) {
    if (!std::getline(answers_, line)) return false;
    std::erase(line, '\r');
    line = std::string(trimBlanks(line));
    return true;
}

void StreamUserInterface::showForm(F_Sezn& form) {
    messages_ << form.Nadpis_1 << '\n' << form.Nadpis_2 << '\n' << form.Titulek << '\n';
    for (const std::string& line : form.L_Sezn.items) messages_ << line << '\n';
    messages_ << "[Enter] " << std::flush;
    std::string line;
    readLine(line);
    form.keyPressed(kEnterKey);
}

void StreamUserInterface::showForm(F_Seznam& form) {
    messages_ << form.Nadpis_1 << '\n'
              << form.Nadpis_2 << ", " << form.lblDatafile << '\n'
              << "číslo látky, text k hledání, ok = " << withoutMark(form.C_OKCaption)
              << ", z = " << withoutMark(form.ZpetCaption) << ", k = konec beze změny\n";
    for (std::string line; form.visible;) {
        listChosen(form, messages_);
        messages_ << "> " << std::flush;
        if (!readLine(line)) return form.close();
        const std::string command = upperCase(line);
        if (command == "OK") {
            form.clickC_OK();
        } else if (command == "Z") {
            form.clickZpet();
        } else if (command == "K") {
            form.close();
        } else if (isNumber(line) && form.PocZadanych == F_Seznam::kBoxes) {
            form.doubleClick();  // says that no more fit
        } else if (isNumber(line)) {
            typeInto(form, line);
        } else if (!line.empty()) {
            listMatches(form, line, messages_);
        }
    }
}

void StreamUserInterface::showForm(F_Sloz& form) {
    messages_ << form.Navod << '\n'
              << "m = " << form.O_MolCaption << ", h = " << form.O_HmotCaption
              << ", z = " << withoutMark(form.C_ZpetCaption) << '\n';
    int i = 0;
    for (std::string line; form.visible && i < form.components;) {
        const auto box = static_cast<std::size_t>(i);
        messages_ << (form.O_Mol ? form.O_MolCaption : form.O_HmotCaption) << ' ' << trimBlanks(form.L_J[box]);
        if (!form.T_S[box].text.empty()) messages_ << " [" << form.T_S[box].text << "]";
        messages_ << ": " << std::flush;
        if (!readLine(line)) return form.close();
        const std::string command = upperCase(line);
        if (command == "M") {
            form.clickO_Mol();
        } else if (command == "H") {
            form.clickO_Hmot();
        } else if (command == "Z") {
            form.clickC_Zpet();
        } else {
            if (!line.empty()) form.setText(i, line);
            form.keyPressed(i, kEnterKey);
            ++i;
        }
    }
    if (form.visible) form.clickC_OK();
}

}  // namespace velor
