// Lists typed as one argument: "1,57,ethanol", or with semicolons where the items themselves hold commas.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velor::app {

// The items without the blanks around them; at least one, an empty text gives one empty item.
std::vector<std::string> splitItems(std::string_view text);

// The items as they stood in a list separated by commas.
std::string joinedItems(std::span<const std::string> items);

}  // namespace velor::app
