#include "name_completion.h"

#include "runtime/folding.h"
#include "runtime/text.h"

namespace velor::app {

// Folding drops a blank at the end, but behind "kyselina " another word has begun.
std::string foldedStart(std::string_view typed) {
    std::string result = folded(std::string(typed) + '.');
    result.pop_back();
    return result;
}

std::optional<std::string_view> behindStart(std::string_view name, std::string_view typed) {
    const std::string start = foldedStart(typed);
    for (std::string_view rest = name;; takeCodePoint(rest)) {
        if (foldedStart(name.substr(0, name.size() - rest.size())) == start) return rest;
        if (rest.empty()) return std::nullopt;
    }
}

std::vector<std::string> namesStartingWith(const std::vector<std::string>& names, std::string_view typed) {
    const std::string start = foldedStart(typed);
    std::vector<std::string> matches;
    for (const std::string& name : names)
        if (folded(name).starts_with(start)) matches.push_back(name);
    return matches;
}

std::vector<std::string> spelledAsTyped(std::vector<std::string> names, std::string_view typed) {
    for (std::string& name : names)
        if (const auto rest = behindStart(name, typed); rest && !name.starts_with(typed))
            name = std::string(typed).append(*rest);
    return names;
}

}  // namespace velor::app
