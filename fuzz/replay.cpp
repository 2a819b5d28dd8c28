// Runs a target on kept inputs, for the compilers that have no fuzzer: replay FILE|FOLDER...
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "target.h"

namespace {

namespace fs = std::filesystem;

void addFiles(const fs::path& path, std::vector<fs::path>& files) {
    if (!fs::is_directory(path)) {
        files.push_back(path);
        return;
    }
    for (const auto& entry : fs::directory_iterator(path)) files.push_back(entry.path());
}

void replay(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<fs::path> files;
    for (int i = 1; i < argc; ++i) addFiles(argv[i], files);
    std::sort(files.begin(), files.end());
    for (const fs::path& path : files) {
        std::cout << path.filename().string() << std::endl;  // the last line names the input that failed
        replay(path);
    }
    return files.empty() ? 1 : 0;
}
