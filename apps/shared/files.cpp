#include "shared/files.h"

#include <limits>

#include "platform/file_system.h"  // the library's own file layer, which hosts have no need of

namespace velor::app {

std::filesystem::path systemPath(std::string_view path) { return {std::u8string(path.begin(), path.end())}; }

std::string utf8Path(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string readFile(const std::string& path) {
    return platform::readText(path, std::numeric_limits<std::size_t>::max());
}

void replaceFile(const std::string& path, std::string_view content) { platform::replaceFile(path, content); }

}  // namespace velor::app
