// Finding lines of a list by what is typed, without regard to letter case and diacritics.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velor {

class LineSearch {
  public:
    explicit LineSearch(const std::vector<std::string>& lines);

    // Indices of the lines that hold the text.
    std::vector<int> holding(std::string_view text) const;
    // The position among them of the line that is meant: whoever types a name means the line that begins with it, and a
    // number may stand before it. Otherwise the first one.
    std::size_t bestOf(const std::vector<int>& indices, std::string_view text) const;

  private:
    std::vector<std::string> folded_;  // the lines as they are searched
};

}  // namespace velor
