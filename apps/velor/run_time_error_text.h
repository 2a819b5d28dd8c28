// The library's run-time errors for Czech readers.
#pragma once

#include <string>

#include "velor/run_time_error.h"

namespace velor::app {

// "soubor nenalezen (chyba 53)"
std::string describe(const RunTimeError& error);

}  // namespace velor::app
