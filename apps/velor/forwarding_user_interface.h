// A user interface in front of another one: what is not overridden is passed on.
#pragma once

#include "velor/user_interface.h"

namespace velor::app {

class ForwardingUserInterface : public UserInterface {
  public:
    explicit ForwardingUserInterface(UserInterface& next) : next_(next) {}

    Answer showMessage(const Message& message) override { return next_.showMessage(message); }
    std::string askText(const InputRequest& request) override { return next_.askText(request); }
    void showForm(F_Sezn& form) override { next_.showForm(form); }
    void showForm(F_Seznam& form) override { next_.showForm(form); }
    void showForm(F_Sloz& form) override { next_.showForm(form); }
    void showForm(frmLatka& form) override { next_.showForm(form); }
    void showForm(F_Zmenaz& form) override { next_.showForm(form); }
    void showForm(frmOprav& form) override { next_.showForm(form); }

  private:
    UserInterface& next_;
};

}  // namespace velor::app
