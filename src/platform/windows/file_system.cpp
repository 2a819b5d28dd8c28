#include "platform/file_system.h"

#include <windows.h>

#include <algorithm>
#include <memory>

#include "platform/windows/wide_text.h"
#include "runtime/checked.h"
#include "runtime/text.h"

namespace velor::platform {

const char kPathSeparator = '\\';

namespace {

using File = std::unique_ptr<void, decltype([](HANDLE file) { CloseHandle(file); })>;
using Enumeration = std::unique_ptr<void, decltype([](HANDLE search) { FindClose(search); })>;

// Where a drive holds no disk, Windows asks for one unless it is told not to.
class QuietDrives {
  public:
    QuietDrives() { SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before_); }
    ~QuietDrives() { SetThreadErrorMode(before_, nullptr); }
    QuietDrives(const QuietDrives&) = delete;
    QuietDrives& operator=(const QuietDrives&) = delete;

  private:
    DWORD before_ = 0;
};

[[noreturn]] void raiseFileError(DWORD error) {
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_INVALID_NAME:
            checked::raise(RunTimeError::kFileNotFound);
        case ERROR_PATH_NOT_FOUND:
        case ERROR_DIRECTORY:
        case ERROR_INVALID_DRIVE:
        case ERROR_NOT_READY:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
            checked::raise(RunTimeError::kPathNotFound);
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
            checked::raise(RunTimeError::kPermissionDenied);
        default:
            checked::raise(RunTimeError::kPathFileAccess);
    }
}

// A text with a zero character would be cut there and name another file.
bool isPath(const std::string& path) { return !path.empty() && path.find('\0') == std::string::npos; }

std::wstring widePath(const std::string& path) {
    if (!isPath(path)) checked::raise(RunTimeError::kFileNotFound);
    return toWide(path);
}

bool isFolder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool isFile(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES && !isFolder(path);
}

HANDLE openForReading(const std::string& path) {
    const QuietDrives quiet;
    const std::wstring name = widePath(path);
    // Whoever replaces or deletes the file meanwhile is not kept from it.
    const HANDLE file = CreateFileW(name.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        if (isFolder(name)) checked::raise(RunTimeError::kPathFileAccess);
        raiseFileError(error);
    }
    if (GetFileType(file) != FILE_TYPE_DISK) {
        CloseHandle(file);
        checked::raise(RunTimeError::kPathFileAccess);
    }
    return file;
}

