// Dialogs that stop the clock while the user thinks.
#pragma once

#include <istream>

#include "time_limit.h"
#include "velor/user_interface.h"

namespace velor::app {

// Passes everything on to another user interface; the time that its answers take does not count.
class PatientUserInterface : public UserInterface {
  public:
    // The input is the stream that answers come from, if they come from one.
    PatientUserInterface(UserInterface& dialogs, const std::istream& input, TimeLimit& limit)
        : dialogs_(dialogs), input_(input), limit_(limit) {}

    Answer showMessage(const Message& message) override;
    std::string askText(const InputRequest& request) override;
    void showForm(F_Sezn& form) override { showPatiently(form); }
    void showForm(F_Seznam& form) override { showPatiently(form); }
    void showForm(F_Sloz& form) override { showPatiently(form); }
    void showForm(frmLatka& form) override { showPatiently(form); }
    void showForm(F_Zmenaz& form) override { showPatiently(form); }
    void showForm(frmOprav& form) override { showPatiently(form); }

    // Whether an answer was due after the end of input: then No or Back is nobody's decision.
    bool isDeserted() const { return input_.fail(); }

  private:
    template <class Form>
    void showPatiently(Form& form) {
        const TimeLimit::Pause pause(limit_);
        dialogs_.showForm(form);
    }

    UserInterface& dialogs_;
    const std::istream& input_;
    TimeLimit& limit_;
};

}  // namespace velor::app
