// Dialogs that stop the clock while the user thinks.
#pragma once

#include <istream>

#include "time_limit.h"
#include "velor/user_interface.h"

namespace velor::app {

// Passes everything on to another user interface; the time that its answers take does not count.
class PatientUserInterface : public UserInterface {
  public:
    // Whether the dialogs take the whole screen; the input is the stream that their answers come from otherwise.
    PatientUserInterface(UserInterface& dialogs, bool isOnScreen, const std::istream& input, TimeLimit& limit)
        : dialogs_(dialogs), isOnScreen_(isOnScreen), input_(input), limit_(limit) {}

    Answer showMessage(const Message& message) override;
    std::string askText(const InputRequest& request) override;
    void showForm(F_Sezn& form) override { showPatiently(form); }
    void showForm(F_Seznam& form) override { showPatiently(form); }
    void showForm(F_Sloz& form) override { showPatiently(form); }
    void showForm(frmLatka& form) override { showPatiently(form); }
    void showForm(F_Zmenaz& form) override { showPatiently(form); }
    void showForm(frmOprav& form) override { showPatiently(form); }

    bool isOnScreen() const { return isOnScreen_; }
    // Whether an answer was due after the end of input: then No or Back is nobody's decision.
    bool isDeserted() const { return input_.fail(); }

  private:
    template <class Form>
    void showPatiently(Form& form) {
        const TimeLimit::Pause pause(limit_);
        dialogs_.showForm(form);
    }

    UserInterface& dialogs_;
    bool isOnScreen_;
    const std::istream& input_;
    TimeLimit& limit_;
};

}  // namespace velor::app
