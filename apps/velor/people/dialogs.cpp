#include <cstdio>
#include <iostream>

#include "people/people.h"
// The full-screen views are a library of their own beside the public headers.
#include "views/terminal/terminal_user_interface.h"

namespace velor::app {

Answer PatientUserInterface::showMessage(const Message& message) {
    const TimeLimit::Pause pause(limit_);
    return dialogs_.showMessage(message);
}

std::string PatientUserInterface::askText(const InputRequest& request) {
    const TimeLimit::Pause pause(limit_);
    return dialogs_.askText(request);
}

Dialogs dialogsOn(std::FILE* output) {
    using terminal::TerminalUserInterface;
    if (output && TerminalUserInterface::isPossible(stdin, output))
        return {std::make_unique<TerminalUserInterface>(stdin, output), true};
    return {std::make_unique<StreamUserInterface>(std::cin, std::cerr), false};
}

}  // namespace velor::app
