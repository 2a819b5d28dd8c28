#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "completion/candidates.h"
#include "velor/text.h"

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

namespace {

bool isPrintable(std::string_view name) {
    return std::ranges::all_of(name, [](char c) { return static_cast<unsigned char>(c) >= 0x20 && c != 0x7F; });
}

}  // namespace

std::string withHome(std::string_view path) {
    const char* const home = std::getenv("HOME");
    return home && path.starts_with("~/") ? home + std::string(path.substr(1)) : std::string(path);
}

std::vector<std::string> completeFile(std::string_view typed, bool isTildeQuoted,
                                      const std::function<bool(std::string_view name)>& isWanted) {
    const std::size_t start = typed.rfind('/') + 1;  // 0 where there is none
    const std::string_view folder = typed.substr(0, start), begun = typed.substr(start);
    const std::string place = isTildeQuoted ? std::string(folder) : withHome(folder);
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entries(place.empty() ? "." : place, error);
    for (; !error && entries != std::filesystem::directory_iterator(); entries.increment(error)) {
        const std::string name = entries->path().filename().string();
        const bool isHidden = name.starts_with('.') && !begun.starts_with('.');
        if (!name.starts_with(begun) || isHidden || !isPrintable(name)) continue;
        std::error_code unknownKind;
        if (entries->is_directory(unknownKind)) {
            names.push_back(name + "/");
        } else if (isWanted(name)) {
            names.push_back(name);
        }
    }
    return names;
}

}  // namespace velor::app
