#include "views/terminal/canvas.h"

#include <algorithm>
#include <string>

namespace velor::terminal {

void Canvas::write(int row, int column, int width, std::string_view text, Style style) {
    if (!isShown(row)) return;
    const int left = area_.column + column;
    const int right = std::min(left + width, area_.column + area_.columns);
    screen_.write(area_.row + row - firstRow_, left, left, right, text, style);
}

void Canvas::fill(int row, int column, int width, Style style) {
    if (width > 0) write(row, column, width, std::string(static_cast<std::size_t>(width), ' '), style);
}

void Canvas::showCursor(int row, int column) {
    if (isShown(row) && column >= 0 && column < area_.columns)
        screen_.showCursor(area_.row + row - firstRow_, area_.column + column);
}

}  // namespace velor::terminal
