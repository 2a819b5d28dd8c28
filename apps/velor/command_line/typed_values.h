// Numbers typed on the command line. Failure(WrongUse) says what is wrong with one.
#pragma once

#include <string_view>
#include <vector>

namespace velor::app {

// A pressure in pascals, above 0.
double typedPressure(std::string_view text);

// Fractions of a composition, none negative, separated as temperatures are.
std::vector<double> typedFractions(std::string_view text);

// A whole number within the limits; name begins the sentence: "Počet bodů".
int typedCount(std::string_view text, std::string_view name, int least, int most);

// Seconds, above 0.
double typedSeconds(std::string_view text);

// One temperature, a list "300,310.5", or a range "300:400:10" whose end belongs to it within rounding. A comma is
// the decimal separator in a range and in a list separated by semicolons.
std::vector<double> parseTemperatures(std::string_view text);

// A single temperature.
double parseTemperature(std::string_view text);

}  // namespace velor::app
