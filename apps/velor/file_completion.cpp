#include "file_completion.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace velor::app {

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
