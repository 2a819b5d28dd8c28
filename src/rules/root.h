// The zero of a continuous function between two points of different sign.
#pragma once

#include <cmath>

namespace velor {

// By the Illinois variant of regula falsi (Dowell and Jarratt, 1971), which never leaves the bracket, with a halving
// where that is slow; to the last digits of x. f(a) = fa and f(b) = fb differ in sign.
template <class Function>
double rootBetween(const Function& f, double a, double fa, double b, double fb) {
    constexpr int kSteps = 200;
    constexpr double kTolerance = 1e-15;
    for (int step = 0; step < kSteps && fb != 0.0; ++step) {
        const bool isSlow = step % 8 == 7;
        const double x = isSlow ? 0.5 * (a + b) : b - fb * (b - a) / (fb - fa);
        const double fx = f(x);
        if (fx * fb < 0.0) {
            a = b;
            fa = fb;
        } else {
            fa *= 0.5;  // the end that stays counts half, so that it moves, too
        }
        const bool isAtRest = std::abs(x - b) <= kTolerance * std::abs(x) && !isSlow;
        b = x;
        fb = fx;
        if (isAtRest) break;
    }
    return b;
}

}  // namespace velor
