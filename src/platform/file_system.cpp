// What is the same on every system.
#include "platform/file_system.h"

#include <algorithm>

#include "runtime/text.h"

namespace velor::platform {

std::string withSeparator(std::string_view folder) {
    std::string path(trimBlanks(folder));
    if (path.empty() || path.back() != kPathSeparator) path += kPathSeparator;
    return path;
}

std::string readText(const std::string& path, std::size_t mostBytes) {
    const ReadOnlyFile file(path);
    std::string text(std::min(mostBytes, static_cast<std::size_t>(file.size())), '\0');
    text.resize(file.readAt(0, text));
    return text;
}

}  // namespace velor::platform
