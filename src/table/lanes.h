// Runs of points of one composition, side by side in the widest registers of the processor at hand.
#pragma once

#include <cstddef>
#include <span>

#include "properties/property_point.h"

namespace velor {

struct Run {
    const double* T;  // one each, or one for all where the step is 0
    const double* P;
    std::size_t stepT, stepP;
    std::size_t points;
    double* values;       // NaN where a point has none, or wants to be looked at alone
    Standing* standings;  // of those that have a value; may be null
};

// What a set of instructions can do; false where a value is missing.
struct LaneFunctions {
    bool (*mixture)(const PreparedComponents& mixture, std::span<const double> fractions, const PointProperty& property,
                    const Run& run);
    bool (*pure)(const PreparedComponent& component, int property, const Run& run);
};

// Chosen by the processor; null where points are computed one by one: the vector mathematics is that of glibc on
// x86-64.
const LaneFunctions* laneFunctions();

// One translation unit each, compiled for those instructions; nothing else may be called on a lesser processor.
extern const LaneFunctions kLanesOfSse2, kLanesOfAvx2, kLanesOfAvx512;

}  // namespace velor
