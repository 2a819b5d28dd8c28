#include "platform/file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>

#include "runtime/checked.h"
#include "runtime/text.h"

namespace velor::platform {

const char kPathSeparator = '/';

namespace {

using Folder = std::unique_ptr<DIR, decltype([](DIR* folder) { closedir(folder); })>;

class Descriptor {
  public:
    explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
    ~Descriptor() { ::close(descriptor_); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int get() const { return descriptor_; }

  private:
    int descriptor_;
};

std::string folderOf(const std::string& path) {
    const std::size_t separator = path.rfind(kPathSeparator);
    if (separator == std::string::npos) return ".";
    return path.substr(0, separator + 1);
}

std::optional<struct stat> statusOf(const std::string& path) {
    struct stat status {};
    // A text with a zero character would be cut there and name another file.
    if (path.empty() || path.find('\0') != std::string::npos || ::stat(path.c_str(), &status) != 0) return std::nullopt;
    return status;
}

[[noreturn]] void raiseFileError(int error, const std::string& path) {
    switch (error) {
        case ENOENT:
            checked::raise(statusOf(folderOf(path)) ? RunTimeError::kFileNotFound : RunTimeError::kPathNotFound);
        case ENOTDIR:
            checked::raise(RunTimeError::kPathNotFound);
        case EACCES:
        case EPERM:
        case EROFS:
            checked::raise(RunTimeError::kPermissionDenied);
        default:
            checked::raise(RunTimeError::kPathFileAccess);
    }
}

void checkPath(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) checked::raise(RunTimeError::kFileNotFound);
}

int openForReading(const std::string& path) {
    checkPath(path);
    // Without O_NONBLOCK the opening of a pipe would wait for a writer.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) raiseFileError(errno, path);
    struct stat status {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(descriptor);
        checked::raise(RunTimeError::kPathFileAccess);
    }
    return descriptor;
}

void writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) checked::raise(RunTimeError::kPathFileAccess);
        content.remove_prefix(static_cast<std::size_t>(written));
    }
}

// The file that the path means in the end; a link to nothing names the file that it would lead to. A circle of links
// stays a link.
std::string behindLinks(const std::string& path) {
    constexpr int kMostLinks = 40;  // as many as the system follows
    std::filesystem::path target = path;
    std::error_code error;
    for (int links = 0; links < kMostLinks && std::filesystem::is_symlink(target, error); ++links)
        target = target.parent_path() / std::filesystem::read_symlink(target, error);
    return target.string();
}

constexpr std::string_view kReplacementMark = ".velor-";  // in the name of a file that is to replace another

// What programs left behind that were killed while they replaced the file; a younger one may still be written.
void removeLeftovers(const std::string& path) {
    constexpr std::time_t kAge = 600;  // s
    const std::size_t nameAt = path.rfind(kPathSeparator) + 1;
    const std::string folder = path.substr(0, nameAt), start = path.substr(nameAt).append(kReplacementMark);
    for (const FolderEntry& entry : listFolder(folderOf(path))) {
        if (entry.isFolder || !entry.name.starts_with(start)) continue;
        const auto status = statusOf(folder + entry.name);
        if (status && std::time(nullptr) - status->st_mtime > kAge) ::unlink((folder + entry.name).c_str());
    }
}

