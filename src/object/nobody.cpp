#include "object/nobody.h"

#include "runtime/checked.h"
#include "velor/component_forms.h"
#include "velor/forms.h"

namespace velor {

Answer Nobody::showMessage(const Message& message) {
    lastText = message.text;
    return message.buttons == Buttons::Ok ? Answer::Ok : Answer::No;
}

std::string Nobody::askText(const InputRequest& request) {
    lastText = request.prompt;
    checked::raise(RunTimeError::kInputPastEnd);
}

void Nobody::showForm(F_Sezn& form) { form.close(); }
void Nobody::showForm(F_Seznam& form) { form.close(); }
void Nobody::showForm(F_Sloz& form) { form.close(); }
void Nobody::showForm(frmLatka& form) { form.close(); }
void Nobody::showForm(F_Zmenaz& form) { form.close(); }
void Nobody::showForm(frmOprav& form) { form.close(); }

}  // namespace velor
