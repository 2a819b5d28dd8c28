// How the display of a component behaves.
#include <optional>

#include "dialogs/events.h"
#include "dialogs/typed_temperature.h"
#include "velor/component_forms.h"
#include "velor/form_controls.h"

namespace velor {

const CorrelationText& frmLatka::selectedCorrelation() const { return boxAt(Korelace, L_Vlast.selected); }

void frmLatka::selectProperty(int index) {
    boxAt(Korelace, index);
    L_Vlast.selected = index;
    Hodnota.clear();
    const std::optional<double> T = typedTemperature(T_Teplota.text);
    if (T) raiseEvent(Vypocet, index + 1, *T);
}

void frmLatka::keyInTemperature(int key) {
    if (key == kEnterKey) clickC_Vypocet();
}

void frmLatka::clickC_Vypocet() {
    const std::optional<double> T = typedTemperature(T_Teplota.text);
    if (!T) raiseEvent(showExclamation, std::string(kTemperatureComplaint));
    selectProperty(L_Vlast.selected);
}

void frmLatka::clickC_Zpet() {
    raiseEvent(zavrit);
    visible = false;
}

}  // namespace velor
