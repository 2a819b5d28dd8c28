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

constexpr std::string_view kColumnGap = "  ", kDeeper = "    ";

std::vector<std::string_view> cellsOf(std::string_view row) {
    std::vector<std::string_view> cells;
    while (!row.empty()) {
        const std::size_t end = std::min(row.find(kColumnGap), row.size());
        if (end > 0) cells.push_back(row.substr(0, end));
        row.remove_prefix(std::min(row.find_first_not_of(' ', end), row.size()));
    }
    return cells;
}

// A row that does not fit gives up its alignment and takes more lines; no cell is cut. They are filled from the end, so
// that a unit stays with its value.
void wrapRow(std::string_view row, int width, std::vector<std::string>& lines) {
    if (columnsOf(row) <= width) {
        lines.emplace_back(row);
        return;
    }
    const int room = width - columnsOf(kDeeper);
    std::vector<std::string> parts;
    for (const std::string_view cell : cellsOf(row)) parts.emplace_back(cell);
    for (std::size_t last = parts.size(); last-- > 1;) {
        const std::string both = parts[last - 1] + std::string(kColumnGap) + parts[last];
        if (columnsOf(both) > room) continue;
        parts[last - 1] = both;
        parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(last));
    }
    std::string_view indent = kColumnGap;
    for (const std::string& part : parts) {
        std::vector<std::string> wrapped;
        wrap(part, std::max(1, room), wrapped);
        for (const std::string& line : wrapped) {
            lines.push_back(std::string(indent) + line);
            indent = kDeeper;
        }
    }
}

}  // namespace

std::vector<std::string> wrappedLines(std::string_view text, int width) {
    std::vector<std::string> lines;
    for (;;) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        const std::string_view line = text.substr(0, end);
        (line.starts_with(kColumnGap) ? wrapRow : wrap)(line, std::max(1, width), lines);
        if (end == text.size()) return lines;
        const std::size_t length = text.substr(end).starts_with("\r\n") ? 2 : 1;
        text.remove_prefix(end + length);
    }
}

}  // namespace velor::terminal
