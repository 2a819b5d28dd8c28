// Text broken into lines that fit a width.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velor::terminal {

// Lines of at most width columns, broken between words where that is possible and wherever the text has a CR, LF or CR
// LF. A line that begins with two blanks is a row of a table: it is cut, not broken.
std::vector<std::string> wrappedLines(std::string_view text, int width);

}  // namespace velor::terminal
