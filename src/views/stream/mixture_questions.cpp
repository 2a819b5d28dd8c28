// The forms as questions and answers on streams: plain lines that work over a pipe as well as on a terminal.
#include <algorithm>
#include <istream>
#include <ostream>
#include <string>

#include "runtime/text.h"
#include "velor/form_controls.h"
#include "velor/forms.h"
#include "velor/user_interface.h"
#include "views/stream/questions.h"

namespace velor {

namespace {

bool isNumber(const std::string& text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

void typeInto(F_Seznam& form, const std::string& number) {
    form.setText(form.PocZadanych, number);
    form.keyPressed(form.PocZadanych, kEnterKey);
}

void listChosen(const F_Seznam& form, std::ostream& out) {
    out << form.Label1;
    for (int k = 0; k < form.PocZadanych; ++k) out << ' ' << form.T_Smes[static_cast<std::size_t>(k)].text;
    out << '\n';
}

void listMatches(const F_Seznam& form, const std::string& text, std::ostream& out) {
    const std::string wanted = upperCase(text);
    bool found = false;
    for (const std::string& line : form.L_Seznam.items) {
        if (upperCase(line).find(wanted) == std::string::npos) continue;
        out << line << '\n';
        found = true;
    }
    if (!found) out << "Látka  " << wanted << "  nenalezena!!!\n";
}

void tellOption(const F_Sloz& form, std::ostream& out) {
    out << form.Nadpiss << ": " << (form.O_Mol ? form.O_MolCaption : form.O_HmotCaption) << '\n';
}

// "L 2" and "D 2" concern a component; they are no value even where there is no such component.
bool concernsComponent(const std::string& command) { return command.starts_with("L ") || command.starts_with("D "); }

void openComponent(F_Sloz& form, const std::string& command, std::ostream& out) {
    const std::string number(trimBlanks(command.substr(1)));
    for (int i = 0; i < form.components; ++i)
        if (number == std::to_string(i + 1)) return form.mouseOnName(i, command.front() == 'L' ? 1 : 2);
    out << kNotUnderstood;
}

}  // namespace

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
              << form.Nadpis_2 << " (" << form.lblDatafile << ")\n"
              << "  číslo  přidá látku do směsi\n"
              << "  text   vyhledá látky, jejichž řádek ho obsahuje\n"
              << "  ok     " << withoutMark(form.C_OKCaption) << '\n'
              << "  z      " << withoutMark(form.ZpetCaption) << '\n'
              << "  k      Konec beze změny\n";
    for (std::string line; form.visible;) {
        listChosen(form, messages_);
        messages_ << "> " << std::flush;
        if (!readLine(line)) return form.close();
        line = std::string(trimBlanks(line));
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

// Asks for the values one after another, then for the confirmation; a change of the kind starts again with the first.
void StreamUserInterface::showForm(F_Sloz& form) {
    messages_ << trimBlanks(form.Navod) << '\n'
              << "  číslo  složení složky; samotný Enter ponechá hodnotu v závorce\n"
              << "  m      " << form.O_MolCaption << ", znovu od první složky\n"
              << "  h      " << form.O_HmotCaption << ", znovu od první složky\n"
              << "  l 2    zobrazí složku č. 2, d 2 dočasně změní její údaje\n"
              << "  z      " << withoutMark(form.C_ZpetCaption) << '\n';
    tellOption(form, messages_);
    int i = 0;
    for (std::string line; form.visible;) {
        const bool complete = i >= form.components;
        if (complete) {
            messages_ << withoutMark(form.C_OKCaption) << " [Enter]";
        } else {
            const auto box = static_cast<std::size_t>(i);
            messages_ << "  " << trimBlanks(form.L_J[box]);
            if (!form.T_S[box].text.empty()) messages_ << " [" << form.T_S[box].text << "]";
        }
        messages_ << ": " << std::flush;
        if (!readLine(line)) return form.close();
        line = std::string(trimBlanks(line));
        const std::string command = upperCase(line);
        if (command == "Z") {
            form.clickC_Zpet();
        } else if (command == "M" || command == "H") {
            command == "M" ? form.clickO_Mol() : form.clickO_Hmot();
            tellOption(form, messages_);
            i = form.focus.index;
        } else if (concernsComponent(command)) {
            openComponent(form, command, messages_);
        } else if (!complete) {
            if (!line.empty()) form.setText(i, line);
            form.keyPressed(i, kEnterKey);
            ++i;
        } else if (line.empty()) {
            form.clickC_OK();
        }
    }
}

}  // namespace velor
