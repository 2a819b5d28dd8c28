// Temperatures typed on the command line.
#pragma once

#include <string_view>
#include <vector>

namespace velor::app {

// One temperature, a list "300,310.5", or a range "300:400:10" whose end belongs to it within rounding. A comma is
// the decimal separator in a range and in a list separated by semicolons. Failure(WrongUse) says what is wrong.
std::vector<double> parseTemperatures(std::string_view text);

// A single temperature.
double parseTemperature(std::string_view text);

}  // namespace velor::app
