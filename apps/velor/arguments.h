// The command line.
#pragma once

#include <string>
#include <variant>

#include "requests.h"

namespace velor::app {

// A text that answers at once: help, version, manual page or completions.
using ReadyAnswer = std::string;

// Failure(WrongUse) says what is wrong with the command line.
std::variant<Request, ReadyAnswer> parseArguments(int argc, const char* const* argv);

}  // namespace velor::app
