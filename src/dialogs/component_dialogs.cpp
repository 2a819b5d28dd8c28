// The display of a component and the temporary change of its data, both opened from the composition.
#include <string>
#include <utility>

#include "dialogs/component_texts.h"
#include "dialogs/forms_of.h"
#include "dialogs/typed_temperature.h"
#include "object/load.h"
#include "object/messages.h"
#include "object/state.h"
#include "records/field_text.h"
#include "records/record_layout.h"
#include "rules/equations.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "velor/form_controls.h"
#include "velor/smes.h"
#include "velor/verdict.h"

namespace velor {

namespace {

// Whether component i is loaded; what is missing from the database has been told.
bool isAtHand(State& state, int i) {
    const int count = loadComponents(state);
    if (count == 0 && state.definition.PocSlozek > 0) return false;
    if (i < 1 || i > count) checked::raise(RunTimeError::kSubscript);
    return true;
}

// Without the padding; control characters of a damaged record are escaped.
template <std::size_t Width>
std::string trimmed(const std::array<char, Width>& field) {
    return bytesText({field.data(), field.size()});
}

std::string captionOf(const State& state, int i, const std::string& what) {
    return " " + what + " složky č. " + std::to_string(i) + ": " + trimmed(state.definition.slots.Latka(i).Nazev);
}

// Property k of component i with its unit and what has to be known about it, or why there is none.
std::string valueText(Smes& smes, double T, int i, int k) {
    const PureProperty& property = pureProperties()[static_cast<std::size_t>(k - 1)];
    const PropertyValue value = pureValue(smes, T, i, property);
    if (!value.isComputed()) return std::string(standingNote(value.standing));
    std::string text = std::string(trimBlanks(Smes::GFormat(value.value))).append(" ").append(property.unit);
    const std::string_view note = standingNote(value.standing);
    return note.empty() ? text : text.append("   ").append(note);
}

// Another record in the place of a component's own, as long as this object lives.
class BorrowedRecord {
  public:
    BorrowedRecord(State& state, int i, const TLatka& record)
        : state_(state), i_(i), borrowed_(record), own_(std::exchange(state.definition.slots.change(i), record)) {}
    // Unless a message box has led the host to load or change the component meanwhile. Compared byte by byte, because
    // a damaged number does not equal itself.
    ~BorrowedRecord() {
        if (encodeRecord(state_.definition.slots.Latka(i_)) == encodeRecord(borrowed_))
            state_.definition.slots.change(i_) = own_;
    }
    BorrowedRecord(const BorrowedRecord&) = delete;
    BorrowedRecord& operator=(const BorrowedRecord&) = delete;

  private:
    State& state_;
    int i_;
    TLatka borrowed_, own_;
};

void fill(frmLatka& form, const State& state, int i) {
    const TLatka& record = state.definition.slots.Latka(i);
    form.caption = captionOf(state, i, "Zobrazení");
    form.Nazev = trimmed(record.Nazev);
    form.Synonym = trimmed(record.Synonym);
    form.Vzorec = trimmed(record.Vzorec);
    form.CAS = record.CAS > 0 ? "[" + registryText(record.CAS) + "]" : std::string();
    form.Konstanty = constantTexts(record);
    form.Korelace = correlationTexts(record);
    form.L_Vlast.items = propertyLines();
    if (!typedTemperature(form.T_Teplota.text)) form.T_Teplota = frmLatka().T_Teplota;
}

}  // namespace

void Smes::mSloz_ZobrazL(int i) {
    const PublicCall call(*state_);
    State& state = *state_;
    if (!isAtHand(state, checkedInt16(i))) return;
    frmLatka& form = *formsOf(state).display;
    fill(form, state, i);
    form.showExclamation = [&state](const std::string& text) { show(state.messages, text, Icon::Exclamation); };
    form.zavrit = [&form] { form.visible = false; };
    form.Vypocet = [this, &form, i](int k, double T) { form.Hodnota = valueText(*this, T, i, k); };
    form.selectProperty(0);
    form.visible = true;
    state.messages.userInterface->showForm(form);
}

void Smes::mSloz_ZobrazZ(int i) {
    const PublicCall call(*state_);
    State& state = *state_;
    if (!isAtHand(state, checkedInt16(i))) return;
    const auto exclaim = [&state](const std::string& text) { show(state.messages, text, Icon::Exclamation); };
    const auto use = [&state, i](const TLatka& record) {
        state.definition.slots.change(i) = record;
        boxAt(formsOf(state).composition->L_J, i - 1) = componentName(state.definition.slots, i);
    };
    F_Zmenaz& names = *formsOf(state).change;
    names.caption = captionOf(state, i, "Dočasná změna");
    names.showExclamation = exclaim;
    names.Ulozit = use;
    names.load(state.definition.slots.Latka(i), databaseRecord(state, i));
    names.visible = true;
    state.messages.userInterface->showForm(names);
    if (!names.isDataWanted) return;

    frmOprav& data = *formsOf(state).correction;
    data.caption = captionOf(state, i, "Dočasná změna vlastností");
    data.showExclamation = exclaim;
    data.Ulozit = use;
    data.valueText = [this, i](int k, const TLatka& record, double T) {
        const BorrowedRecord borrowed(*state_, i, record);
        return valueText(*this, T, i, k);
    };
    data.load(state.definition.slots.Latka(i), databaseRecord(state, i));
    data.visible = true;
    state.messages.userInterface->showForm(data);
}

}  // namespace velor
