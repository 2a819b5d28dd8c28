// How the temporary change of a component's correlations behaves.
#include "dialogs/component_texts.h"
#include "dialogs/events.h"
#include "dialogs/typed_fields.h"
#include "dialogs/typed_temperature.h"
#include "properties/pure_value.h"
#include "rules/equations.h"
#include "runtime/text.h"
#include "velor/component_forms.h"
#include "velor/form_controls.h"

namespace velor {

void frmOprav::load(const TLatka& record, const TLatka& original) {
    record_ = record;
    original_ = original;
    L_Vlast.items = propertyLines();
    if (!typedTemperature(T_Teplota.text)) T_Teplota = frmOprav().T_Teplota;
    for (int index = 0; index < kProperties; ++index) fill(index);
    selectProperty(0);
}

void frmOprav::fill(int index) {
    boxAt(filled_, index) = boxAt(typed_, index) = blockTexts(boxAt(record_.Korelace, index));
}

void frmOprav::selectProperty(int index) {
    boxAt(typed_, index);
    L_Vlast.selected = index;
    for (int field = 0; field < kFields; ++field) boxAt(T_Pole, field) = {boxAt(boxAt(typed_, index), field)};
    Poznamka = correlationNote(record_.Cislo, index + 1);
    focus = {Focus::Control::Value, kTyp};
    showEquation();
    showValues();
}

// Of what was typed so far; a text that cannot be read yet has no value.
void frmOprav::showValues() {
    const int index = L_Vlast.selected;
    HodnotaPred.clear();
    HodnotaPo.clear();
    const std::optional<double> T = typedTemperature(T_Teplota.text);
    if (!T || !valueText) return;
    const auto text = valueText;  // a copy, as in raiseEvent
    HodnotaPred = text(index + 1, original_, *T);
    try {
        TLatka typed = record_;
        boxAt(typed.Korelace, index) = typedBlock(index);
        HodnotaPo = text(index + 1, typed, *T);
    } catch (const InvalidField&) {
        HodnotaPo.clear();
    }
}

void frmOprav::showEquation() {
    const int type = typedType(boxAt(T_Pole, kTyp).text);
    Vztah = type == 0 ? std::string() : std::string(trimBlanks(equationText(type)));
}

void frmOprav::setText(int field, std::string text) {
    boxAt(T_Pole, field).text = text;
    boxAt(boxAt(typed_, L_Vlast.selected), field) = std::move(text);
    if (field == kTyp) showEquation();
    HodnotaPo.clear();
}

void frmOprav::keyPressed(int field, int key) {
    boxAt(T_Pole, field);
    if (key != kEnterKey) return;
    focus = field + 1 < kFields ? Focus{Focus::Control::Value, field + 1} : Focus{Focus::Control::Confirm, 0};
}

void frmOprav::keyInTemperature(int key) {
    if (key == kEnterKey) clickC_Vypocet();
}

// A block that was not touched keeps its bytes.
TKorelace frmOprav::typedBlock(int index) const {
    const TKorelace& before = boxAt(record_.Korelace, index);
    if (boxAt(typed_, index) == boxAt(filled_, index)) return before;
    TKorelace block = readBlock(boxAt(typed_, index));
    if (block.Priznak == 0 && before.Priznak == 0)
        throw InvalidField(kTyp,
                           "Typ rovnice: zadejte číslo " + equationTypesText() + ", nebo vyprázdněte i ostatní pole.");
    if (block.Priznak != 0 && before.Priznak != 0) block.Priznak = before.Priznak;
    return block;
}

void frmOprav::complain(int field, const std::string& text) {
    raiseEvent(showExclamation, text);
    focus = {Focus::Control::Value, field};
}

void frmOprav::clickC_Vypocet() {
    if (!typedTemperature(T_Teplota.text)) raiseEvent(showExclamation, std::string(kTemperatureComplaint));
    showValues();
    try {
        typedBlock(L_Vlast.selected);
    } catch (const InvalidField& error) {
        complain(error.field(), error.what());
    }
}

void frmOprav::clickC_OK() {
    TLatka record = record_;
    for (int index = 0; index < kProperties; ++index) {
        try {
            boxAt(record.Korelace, index) = typedBlock(index);
        } catch (const InvalidField& error) {
            selectProperty(index);
            return complain(error.field(), std::string(propertyName(index + 1)) + ", " + error.what());
        }
    }
    raiseEvent(Ulozit, record);
    visible = false;
}

void frmOprav::clickC_Obnovit() {
    const int index = L_Vlast.selected;
    boxAt(record_.Korelace, index) = boxAt(original_.Korelace, index);
    fill(index);
    selectProperty(index);
}

}  // namespace velor
