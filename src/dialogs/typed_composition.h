// A composition typed as one line of text.
#pragma once

#include <string>
#include <vector>

namespace velor {

// The fractions in the text, separated by blanks or semicolons. Of the first blank and the first semicolon the later
// one ends a value, on purpose: a single kind of separator is to be used in one answer. Error 9: more than 20 values.
std::vector<double> parseComposition(const std::string& text);

}  // namespace velor
