#include "item_list.h"

#include "runtime/text.h"

namespace velor::app {

std::vector<std::string> splitItems(std::string_view text) {
    const char separator = text.find(';') == std::string_view::npos ? ',' : ';';
    std::vector<std::string> items;
    for (;;) {
        const std::size_t end = text.find(separator);
        items.emplace_back(trimBlanks(text.substr(0, end)));
        if (end == std::string_view::npos) return items;
        text.remove_prefix(end + 1);
    }
}

std::string joinedItems(std::span<const std::string> items) {
    std::string text = items.front();
    for (const std::string& item : items.subspan(1)) text.append(",").append(item);
    return text;
}

}  // namespace velor::app
