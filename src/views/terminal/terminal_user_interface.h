// The dialogs on a terminal's whole screen. What the terminal showed before comes back when the outermost one is
// closed, on a signal and on a crash too.
#pragma once

#include <cstdio>
#include <memory>

#include "velor/user_interface.h"

namespace velor::terminal {

class Screen;

class TerminalUserInterface : public UserInterface {
  public:
    // Whether both streams are a terminal that can be drawn on; elsewhere StreamUserInterface serves.
    static bool isPossible(std::FILE* input, std::FILE* output);

    // The terminal that is typed on and drawn to. The text that a program gives out may go elsewhere meanwhile.
    TerminalUserInterface(std::FILE* input, std::FILE* output);
    ~TerminalUserInterface() override;

    Answer showMessage(const Message& message) override;
    // Esc cancels: the answer is empty then.
    std::string askText(const InputRequest& request) override;
    void showForm(F_Sezn& form) override;
    void showForm(F_Seznam& form) override;
    void showForm(F_Sloz& form) override;
    void showForm(frmLatka& form) override;
    void showForm(F_Zmenaz& form) override;
    void showForm(frmOprav& form) override;

  private:
    // Shows something, on the screen that is there already or on one of its own.
    template <class Body>
    auto onScreen(const Body& body);

    std::FILE* input_;
    std::FILE* output_;
    std::unique_ptr<Screen> screen_;
};

}  // namespace velor::terminal
