#include "views/terminal/wrapped_lines.h"

#include <algorithm>

#include "velor/text.h"
#include "views/terminal/screen.h"

namespace velor::terminal {

namespace {

// The bytes of as many characters as fit the width, at least one.
std::size_t fittingBytes(std::string_view text, int width) {
    std::string_view rest = text;
    std::size_t bytes = 0;
    while (!rest.empty()) {
        takeCodePoint(rest);
        const std::size_t next = text.size() - rest.size();
        if (bytes > 0 && columnsOf(text.substr(0, next)) > width) break;
        bytes = next;
    }
    return bytes;
}

void wrap(std::string_view line, int width, std::vector<std::string>& lines) {
    if (line.starts_with("  ")) return lines.push_back(cutTo(std::string(line), width));
    while (columnsOf(line) > width) {
        std::size_t end = fittingBytes(line, width);
        const std::size_t blank = line.rfind(' ', end);
        const std::size_t firstWord = line.find_first_not_of(' ');
        if (blank != std::string_view::npos && blank > firstWord) end = blank;
        lines.emplace_back(line.substr(0, end));
        line.remove_prefix(std::min(line.find_first_not_of(' ', end), line.size()));
    }
    lines.emplace_back(line);
}

}  // namespace

std::vector<std::string> wrappedLines(std::string_view text, int width) {
    std::vector<std::string> lines;
    for (;;) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        wrap(text.substr(0, end), std::max(1, width), lines);
        if (end == text.size()) return lines;
        const std::size_t length = text.substr(end).starts_with("\r\n") ? 2 : 1;
        text.remove_prefix(end + length);
    }
}

}  // namespace velor::terminal
