// UTF-8 texts inside the library, beside what hosts may use, too.
#pragma once

#include <string>
#include <string_view>

#include "velor/text.h"

namespace velor {

inline constexpr const char* kLineBreak = "\r\n";  // in every text of the library

// The part before the first character of code 0.
std::string_view beforeNull(std::string_view text);

// A registry number of substances as on paper: "64175" gives "64-17-5". Error 5: fewer than three digits.
std::string casText(std::string_view digits);

// Without hyphens, commas and blanks, which people set in names as they please.
std::string withoutSeparators(std::string_view text);

// Whether the whole text matches a pattern in which "*" stands for any characters and "?" for one.
bool matchesPattern(std::string_view text, std::string_view pattern);

}  // namespace velor
