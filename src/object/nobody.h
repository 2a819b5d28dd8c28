// In the place of the person where there is none: shows nothing, answers No, and keeps what was to be shown.
#pragma once

#include <string>

#include "velor/user_interface.h"

namespace velor {

class Nobody final : public UserInterface {
  public:
    std::string lastText;  // of a message, or of the prompt for an answer

    Answer showMessage(const Message& message) override;
    // Error 62, always.
    std::string askText(const InputRequest& request) override;
    // Closes the form.
    void showForm(F_Sezn& form) override;
    void showForm(F_Seznam& form) override;
    void showForm(F_Sloz& form) override;
    void showForm(frmLatka& form) override;
    void showForm(F_Zmenaz& form) override;
    void showForm(frmOprav& form) override;
};

}  // namespace velor
