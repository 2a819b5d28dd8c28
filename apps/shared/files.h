// Files of the programs: paths in UTF-8, whole files read and replaced.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace velor::app {

std::filesystem::path systemPath(std::string_view path);
std::string utf8Path(const std::filesystem::path& path);

// Raise the library's file errors: 53, 70, 75, 76.
std::string readFile(const std::string& path);
// Either the old or the new content is there, never a part.
void replaceFile(const std::string& path, std::string_view content);

}  // namespace velor::app
