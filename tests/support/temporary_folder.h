// A folder of a test's own, removed with everything in it at the end.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace velor::test {

// Paths are UTF-8 in the library's texts, on every system.
inline std::filesystem::path asPath(std::string_view text) { return std::u8string(text.begin(), text.end()); }
inline std::string asText(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

class TemporaryFolder {
  public:
    TemporaryFolder() {
        const std::string name = "velor-test-" + std::to_string(std::random_device()());
        const std::filesystem::path folder = std::filesystem::temp_directory_path() / name;
        EXPECT_TRUE(std::filesystem::create_directory(folder));
        path_ = asText(folder / "");
    }
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(asPath(path_), error);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return path_; }  // ends in the separator
    std::string operator/(std::string_view name) const {
        return asText(asPath(path_ + std::string(name)).make_preferred());
    }

    // Writes a file below the folder, its folders included; returns its path.
    std::string write(std::string_view name, std::string_view content) const {
        const std::string file = *this / name;
        std::filesystem::create_directories(asPath(file).parent_path());
        std::ofstream(asPath(file), std::ios::binary) << content;
        return file;
    }

  private:
    std::string path_;
};

inline std::string readFile(const std::string& path) {
    std::ifstream file(asPath(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace velor::test
