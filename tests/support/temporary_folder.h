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

class TemporaryFolder {
  public:
    TemporaryFolder() {
        const std::string name = "velor-test-" + std::to_string(std::random_device()());
        const std::filesystem::path folder = std::filesystem::temp_directory_path() / name;
        EXPECT_TRUE(std::filesystem::create_directory(folder));
        path_ = (folder / "").string();
    }
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return path_; }  // ends in the separator
    std::string operator/(std::string_view name) const {
        return std::filesystem::path(path_ + std::string(name)).make_preferred().string();
    }

    // Writes a file below the folder, its folders included; returns its path.
    std::string write(std::string_view name, std::string_view content) const {
        const std::string file = *this / name;
        std::filesystem::create_directories(std::filesystem::path(file).parent_path());
        std::ofstream(std::filesystem::path(file), std::ios::binary) << content;
        return file;
    }

  private:
    std::string path_;
};

inline std::string readFile(const std::string& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace velor::test
