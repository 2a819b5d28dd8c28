#include "views/terminal/terminal_user_interface.h"

#include "views/terminal/boxes.h"
#include "views/terminal/screen.h"
#include "views/terminal/views.h"

namespace velor::terminal {

bool TerminalUserInterface::isPossible(std::FILE* input, std::FILE* output) {
    return Screen::isPossible(input, output);
}

TerminalUserInterface::TerminalUserInterface(std::FILE* input, std::FILE* output) : input_(input), output_(output) {}
TerminalUserInterface::~TerminalUserInterface() = default;

template <class Body>
auto TerminalUserInterface::onScreen(const Body& body) {
    if (screen_) return body(*screen_);
    struct Release {
        std::unique_ptr<Screen>& screen;
        ~Release() { screen.reset(); }
    } release{screen_};
    screen_ = std::make_unique<Screen>(input_, output_);
    return body(*screen_);
}

Answer TerminalUserInterface::showMessage(const Message& message) {
    return onScreen([&](Screen& screen) { return showBox(screen, message); });
}

std::string TerminalUserInterface::askText(const InputRequest& request) {
    return onScreen([&](Screen& screen) { return askBox(screen, request); });
}

void TerminalUserInterface::showForm(F_Sezn& form) {
    onScreen([&](Screen& screen) { showView(screen, form); });
}
void TerminalUserInterface::showForm(F_Seznam& form) {
    onScreen([&](Screen& screen) { showView(screen, form); });
}
void TerminalUserInterface::showForm(F_Sloz& form) {
    onScreen([&](Screen& screen) { showView(screen, form); });
}
void TerminalUserInterface::showForm(frmLatka& form) {
    onScreen([&](Screen& screen) { showView(screen, form); });
}
void TerminalUserInterface::showForm(F_Zmenaz& form) {
    onScreen([&](Screen& screen) { showView(screen, form); });
}
void TerminalUserInterface::showForm(frmOprav& form) {
    onScreen([&](Screen& screen) { showView(screen, form); });
}

}  // namespace velor::terminal
