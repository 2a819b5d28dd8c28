// A file that holds the input while one run lasts.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "target.h"

namespace velor::fuzz {

// One folder for the life of the process, removed at its end.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "velor-fuzz-XXXXXX").string();
        require(mkdtemp(name.data()) != nullptr, "no temporary folder");
        path_ = name + "/";
    }
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return path_; }

    std::string write(const std::string& name, std::string_view content) const {
        std::ofstream(path_ + name, std::ios::binary) << content;
        return path_ + name;
    }

  private:
    std::string path_;
};

}  // namespace velor::fuzz
