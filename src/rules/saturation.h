// Bubble and dew point of an ideal mixture by Newton's method in the temperature.
#pragma once

#include <cmath>
#include <cstddef>
#include <span>

#include "rules/temperature.h"
#include "runtime/checked.h"

namespace velor {

struct SaturationPoint {
    double temperature = 0;  // K; the last Newton estimate
    bool diverged = false;
};

enum class Saturation { Bubble, Dew };

// vapourPressure(i, T) gives component i's vapour pressure Ps in Pa (i from 0), rise(i, T, warmer, Ps) its rise from T
// to the warmer T + 1 K. mayGiveUp() says whether the limit of steps holds; without it the iteration
// goes on until it converges. Errors: 11 a pressure, vapour pressure or slope of 0.
template <class VapourPressure, class Rise, class MayGiveUp>
SaturationPoint saturationPoint(Saturation kind, double P, std::span<const double> fractions,
                                std::span<const double> criticalTemperatures, const VapourPressure& vapourPressure,
                                const Rise& rise, const MayGiveUp& mayGiveUp) {
    constexpr double kStart = 300.0;         // K
    constexpr int kSteps = 50;               // before it may give up
    constexpr double kBelowCritical = 0.95;  // of the critical temperature
    constexpr double kTolerance = 0.02;      // K
    double T = kStart;
    for (int step = 1;; ++step) {
        for (const double Tc : criticalTemperatures)
            if (T >= Tc) T = kBelowCritical * Tc;
        const Temperature at(T), warmer(T + 1.0);
        double f = -1.0, g = 0.0;
        for (std::size_t i = 0; i < fractions.size(); ++i) {
            const double Ps = vapourPressure(i, at);
            const bool bubble = kind == Saturation::Bubble;
            const double other = bubble ? checked::divide(Ps * fractions[i], P) : checked::divide(P * fractions[i], Ps);
            const double change = checked::divide(rise(i, at, warmer, Ps) * other, Ps);
            g = bubble ? g + change : g - change;
            f += other;
        }
        const double next = T - checked::divide(f, g);
        if (step > kSteps && mayGiveUp()) return {next, true};
        const double ratio = checked::divide(next, T);
        if (ratio < 0.5) {
            T = 0.5 * T;
        } else if (ratio > 1.5) {
            T = 1.5 * T;
        } else if (std::abs(T - next) > kTolerance) {
            T = next;
        } else {
            return {next, false};
        }
    }
}

}  // namespace velor
