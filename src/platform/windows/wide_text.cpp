#include "platform/windows/wide_text.h"

#include <windows.h>

#include "platform/system.h"

namespace velor::platform {

namespace {

std::wstring decode(UINT codePage, std::string_view text) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string encode(UINT codePage, std::wstring_view wide) {
    const int size = static_cast<int>(wide.size());
    std::string text(
        static_cast<std::size_t>(WideCharToMultiByte(codePage, 0, wide.data(), size, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(codePage, 0, wide.data(), size, text.data(), static_cast<int>(text.size()), nullptr, nullptr);
    return text;
}

}  // namespace

std::wstring toWide(std::string_view text) { return decode(CP_UTF8, text); }
std::string fromWide(std::wstring_view text) { return encode(CP_UTF8, text); }

std::string toSystemText(std::string_view text) { return encode(CP_ACP, toWide(text)); }
std::string fromSystemText(std::string_view text) { return fromWide(decode(CP_ACP, text)); }

}  // namespace velor::platform
