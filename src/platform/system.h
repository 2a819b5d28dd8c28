// What the operating system knows beside files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velor::platform {

// The folder of the file that this library was loaded from, with the separator at its end; the program's own folder
// when the library is linked statically.
std::string libraryFolder();

// The drives in the order in which they are searched, each with the separator at its end.
std::vector<std::string> volumes();

// Today in the system's short date format.
std::string shortDate();

// UTF-8 text in the encoding of the system's own text files and back: the ANSI code page on Windows, UTF-8 elsewhere. A
// character that it lacks becomes a similar one or "?".
std::string toSystemText(std::string_view text);
std::string fromSystemText(std::string_view text);

}  // namespace velor::platform
