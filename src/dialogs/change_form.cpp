// How the temporary change of a component's names and constants behaves.
#include "dialogs/events.h"
#include "dialogs/typed_fields.h"
#include "velor/component_forms.h"
#include "velor/form_controls.h"

namespace velor {

F_Zmenaz::F_Zmenaz() {
    for (int field = 0; field < kFields; ++field) boxAt(L_Pole, field) = fieldCaption(field);
}

void F_Zmenaz::load(const TLatka& record, const TLatka& original) {
    record_ = record;
    original_ = original;
    for (int field = 0; field < kFields; ++field) {
        boxAt(filled_, field) = fieldText(record, field);
        boxAt(T_Pole, field) = {boxAt(filled_, field)};
    }
    focus = {Focus::Control::Value, 0};
    isDataWanted = false;
}

void F_Zmenaz::setText(int field, std::string text) { boxAt(T_Pole, field).text = std::move(text); }

void F_Zmenaz::keyPressed(int field, int key) {
    boxAt(T_Pole, field);
    if (key != kEnterKey) return;
    focus = field + 1 < kFields ? Focus{Focus::Control::Value, field + 1} : Focus{Focus::Control::Confirm, 0};
}

std::optional<TLatka> F_Zmenaz::changed() {
    TLatka record = record_;
    try {
        for (int field = 0; field < kFields; ++field)
            if (boxAt(T_Pole, field).text != boxAt(filled_, field)) readField(boxAt(T_Pole, field).text, field, record);
    } catch (const InvalidField& error) {
        raiseEvent(showExclamation, error.what());
        focus = {Focus::Control::Value, error.field()};
        return std::nullopt;
    }
    return record;
}

void F_Zmenaz::clickC_OK() {
    const std::optional<TLatka> record = changed();
    if (!record) return;
    raiseEvent(Ulozit, *record);
    visible = false;
}

void F_Zmenaz::clickC_Data() {
    clickC_OK();
    isDataWanted = !visible;
}

// The correlations are another form's.
void F_Zmenaz::clickC_Obnovit() {
    TLatka restored = original_;
    restored.Korelace = record_.Korelace;
    load(restored, original_);
}

}  // namespace velor
