// Messages and questions as boxes over what is on the screen.
#pragma once

#include <string>

#include "velor/user_interface.h"
#include "views/terminal/screen.h"

namespace velor::terminal {

Answer showBox(Screen& screen, const Message& message);
// Cancelled by Esc, the answer is empty.
std::string askBox(Screen& screen, const InputRequest& request);

}  // namespace velor::terminal
