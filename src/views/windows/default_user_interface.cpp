// Native boxes and forms for a host that brings no user interface of its own.
#include <memory>

#include "velor/smes.h"
#include "views/windows/user_interface.h"

namespace velor {

Smes::Smes() : Smes(std::make_unique<forms::WindowsUserInterface>()) {}

}  // namespace velor
