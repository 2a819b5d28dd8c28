#include "platform/system.h"

#include <dlfcn.h>
#include <langinfo.h>
#include <locale.h>
#include <mntent.h>
#include <sys/auxv.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "platform/file_system.h"

namespace velor::platform {

namespace {

using Locale = std::unique_ptr<std::remove_pointer_t<locale_t>, decltype([](locale_t locale) { freelocale(locale); })>;
using MountTable = std::unique_ptr<FILE, decltype([](FILE* table) { endmntent(table); })>;

// File systems that the kernel keeps on no device but that hold a user's files all the same.
constexpr const char* kDevicelessStores[] = {"nfs", "nfs4",       "cifs", "smb3",    "overlay",
                                             "zfs", "fuse.sshfs", "9p",   "virtiofs"};

constexpr std::size_t kMostOfMount = 65536;  // bytes of a line: two paths and many options

// Types that /proc/filesystems marks "nodev": kernel views, not stores.
std::set<std::string> virtualFileSystems() {
    std::set<std::string> types;
    std::ifstream list("/proc/filesystems");
    for (std::string line; std::getline(list, line);) {
        std::istringstream words(line);
        std::string mark, type;
        if (words >> mark >> type && mark == "nodev") types.insert(type);
    }
    for (const char* store : kDevicelessStores) types.erase(store);
    return types;
}

bool isFolder(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string pathOfImage(const void* address) {
    Dl_info image{};
    const bool known = dladdr(address, &image) != 0 && image.dli_fname != nullptr && *image.dli_fname != '\0';
    Dl_info program{};
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the kernel passes the address as a number.
    const auto* const programHeader = reinterpret_cast<const void*>(getauxval(AT_PHDR));
    std::error_code error;
    if (!known || (dladdr(programHeader, &program) != 0 && program.dli_fbase == image.dli_fbase)) {
        // For the program itself the linker only knows the name that it was called by, and nothing at all where even
        // the C library is linked statically.
        const auto path = std::filesystem::read_symlink("/proc/self/exe", error);
        if (!error) return path.string();
        if (!known) return {};
    }
    const auto path = std::filesystem::canonical(image.dli_fname, error);
    return error ? std::string(image.dli_fname) : path.string();
}

void addressOfThisLibrary() {}

}  // namespace

std::string libraryFolder() {
    const std::string path = pathOfImage(reinterpret_cast<const void*>(&addressOfThisLibrary));
    return withSeparator(path.substr(0, path.rfind(kPathSeparator) + 1));
}

std::vector<std::string> volumes() {
    const std::set<std::string> ignored = virtualFileSystems();
    std::set<std::string> mountPoints{"/"};
    if (const MountTable table{setmntent("/proc/self/mounts", "r")}) {
        std::vector<char> line(kMostOfMount);
        mntent mount{};
        while (getmntent_r(table.get(), &mount, line.data(), static_cast<int>(line.size()))) {
            const std::string folder = mount.mnt_dir;
            if (!ignored.contains(mount.mnt_type) && isFolder(folder))
                mountPoints.insert(folder.back() == kPathSeparator ? folder : folder + kPathSeparator);
        }
    }
    return {mountPoints.begin(), mountPoints.end()};
}

std::string shortDate() {
    const std::time_t now = std::time(nullptr);
    std::tm today{};
    localtime_r(&now, &today);
    char text[64] = "";
    // The environment may name a locale that is not installed.
    const Locale user(newlocale(LC_TIME_MASK, "", nullptr));
    const Locale plain(user ? nullptr : newlocale(LC_TIME_MASK, "C", nullptr));
    strftime_l(text, sizeof text, "%x", &today, user ? user.get() : plain.get());
    return text;
}

std::string toSystemText(std::string_view text) { return std::string(text); }
std::string fromSystemText(std::string_view text) { return std::string(text); }

}  // namespace velor::platform