// A new file beside the one that it will replace, gone with the object unless it has taken the other's place.
class Replacement {
  public:
    explicit Replacement(const std::string& path) : path_(path), name_(freshName(path)), file_(create()) {}
    ~Replacement() {
        if (!name_.empty()) ::unlink(name_.c_str());
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    void fill(std::string_view content) const { writeAll(file_.get(), content); }
    // With the permissions of the file replaced, but none that would lend its owner's rights.
    void takePlace() {
        const auto replaced = statusOf(path_);
        if (replaced && ::fchmod(file_.get(), replaced->st_mode & 0777U) != 0) raiseFileError(errno, path_);
        if (::fsync(file_.get()) != 0) checked::raise(RunTimeError::kPathFileAccess);
        if (std::rename(name_.c_str(), path_.c_str()) != 0) raiseFileError(errno, path_);
        name_.clear();
    }

  private:
    static std::string freshName(const std::string& path) {
        std::uint32_t chance[2];
        if (::getentropy(chance, sizeof chance) != 0) checked::raise(RunTimeError::kPathFileAccess);
        return path + std::string(kReplacementMark) + std::to_string(chance[0]) + std::to_string(chance[1]);
    }
    int create() const {
        const int descriptor = ::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (descriptor < 0) raiseFileError(errno, path_);
        return descriptor;
    }

    std::string path_;
    std::string name_;
    Descriptor file_;
};

// Where the folder takes no new file there is no other way.
void overwrite(const std::string& path, std::string_view content) {
    const int descriptor = ::open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC | O_NOFOLLOW);
    if (descriptor < 0) raiseFileError(errno, path);
    const Descriptor file(descriptor);
    writeAll(file.get(), content);
}

bool takesNoNewFile(const std::string& folder) { return ::access(folder.c_str(), W_OK) != 0; }

// Null for what is no folder, may not be read, or is a link. A separator at the end would make the system follow the
// link, so it is taken off.
Folder openFolder(std::string path) {
    if (path.find('\0') != std::string::npos) return nullptr;
    while (path.size() > 1 && path.back() == kPathSeparator) path.pop_back();
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0) return nullptr;
    Folder folder(fdopendir(descriptor));
    if (!folder) ::close(descriptor);
    return folder;
}

}  // namespace

ReadOnlyFile::ReadOnlyFile(const std::string& path) : handle_(openForReading(path)) {}

ReadOnlyFile::~ReadOnlyFile() { ::close(static_cast<int>(handle_)); }

std::int64_t ReadOnlyFile::size() const {
    struct stat status {};
    if (::fstat(static_cast<int>(handle_), &status) != 0) checked::raise(RunTimeError::kPathFileAccess);
    return status.st_size;
}

std::size_t ReadOnlyFile::readAt(std::int64_t offset, std::span<char> bytes) const {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::pread(static_cast<int>(handle_), bytes.data() + done, bytes.size() - done,
                                      static_cast<off_t>(offset + static_cast<std::int64_t>(done)));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) checked::raise(RunTimeError::kPathFileAccess);
        if (count == 0) break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

std::string fileName(const std::string& path) {
    const auto status = statusOf(path);
    if (!status || !S_ISREG(status->st_mode)) return {};
    return path.substr(path.rfind(kPathSeparator) + 1);
}

void deleteFile(const std::string& path) {
    checkPath(path);
    if (::unlink(path.c_str()) != 0) raiseFileError(errno, path);
}

void replaceFile(const std::string& path, std::string_view content) {
    checkPath(path);
    const std::string target = behindLinks(path);
    const auto status = statusOf(target);
    std::error_code unknown;  // what cannot be looked at cannot be written either, and that is told
    const bool isLink = std::filesystem::is_symlink(target, unknown);
    if (isLink || (status && !S_ISREG(status->st_mode))) checked::raise(RunTimeError::kPathFileAccess);
    if (status && takesNoNewFile(folderOf(target))) return overwrite(target, content);
    removeLeftovers(target);
    Replacement replacement(target);
    replacement.fill(content);
    replacement.takePlace();
}

std::vector<FolderEntry> listFolder(const std::string& folder) {
    std::vector<FolderEntry> entries;
    const Folder open = openFolder(folder);
    struct stat own {};
    if (!open || ::fstat(dirfd(open.get()), &own) != 0) return entries;
    while (const dirent* entry = readdir(open.get())) {
        const std::string name = entry->d_name;
        struct stat status {};
        if (name == "." || name == "..") continue;
        if (::fstatat(dirfd(open.get()), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) continue;
        const bool isFolder = S_ISDIR(status.st_mode) && status.st_dev == own.st_dev;
        if (isFolder || S_ISREG(status.st_mode)) entries.push_back({name, isFolder});
    }
    std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return entries;
}

}  // namespace velor::platform
