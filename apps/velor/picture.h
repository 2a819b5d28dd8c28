// Curves drawn into a picture file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "report.h"

namespace velor::app {

struct Curve {
    std::string name;
    std::vector<std::pair<Value, Value>> points;  // one that lacks a coordinate breaks the curve
};

struct Picture {
    std::string title;
    std::string horizontal;  // labels of the axes
    std::string vertical;
    std::vector<Curve> curves;
};

bool isPictureFileName(std::string_view name);  // ends in .svg or .png

// The name of a picture file must end in .svg or .png: Failure(WrongUse) otherwise.
std::string pictureFileName(std::string_view name);

// Draws the picture; the file is replaced as a whole. Failure(NothingComputed): gnuplot is not installed or failed, or
// the file cannot be written.
void drawPicture(const Picture& picture, const std::string& fileName);

// What there is to say of a picture that was drawn.
Section pictureSection(const std::string& fileName, int points, std::vector<std::string> notes);

}  // namespace velor::app
