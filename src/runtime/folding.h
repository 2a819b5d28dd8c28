// Texts as they are compared when the user looks for a name.
#pragma once

#include <string>
#include <string_view>

namespace velor {

// Upper case without diacritics, composed or decomposed, and without superfluous blanks.
std::string folded(std::string_view text);

// Least number of characters inserted, removed or replaced that turns one folded text into the other.
std::size_t editDistance(std::string_view one, std::string_view other);

}  // namespace velor
