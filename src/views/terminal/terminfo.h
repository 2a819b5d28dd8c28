// What the system knows of the terminal. In a file of its own, because the library's header renames common words.
#pragma once

#include <string>

namespace velor::terminal {

// Whether the terminal is known and can be drawn on.
bool canPlaceTheCursor(int fileDescriptor);

// A control string of the terminal, empty where it has none; without the marks of delays, which only slow teletypes
// need.
std::string capability(const char* name);

}  // namespace velor::terminal
