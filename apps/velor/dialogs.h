// How the command's dialogs are led: on the whole screen, or by questions and answers.
#pragma once

#include <memory>

#include "requests.h"
#include "velor/user_interface.h"

namespace velor::app {

struct Dialogs {
    std::unique_ptr<UserInterface> userInterface;
    bool areOnScreen = false;
};

// The dialog that defines a mixture and the whole list of substances take a terminal's whole screen. Where there is no
// such terminal, and for the few questions of the other commands, there are lines of text.
Dialogs dialogsFor(const Request& request);

}  // namespace velor::app
