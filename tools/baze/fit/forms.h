// The equations as a fit sees them: a target that is a sum of terms with free factors, and at most two numbers inside
// the terms that have to be sought.
#pragma once

#include <array>
#include <functional>
#include <vector>

#include "velor/record.h"

namespace velor::baze {

// What is known beforehand of the substance and the points.
struct FitKnowledge {
    double Tkr = 0;              // K; 0: not known
    double Pkr = 0;              // Pa; 0: not known
    double least = 0, most = 0;  // temperatures of the points, K
};

using Inner = std::vector<double>;  // the numbers inside the terms

// y, or its natural logarithm, is offset(T) + the sum of factor times term.
struct Form {
    bool isLogarithmic = true;
    std::function<std::vector<double>(double T, const Inner& inner)> terms;
    std::function<double(double T, const Inner& inner)> offset;
    std::vector<Inner> starts;     // where to begin
    std::size_t firstSought = 0;   // of the inner numbers; those before it are known
    std::vector<int> positions;    // of the coefficient that each factor gives, from 0
    std::vector<bool> isExponent;  // whether that coefficient is e to the factor
    std::vector<int> innerPositions;
    std::array<double, 6> fixed{};  // the other coefficients
    double scaleOfFirst = 1;        // of the coefficient that the first factor gives
};

// Of an equation's type, from 1. Error 9: no type.
Form formOf(int type, const FitKnowledge& known);

}  // namespace velor::baze
