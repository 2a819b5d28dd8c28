// Native boxes, modal to the host's active window.
#pragma once

#include "velor/user_interface.h"

namespace velor::platform {

class WindowsUserInterface : public UserInterface {
  public:
    Answer showMessage(const Message& message) override;
    // Storno, Esc and the frame's cross answer an empty text.
    std::string askText(const InputRequest& request) override;
    // Closed at once: there is no view of them here.
    void showForm(F_Sezn& form) override;
    void showForm(F_Seznam& form) override;
    void showForm(F_Sloz& form) override;
};

}  // namespace velor::platform
