// UTF-8 texts as Windows takes them.
#pragma once

#include <string>
#include <string_view>

namespace velor::platform {

// UTF-16 of a UTF-8 text and back; what is not well formed becomes U+FFFD.
std::wstring toWide(std::string_view text);
std::string fromWide(std::wstring_view text);

}  // namespace velor::platform
