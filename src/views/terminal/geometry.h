// Rows and columns of character cells, counted from the upper left corner.
#pragma once

namespace velor::terminal {

struct Size {
    int rows = 0, columns = 0;

    bool operator==(const Size&) const = default;
};

struct Area {
    int row = 0, column = 0, rows = 1, columns = 0;

    bool holds(int atRow, int atColumn) const {
        return atRow >= row && atRow < row + rows && atColumn >= column && atColumn < column + columns;
    }
};

}  // namespace velor::terminal