HANDLE handleOf(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

constexpr DWORD kMostBytesAtOnce = 1U << 30U;

DWORD atOnce(std::size_t size) { return static_cast<DWORD>(std::min<std::size_t>(size, kMostBytesAtOnce)); }

void writeAll(HANDLE file, std::string_view content) {
    while (!content.empty()) {
        DWORD written = 0;
        if (!WriteFile(file, content.data(), atOnce(content.size()), &written, nullptr) || written == 0)
            checked::raise(RunTimeError::kPathFileAccess);
        content.remove_prefix(written);
    }
    if (!FlushFileBuffers(file)) checked::raise(RunTimeError::kPathFileAccess);
}

// Null where it fails; GetLastError tells why.
File openForWriting(const std::wstring& name, DWORD how) {
    const HANDLE file = CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr);
    return File(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

// A new file beside the one that it will replace, gone with the object unless it was moved there. Its name belongs to
// this thread, so that what a killed program left behind under it may be written over.
class Replacement {
  public:
    explicit Replacement(const std::wstring& path)
        : name_(path + L"." + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(GetCurrentThreadId())),
          file_(openForWriting(name_, CREATE_ALWAYS)),
          error_(file_ ? ERROR_SUCCESS : GetLastError()) {}
    ~Replacement() {
        file_.reset();
        DeleteFileW(name_.c_str());
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    // Why the file could not be made.
    DWORD error() const { return error_; }
    HANDLE file() const { return file_.get(); }
    // The file closed, its name.
    const std::wstring& closed() {
        file_.reset();
        return name_;
    }

  private:
    std::wstring name_;
    File file_;
    DWORD error_;
};

// Where the folder takes no new file there is no other way.
void overwrite(const std::wstring& name, std::string_view content) {
    const File file = openForWriting(name, TRUNCATE_EXISTING);
    if (!file) raiseFileError(GetLastError());
    writeAll(file.get(), content);
}

void moveOver(const std::wstring& from, const std::wstring& to) {
    // Readers, virus scanners and indexers hold a file for moments.
    constexpr int kAttempts = 50;
    constexpr DWORD kMilliseconds = 10;
    if (isFolder(to)) checked::raise(RunTimeError::kPathFileAccess);
    for (int attempt = 1;; ++attempt) {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) return;
        const DWORD error = GetLastError();
        if ((error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION) || attempt == kAttempts)
            raiseFileError(error);
        Sleep(kMilliseconds);
    }
}

// A link to elsewhere, or a folder where another volume is mounted; files kept in a cloud are neither.
bool leadsElsewhere(const WIN32_FIND_DATAW& entry) {
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           IsReparseTagNameSurrogate(entry.dwReserved0) != 0;
}

bool isLink(const std::wstring& name) {
    WIN32_FIND_DATAW entry{};
    const HANDLE search = FindFirstFileW(name.c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return false;
    const Enumeration closing(search);
    return leadsElsewhere(entry);
}

// The file that the path means in the end. A link to nothing gets the file that it would lead to; a circle of links is
// an error.
std::wstring behindLinks(const std::wstring& name) {
    if (!isLink(name)) return name;
    const HANDLE opened =
        CreateFileW(name.c_str(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_ALWAYS, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (opened == INVALID_HANDLE_VALUE) raiseFileError(GetLastError());
    const File file(opened);
    std::wstring target(GetFinalPathNameByHandleW(file.get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
    target.resize(
        GetFinalPathNameByHandleW(file.get(), target.data(), static_cast<DWORD>(target.size()), FILE_NAME_NORMALIZED));
    if (target.empty()) raiseFileError(GetLastError());
    return target;
}

}  // namespace

ReadOnlyFile::ReadOnlyFile(const std::string& path) : handle_(reinterpret_cast<std::intptr_t>(openForReading(path))) {}

ReadOnlyFile::~ReadOnlyFile() { CloseHandle(handleOf(handle_)); }

std::int64_t ReadOnlyFile::size() const {
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(handleOf(handle_), &size)) checked::raise(RunTimeError::kPathFileAccess);
    return size.QuadPart;
}

std::size_t ReadOnlyFile::readAt(std::int64_t offset, std::span<char> bytes) const {
    std::size_t done = 0;
    while (done < bytes.size()) {
        ULARGE_INTEGER position{};
        position.QuadPart = static_cast<ULONGLONG>(offset) + done;
        OVERLAPPED place{};
        place.Offset = position.LowPart;
        place.OffsetHigh = position.HighPart;
        DWORD count = 0;
        if (!ReadFile(handleOf(handle_), bytes.data() + done, atOnce(bytes.size() - done), &count, &place)) {
            if (GetLastError() == ERROR_HANDLE_EOF) break;
            checked::raise(RunTimeError::kPathFileAccess);
        }
        if (count == 0) break;
        done += count;
    }
    return done;
}

std::string fileName(const std::string& path) {
    const QuietDrives quiet;
    if (!isPath(path) || path.find_first_of("*?") != std::string::npos) return {};
    WIN32_FIND_DATAW entry{};
    const HANDLE search = FindFirstFileW(toWide(path).c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return {};
    const Enumeration closing(search);
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return {};
    return fromWide(entry.cFileName);
}

void deleteFile(const std::string& path) {
    const QuietDrives quiet;
    if (!DeleteFileW(widePath(path).c_str())) raiseFileError(GetLastError());
}

void replaceFile(const std::string& path, std::string_view content) {
    const QuietDrives quiet;
    const std::wstring name = behindLinks(widePath(path));
    Replacement replacement(name);
    if (replacement.error() == ERROR_ACCESS_DENIED && isFile(name)) return overwrite(name, content);
    if (replacement.error() != ERROR_SUCCESS) raiseFileError(replacement.error());
    writeAll(replacement.file(), content);
    moveOver(replacement.closed(), name);
}

std::vector<FolderEntry> listFolder(const std::string& folder) {
    const QuietDrives quiet;
    std::vector<FolderEntry> entries;
    WIN32_FIND_DATAW entry{};
    if (!isPath(folder)) return entries;
    const HANDLE search = FindFirstFileW(toWide(withSeparator(folder) + "*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return entries;
    const Enumeration closing(search);
    do {
        const std::string name = fromWide(entry.cFileName);
        if (name == "." || name == ".." || leadsElsewhere(entry)) continue;
        entries.push_back({name, (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
    } while (FindNextFileW(search, &entry));
    std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return entries;
}

}  // namespace velor::platform
