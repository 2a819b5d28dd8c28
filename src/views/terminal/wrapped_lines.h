// Text broken into lines that fit a width.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velor::terminal {

// Lines of at most width columns, broken between words where that is possible and wherever the text has a CR, LF or CR
// LF. A line that begins with two blanks is a row of a table, and two blanks part its cells: where it does not fit it
// is broken between them.
std::vector<std::string> wrappedLines(std::string_view text, int width);

}  // namespace velor::terminal
