// UTF-8 texts for whoever talks to people: characters, letter case, texts as they are compared, lists and numbers
// typed.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velor {

// Without the blanks (only blanks, no other white space) at both ends.
std::string_view trimBlanks(std::string_view text);

// Takes the first code point off a text that is not empty; a byte that starts none counts as U+FFFD.
char32_t takeCodePoint(std::string_view& text);
void appendCodePoint(std::string& text, char32_t codePoint);

// Whether a terminal would take the character for a command.
bool isControl(char32_t codePoint);
// The text with each control character but line ends and tabulators as "?": safe to print on a terminal.
std::string printable(std::string_view text);

// Number of characters (code points).
std::size_t characterCount(std::string_view text);

// Upper case of the Latin letters of Europe; every other character stays.
std::string upperCase(std::string_view text);

// Equal without regard to letter case.
bool equalIgnoringCase(std::string_view one, std::string_view other);

// As texts are compared when the user looks for a name: upper case without diacritics, composed or decomposed, and
// without superfluous blanks.
std::string folded(std::string_view text);

// Least number of characters inserted, removed or replaced that turns one folded text into the other.
std::size_t editDistance(std::string_view one, std::string_view other);

// The items of a list typed as one text, separated by commas or, where there is one, by semicolons; without the blanks
// around them. At least one: an empty text gives one empty item.
std::vector<std::string> splitItems(std::string_view text);

// A text that is one number and nothing else but blanks around it, with "," or "." as the decimal separator; none
// otherwise. Error 6: beyond double precision.
std::optional<double> parseWholeNumber(std::string_view text);

// The shortest text that reads back as the same number: for machines. The same under every locale, as all here.
std::string exactText(double value);
std::string exactText(float value);

// Six significant digits: for people.
std::string roundedText(double value);

}  // namespace velor
