// The classic input box: a prompt, one line of text, OK and Storno.
#pragma once

#include <windows.h>

#include <string>

#include "velor/user_interface.h"

namespace velor::forms {

// Shows it modally to the owner, which may be null. Storno, Esc and the frame's cross answer an empty text. Error 62:
// the box cannot be shown.
std::string showInputBox(HWND owner, const InputRequest& request);

}  // namespace velor::forms
