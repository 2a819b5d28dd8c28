// Measured points of one property, as people have them in worksheets.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "baze/fault.h"
#include "velor/properties.h"

namespace velor::baze {

struct MeasuredPoint {
    double T = 0;      // K
    double value = 0;  // in the property's unit, positive
    double weight = 1;
    int line = 0;
};

// A table with the columns T, the value (by the property's code or "hodnota") and perhaps vaha; units stand in brackets
// behind the name, "T [°C]", "TENS [kPa]", and are the database's where there are none. At least two points of
// different temperature.
std::vector<MeasuredPoint> readPoints(std::string_view text, const PureProperty& property, LineFaults& faults);

}  // namespace velor::baze
