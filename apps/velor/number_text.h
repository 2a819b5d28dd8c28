// Numbers as text, the same under every locale.
#pragma once

#include <string>

namespace velor::app {

// The shortest text that reads back as the same number: for machines.
std::string exactText(double value);
std::string exactText(float value);

// Six significant digits: for people.
std::string roundedText(double value);

// The double nearest to the shortest decimal text of a single: 0.046 for 0.046F, not 0.04600000008940697.
double decimalValue(float value);

}  // namespace velor::app
