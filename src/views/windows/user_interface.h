// Native boxes and forms, modal to the form shown last or else to the host's active window.
#pragma once

#include <windows.h>

#include "velor/user_interface.h"

namespace velor::forms {

class FormWindow;

class WindowsUserInterface : public UserInterface {
  public:
    Answer showMessage(const Message& message) override;
    // Storno, Esc and the frame's cross answer an empty text.
    std::string askText(const InputRequest& request) override;
    void showForm(F_Sezn& form) override;
    void showForm(F_Seznam& form) override;
    void showForm(F_Sloz& form) override;
    void showForm(frmLatka& form) override;
    void showForm(F_Zmenaz& form) override;
    void showForm(frmOprav& form) override;

  private:
    void show(FormWindow& form);
    HWND owner() const;

    const FormWindow* topmost_ = nullptr;  // of the forms that are shown
};

}  // namespace velor::forms
