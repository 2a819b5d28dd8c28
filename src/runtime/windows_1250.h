// The code page of the database: Windows-1250 on every system.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velor {

// UTF-8 text of Windows-1250 bytes. Every byte has a character of its own, so that encoding gives the bytes back.
std::string decodeWindows1250(std::string_view bytes);

// Windows-1250 bytes of a UTF-8 text; empty when a character has no place there.
std::optional<std::string> encodeWindows1250(std::string_view text);

// The same with "?" for each character that has no place there.
std::string encodeWindows1250OrQuestionMarks(std::string_view text);

}  // namespace velor
