// Files and folders. Paths are UTF-8; failures are the classic file errors 53, 70, 75 and 76.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velor::platform {

// The system's path separator.
extern const char kPathSeparator;

// A trimmed folder path with the separator at its end.
std::string withSeparator(std::string_view folder);

// A file open for reading, closed with the object. An empty path is error 53, a folder 75.
class ReadOnlyFile {
  public:
    explicit ReadOnlyFile(const std::string& path);
    ~ReadOnlyFile();
    ReadOnlyFile(const ReadOnlyFile&) = delete;
    ReadOnlyFile& operator=(const ReadOnlyFile&) = delete;

    std::int64_t size() const;
    // Reads at an offset; fewer bytes than asked for only at the end of the file.
    std::size_t readAt(std::int64_t offset, std::span<char> bytes) const;

  private:
    std::intptr_t handle_;
};

// The whole of a text file, at most the given number of bytes of it.
std::string readText(const std::string& path, std::size_t mostBytes);

// The file's own name as its folder lists it; empty when there is no such file.
std::string fileName(const std::string& path);

void deleteFile(const std::string& path);

// Writes the file anew: either the old or the new content is there, never a part.
void replaceFile(const std::string& path, std::string_view content);

struct FolderEntry {
    std::string name;
    bool isFolder = false;
};

// Files and folders of a folder by name, without "." and ".."; empty where it cannot be read
// or is a link. Links and folders that begin another volume are left out.
std::vector<FolderEntry> listFolder(const std::string& folder);

}  // namespace velor::platform
