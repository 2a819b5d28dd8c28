// A part of the screen that a form or box draws on, with rows of its own.
#pragma once

#include <string_view>

#include "views/terminal/screen.h"

namespace velor::terminal {

class Canvas {
  public:
    // The rows shown begin with firstRow; what lies above and below the area is cut.
    Canvas(Screen& screen, Area area, int firstRow = 0) : screen_(screen), area_(area), firstRow_(firstRow) {}

    // Text from the column on, at most width columns of it; filled up with blanks where the style shows.
    void write(int row, int column, int width, std::string_view text, Style style = Style::Plain);
    void fill(int row, int column, int width, Style style);
    void showCursor(int row, int column);

  private:
    bool isShown(int row) const { return row >= firstRow_ && row < firstRow_ + area_.rows; }

    Screen& screen_;
    Area area_;
    int firstRow_;
};

}  // namespace velor::terminal
