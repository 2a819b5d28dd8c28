#include "views/line_search.h"

#include <algorithm>

#include "velor/text.h"

namespace velor {

LineSearch::LineSearch(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) folded_.push_back(folded(line));
}

std::vector<int> LineSearch::holding(std::string_view text) const {
    const std::string wanted = folded(text);
    std::vector<int> indices;
    for (std::size_t i = 0; i < folded_.size(); ++i)
        if (folded_[i].find(wanted) != std::string::npos) indices.push_back(static_cast<int>(i));
    return indices;
}

std::size_t LineSearch::bestOf(const std::vector<int>& indices, std::string_view text) const {
    const std::string wanted = folded(text);
    const auto begins = [&](int index) {
        const std::string& line = folded_[static_cast<std::size_t>(index)];
        const std::size_t blank = std::min(line.find(' '), line.size());
        const std::size_t name = std::min(line.find_first_not_of(' ', blank), line.size());
        return line.starts_with(wanted) || line.compare(name, wanted.size(), wanted) == 0;
    };
    const auto best = std::find_if(indices.begin(), indices.end(), begins);
    return best == indices.end() ? 0 : static_cast<std::size_t>(best - indices.begin());
}

}  // namespace velor
