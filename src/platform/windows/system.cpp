#include "platform/system.h"

#include <windows.h>

#include "platform/file_system.h"
#include "platform/windows/library_file.h"
#include "platform/windows/wide_text.h"

namespace velor::platform {

namespace {

void addressOfThisLibrary() {}

std::wstring pathOfImage(HMODULE image) {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(image, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) return path.substr(0, length);
        path.resize(path.size() * 2);
    }
}

}  // namespace

HINSTANCE libraryModule() {
    HMODULE image = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&addressOfThisLibrary), &image);
    return image;
}

std::string libraryFile() { return fromWide(pathOfImage(libraryModule())); }

std::string libraryFolder() {
    const std::string path = libraryFile();
    return withSeparator(path.substr(0, path.rfind(kPathSeparator) + 1));
}

std::vector<std::string> volumes() {
    std::vector<std::string> drives;
    for (char letter = 'C'; letter <= 'Z'; ++letter) drives.push_back(std::string{letter, ':', kPathSeparator});
    return drives;
}

std::string shortDate() {
    wchar_t text[80] = L"";
    GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, text, static_cast<int>(std::size(text)),
                    nullptr);
    return fromWide(text);
}

}  // namespace velor::platform
