// What a rule asks of a number, here for a double; Lanes has the same of its own. A rule that is a template over Number
// takes them all by "using namespace numbers".
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "runtime/checked.h"

namespace velor::numbers {

using checked::divide;
using checked::exponential;
using checked::finite;
using checked::naturalLogarithm;
using checked::squareRoot;

inline constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

inline bool isAny(bool condition) { return condition; }
inline bool isAll(bool condition) { return condition; }
inline bool isNan(double a) { return std::isnan(a); }
inline double select(bool condition, double a, double b) { return condition ? a : b; }
inline double absolute(double a) { return std::abs(a); }
inline double larger(double a, double b) { return std::max(a, b); }
inline double smaller(double a, double b) { return std::min(a, b); }
inline double plainLogarithm(double a) { return std::log(a); }  // unchecked
inline double cubeRoot(double a) { return std::cbrt(a); }
inline double logarithmOfOnePlus(double a) { return std::log1p(a); }

}  // namespace velor::numbers
