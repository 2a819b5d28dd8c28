// Questions and answers on the standard streams for a host that brings no user interface of its own.
#include <iostream>
#include <memory>

#include "velor/smes.h"

namespace velor {

Smes::Smes() : Smes(std::make_unique<StreamUserInterface>(std::cin, std::cerr)) {}

}  // namespace velor
