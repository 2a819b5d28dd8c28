#include "patient_user_interface.h"

namespace velor::app {

Answer PatientUserInterface::showMessage(const Message& message) {
    const TimeLimit::Pause pause(limit_);
    return dialogs_.showMessage(message);
}

std::string PatientUserInterface::askText(const InputRequest& request) {
    const TimeLimit::Pause pause(limit_);
    return dialogs_.askText(request);
}

}  // namespace velor::app
