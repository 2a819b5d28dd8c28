// UTF-8 texts: trimming, letter case, patterns.
#pragma once

#include <string>
#include <string_view>

namespace velor {

inline constexpr const char* kLineBreak = "\r\n";  // in every text of the library

// Without the blanks (only blanks, no other white space) at both ends.
std::string_view trimBlanks(std::string_view text);

// The part before the first character of code 0.
std::string_view beforeNull(std::string_view text);

// Takes the first code point off a text that is not empty; a byte that starts none counts as U+FFFD.
char32_t takeCodePoint(std::string_view& text);
void appendCodePoint(std::string& text, char32_t codePoint);

// Number of characters (code points).
std::size_t characterCount(std::string_view text);

// Upper case of the Latin letters of Europe; every other character stays.
std::string upperCase(std::string_view text);

// Equal without regard to letter case.
bool equalIgnoringCase(std::string_view one, std::string_view other);

// A registry number of substances as on paper: "64175" gives "64-17-5". Error 5: fewer than three digits.
std::string casText(std::string_view digits);

// Whether the whole text matches a pattern in which "*" stands for any characters and "?" for one.
bool matchesPattern(std::string_view text, std::string_view pattern);

}  // namespace velor
