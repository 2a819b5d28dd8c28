// The dialogs of one component as questions and answers on streams.
#include <algorithm>
#include <istream>
#include <optional>
#include <ostream>
#include <string>

#include "runtime/text.h"
#include "velor/component_forms.h"
#include "velor/form_controls.h"
#include "velor/user_interface.h"
#include "views/stream/questions.h"

namespace velor {

namespace {

std::string line(std::string_view caption, std::string_view value, std::string_view unit = {}) {
    constexpr std::size_t kCaptionWidth = 37;
    std::string text = "  " + std::string(caption);
    text.append(kCaptionWidth - std::min(kCaptionWidth, characterCount(caption)), ' ').append(value);
    if (!unit.empty()) text.append(" ").append(unit);
    return text + "\n";
}

void tellCorrelation(const CorrelationText& correlation, std::ostream& out) {
    out << "  " << correlation.code << "  " << correlation.caption << " [" << correlation.unit << "]\n";
    if (!correlation.isGiven) {
        out << "    neobsazeno\n";
        return;
    }
    out << "    " << correlation.Typ << ": " << correlation.Vztah << "\n   ";
    for (const std::string& A : correlation.A) out << ' ' << A;
    out << "\n    " << correlation.range << '\n';
    if (!correlation.note.empty()) out << "    " << correlation.note << '\n';
}

// The property of that short name, in either letter case; -1 for none.
template <class Form>
int propertyIndex(const Form& form, const std::string& name) {
    for (int index = 0; index < Form::kProperties; ++index) {
        const std::string& item = boxAt(form.L_Vlast.items, index);
        if (equalIgnoringCase(item.substr(0, item.find(' ')), name)) return index;
    }
    return -1;
}

constexpr std::string_view kHowToChange =
    "  2 = text   změní pole č. 2\n"
    "  2 =        pole č. 2 vyprázdní\n";

// What stands behind "name =" in the text typed; nothing where the text is something else.
std::optional<std::string> textBehind(std::string_view name, const std::string& typed) {
    const std::size_t sign = typed.find('=');
    if (sign == std::string::npos || !equalIgnoringCase(trimBlanks(typed.substr(0, sign)), name)) return std::nullopt;
    return std::string(trimBlanks(typed.substr(sign + 1)));
}

template <class Form>
void tellField(const Form& form, int field, std::ostream& out) {
    const std::string number = std::to_string(field + 1);
    out << line(number + (number.size() < 2 ? "   " : "  ") + boxAt(form.L_Pole, field),
                boxAt(form.T_Pole, field).text);
}

template <class Form>
void tellFields(const Form& form, std::ostream& out) {
    for (int field = 0; field < Form::kFields; ++field) tellField(form, field, out);
}

// Takes "2 = text", and shows the field then.
template <class Form>
void changeField(Form& form, const std::string& typed, std::ostream& out) {
    for (int field = 0; field < Form::kFields; ++field) {
        const auto text = textBehind(std::to_string(field + 1), typed);
        if (!text) continue;
        form.setText(field, *text);
        return tellField(form, field, out);
    }
    if (!trimBlanks(typed).empty()) out << kNotUnderstood;
}

void tellCorrection(const frmOprav& form, std::ostream& out) {
    out << trimBlanks(boxAt(form.L_Vlast.items, form.L_Vlast.selected)) << '\n' << line("vztah", form.Vztah);
    tellFields(form, out);
    if (!form.Poznamka.empty()) out << "  " << form.Poznamka << '\n';
    out << line(form.T_TeplotaPopis, form.T_Teplota.text) << line(form.PredPopis, form.HodnotaPred)
        << line(form.PoPopis, form.HodnotaPo);
}

}  // namespace

void StreamUserInterface::showForm(frmLatka& form) {
    messages_ << trimBlanks(form.caption) << '\n'
              << line(form.NazevPopis, form.Nazev) << line(form.SynonymPopis, form.Synonym)
              << line(form.VzorecPopis, form.Vzorec) << line(form.CASPopis, form.CAS);
    for (const frmLatka::Constant& constant : form.Konstanty)
        messages_ << line(constant.caption, constant.value, constant.unit);
    for (const CorrelationText& correlation : form.Korelace) tellCorrelation(correlation, messages_);
    messages_ << "  zkratka  hodnota jiné vlastnosti\n"
              << "  číslo    jiná teplota v kelvinech\n"
              << "  z        " << withoutMark(form.C_ZpetCaption) << '\n';
    for (std::string typed; form.visible;) {
        messages_ << form.selectedCorrelation().code << " (" << form.T_Teplota.text << " K): " << form.Hodnota << "\n> "
                  << std::flush;
        if (!readLine(typed)) return form.close();
        typed = std::string(trimBlanks(typed));
        const int index = propertyIndex(form, typed);
        if (equalIgnoringCase(typed, "z")) {
            form.clickC_Zpet();
        } else if (index >= 0) {
            form.selectProperty(index);
        } else if (!typed.empty()) {
            const std::string before = form.T_Teplota.text;
            form.setTemperature(typed);
            form.clickC_Vypocet();
            if (!form.Hodnota.empty()) continue;
            form.setTemperature(before);
            form.selectProperty(form.L_Vlast.selected);
        }
    }
}

void StreamUserInterface::showForm(F_Zmenaz& form) {
    messages_ << trimBlanks(form.caption) << '\n' << form.Navod << '\n';
    tellFields(form, messages_);
    messages_ << kHowToChange << "  ok         " << withoutMark(form.C_OKCaption) << '\n'
              << "  d          " << withoutMark(form.C_DataCaption) << '\n'
              << "  o          " << withoutMark(form.C_ObnovitCaption) << '\n'
              << "  z          " << withoutMark(form.C_ZpetCaption) << '\n';
    for (std::string typed; form.visible;) {
        messages_ << "> " << std::flush;
        if (!readLine(typed)) return form.close();
        const std::string command = upperCase(trimBlanks(typed));
        if (command == "OK") {
            form.clickC_OK();
        } else if (command == "D") {
            form.clickC_Data();
        } else if (command == "O") {
            form.clickC_Obnovit();
            tellFields(form, messages_);
        } else if (command == "Z") {
            form.clickC_Zpet();
        } else {
            changeField(form, typed, messages_);
        }
    }
}

void StreamUserInterface::showForm(frmOprav& form) {
    messages_ << trimBlanks(form.caption) << '\n' << form.Navod << '\n';
    for (const std::string& item : form.L_Vlast.items) messages_ << "  " << item << '\n';
    messages_ << "  zkratka    jiná vlastnost\n"
              << kHowToChange << "  T = text   teplota pro výpočet v kelvinech\n"
              << "  v          " << withoutMark(form.C_VypocetCaption) << '\n'
              << "  ok         " << withoutMark(form.C_OKCaption) << '\n'
              << "  o          " << withoutMark(form.C_ObnovitCaption) << '\n'
              << "  z          " << withoutMark(form.C_ZpetCaption) << '\n';
    tellCorrection(form, messages_);
    for (std::string typed; form.visible;) {
        messages_ << "> " << std::flush;
        if (!readLine(typed)) return form.close();
        typed = std::string(trimBlanks(typed));
        const std::string command = upperCase(typed);
        if (command == "OK") {
            form.clickC_OK();
        } else if (command == "Z") {
            form.clickC_Zpet();
        } else if (command == "V" || command == "O") {
            command == "V" ? form.clickC_Vypocet() : form.clickC_Obnovit();
            tellCorrection(form, messages_);
        } else if (const int index = propertyIndex(form, typed); index >= 0) {
            form.selectProperty(index);
            tellCorrection(form, messages_);
        } else if (const auto temperature = textBehind("T", typed)) {
            form.setTemperature(*temperature);
            form.clickC_Vypocet();
            tellCorrection(form, messages_);
        } else {
            changeField(form, typed, messages_);
        }
    }
}

}  // namespace velor
