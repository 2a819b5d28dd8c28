// Completing what the user began to type to one of several names, as freely as names are found: letter case and
// diacritics do not matter.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velor::app {

// What the folded text of a name that begins with what is typed begins with.
std::string foldedStart(std::string_view typed);

// What follows in the name behind the start that is typed; none where the name begins otherwise.
std::optional<std::string_view> behindStart(std::string_view name, std::string_view typed);

// The names that begin with what is typed.
std::vector<std::string> namesStartingWith(const std::vector<std::string>& names, std::string_view typed);

// Several such names spelled as far as that as it is typed. A shell puts their common start into the line, and that
// must never take letters away.
std::vector<std::string> spelledAsTyped(std::vector<std::string> names, std::string_view typed);

}  // namespace velor::app
