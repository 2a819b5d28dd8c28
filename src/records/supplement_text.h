// The form of the supplement: UTF-8, fields separated by tabulators. The first line tells the version, the last one the
// check sum of all before it; between them stand lines that begin with a CAS number and say what they tell, those of
// one substance one after another.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace velor {

inline constexpr std::string_view kSupplementVersion = "VELOR.DOP 1\n";
inline constexpr std::string_view kSupplementName = "VELOR.DOP";
inline constexpr std::string_view kSupplementEnd = "konec\t";

// What a line tells, beside the code of a property, which is followed by source, deviation and "odhad" or nothing.
inline constexpr std::string_view kNameLine = "jmeno";           // kind, name
inline constexpr std::string_view kSharedNameLine = "spolecne";  // a name that covers several substances
inline constexpr std::string_view kGroupsLine = "skupiny";       // groups, who assigned them
inline constexpr std::string_view kEstimate = "odhad";

// The fields of a line; those that are not there are empty.
using SupplementFields = std::array<std::string_view, 5>;
SupplementFields supplementFields(std::string_view line);

// The last line, of the text before it.
std::string supplementEnd(std::string_view text);

// Takes the next line off a text, without its end.
std::string_view takeLine(std::string_view& text);

}  // namespace velor
