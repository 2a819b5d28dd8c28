// The program that draws pictures, run as a process of its own.
#pragma once

#include <string>
#include <string_view>

namespace velor::app {

// Runs a script that draws to the standard output and returns the picture's bytes. Failure(NothingComputed): gnuplot is
// not installed or failed.
std::string runGnuplot(std::string_view script);

}  // namespace velor::app
