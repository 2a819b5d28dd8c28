// What the questions and answers of all forms share.
#pragma once

#include <string_view>

namespace velor {

inline constexpr std::string_view kNotUnderstood = "Nerozumím, zadejte některou z možností výše.\n";

}  // namespace velor
